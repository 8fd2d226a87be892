#pragma once

#include "core/RunTimeError.h"

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <limits>

/// The storage precision of the calculator. Expressions are evaluated in double and rounded to single at
/// defined points.
using Single = float;

/// Booleans are 16 bits wide, -1 for true and 0 for false.
using Boolean16 = std::int16_t;
constexpr Boolean16 True16 = -1;
constexpr Boolean16 False16 = 0;

static_assert(std::numeric_limits<Single>::is_iec559 && sizeof(Single) == 4);
static_assert(std::numeric_limits<double>::is_iec559 && sizeof(double) == 8);
static_assert(FLT_EVAL_METHOD == 0, "expressions must not be kept in a wider format than their type");

/// The smallest magnitude that overflows when rounded: half a step above the largest single.
constexpr double SingleOverflow = 0x1.ffffffp127;

/// Rounds to the nearest single, ties to even. All conversions from double to single use this function.
/// @throws RunTimeError overflow past the largest single, invalid argument for a NaN
inline Single RoundToSingle(double value)
{
    if (!(std::fabs(value) < SingleOverflow)) [[unlikely]]
        Raise(std::isnan(value) ? ErrorNumber::InvalidArgument : ErrorNumber::Overflow);
    return static_cast<Single>(value);
}
