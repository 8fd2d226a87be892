#pragma once

#include "core/TaggedNumber.h"

/// Rounds to a fraction: value * scale as a 16-bit integer, halves to even, divided by scale. A scale of 10
/// rounds to tenths.
/// @throws RunTimeError overflow where value * scale leaves 16 bits; division by zero for a scale of 0
Single RoundToScale(const TaggedNumber& value, const std::int16_t& scale);
