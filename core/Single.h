#pragma once

#include "core/RunTimeError.h"

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <limits>

/// The storage precision of the calculator. Expressions are worked out in double and rounded where a rule
/// says so.
using Single = float;

/// Booleans are 16 bits wide, -1 for true and 0 for false.
using Boolean16 = std::int16_t;
constexpr Boolean16 True16 = -1;
constexpr Boolean16 False16 = 0;

static_assert(std::numeric_limits<Single>::is_iec559 && sizeof(Single) == 4);
static_assert(std::numeric_limits<double>::is_iec559 && sizeof(double) == 8);
static_assert(FLT_EVAL_METHOD == 0, "expressions must not be kept in a wider format than their type");

/// The smallest magnitude that rounds past the largest single: half a step above it.
constexpr double SingleOverflow = 0x1.ffffffp127;

/// Rounds to the nearest single, ties to even. This is the only way from double to single.
/// @throws RunTimeError overflow past the largest single, invalid argument for what is no number
inline Single RoundToSingle(double value)
{
    if (!(std::fabs(value) < SingleOverflow)) [[unlikely]]
        Raise(std::isnan(value) ? ErrorNumber::InvalidArgument : ErrorNumber::Overflow);
    return static_cast<Single>(value);
}
