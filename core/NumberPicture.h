#pragma once

#include "core/TaggedNumber.h"

#include <string>
#include <string_view>

/// Formats a value by a number picture, the format language of all fields, labels and reports:
///     #  a digit, if there is one to show         ,  between digits: the locale's group separator
///     0  always a digit                           %  at the end: times 100, and a percent sign
///     .  the locale's decimal point, even if no digit follows
/// Rounds the value to 15 significant digits, then half away from zero to the last place of the picture. Text
/// that is a number is formatted as that double. Any other text, including empty text, is returned unchanged.
/// @throws RunTimeError invalid argument if the picture has other characters
std::string FormatNumber(const TaggedNumber& value, std::string_view picture);
