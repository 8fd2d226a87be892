#pragma once

#include "core/TaggedNumber.h"

#include <string>
#include <string_view>

/// Writes a value through a number picture, the format language of every field, label and report:
///     #  a digit if there is one to show          ,  between digits: the locale's group separator
///     0  a digit always                           %  at the end: times 100, and the sign
///     .  the locale's decimal point, which stays even when no digit follows
/// The value is taken at 15 significant digits and rounded half away from zero to the picture's last place.
/// A text that reads as a number is written as that double; any other text, the empty one too, stays as it
/// is.
/// @throws RunTimeError invalid argument for a picture with other characters
std::string FormatNumber(const TaggedNumber& value, std::string_view picture);
