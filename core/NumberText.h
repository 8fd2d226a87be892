#pragma once

#include "core/Single.h"

#include <string>
#include <string_view>

class TaggedNumber;

/// Reads a number as the user's locale writes it: blanks around, a sign, digits with group separators, the
/// decimal point, an exponent. What is too small for a double is 0.
/// @throws RunTimeError type mismatch for anything else, an empty text included; overflow past the largest
/// double
double ParseDouble(std::string_view text);

/// Reads "True" and "False" in any case, or a number, of which 0 alone is false.
/// @throws RunTimeError as ParseDouble
Boolean16 ParseBoolean(std::string_view text);

/// The shortest plain decimal of a number, with the locale's decimal point and never an exponent: at most 7
/// digits for a single, 15 for a double. A text stays as it stands.
std::string PlainText(Single value);
std::string PlainText(double value);
std::string PlainText(const TaggedNumber& value);
