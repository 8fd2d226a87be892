#pragma once

#include <string>

/// How the user's locale writes numbers. Each member is one UTF-8 character; an empty group separator means
/// that the locale has none.
struct NumberLocale
{
    std::string decimalPoint = ".";
    std::string groupSeparator = ",";
};

/// The current locale, set once at start.
inline NumberLocale numberLocale;
