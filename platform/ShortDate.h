#pragma once

#include <string>

/// Today's date in the short form of the user's locale, without the time.
std::string ShortDate();
