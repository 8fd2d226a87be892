#pragma once

#include "core/Single.h"

#include <string>
#include <string_view>

class TaggedNumber;

/// How the user's locale writes numbers. Each member is one UTF-8 character; an empty group separator means
/// that the locale has none.
struct NumberLocale
{
    std::string decimalPoint = ".";
    std::string groupSeparator = ",";
};

/// The current locale, set once at start.
inline NumberLocale numberLocale;

/// Parses a number in the user's locale: surrounding blanks, a sign, digits with group separators, a decimal
/// point, an exponent. A number too small for a double becomes 0.
/// @throws RunTimeError type mismatch for anything else, including empty text; overflow past the largest
/// double
double ParseDouble(std::string_view text);

/// Parses "True" or "False", ignoring case, or a number. Only 0 is false.
/// @throws RunTimeError as ParseDouble
Boolean16 ParseBoolean(std::string_view text);

/// The shortest decimal of a number, with the locale's decimal point and never an exponent: at most 7 digits
/// for a single, 15 for a double. Text is returned unchanged.
std::string PlainText(Single value);
std::string PlainText(double value);
std::string PlainText(const TaggedNumber& value);
