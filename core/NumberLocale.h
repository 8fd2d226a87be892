#pragma once

#include <string>

/// How the user's locale writes numbers. Each is one character in UTF-8; an empty group separator means that
/// the locale has none.
struct NumberLocale
{
    std::string decimalPoint = ".";
    std::string groupSeparator = ",";
};

/// The locale in force, set once at start.
inline NumberLocale numberLocale;
