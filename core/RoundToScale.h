#pragma once

#include "core/TaggedNumber.h"

/// Rounds value * scale to a 16-bit integer, halves to even, and divides it by scale. A scale of 10 rounds to
/// tenths.
/// @throws RunTimeError overflow if value * scale exceeds 16 bits; division by zero for a scale of 0
Single RoundToScale(const TaggedNumber& value, const std::int16_t& scale);
