#pragma once

#include "core/Single.h"

// The operations that can fail, each with the test that makes it fail at once. Tests of the operands, not of
// the processor's flags: they can't be moved or dropped by a compiler, and they cost next to nothing.

/// @throws RunTimeError division by zero for any zero divisor, 0 / 0 included
inline double Quotient(double dividend, double divisor)
{
    if (divisor == 0.0) [[unlikely]]
        Raise(ErrorNumber::DivisionByZero);
    return dividend / divisor;
}

/// @throws RunTimeError invalid argument for zero and negative numbers
inline double NaturalLogarithm(double value)
{
    if (!(value > 0.0)) [[unlikely]]
        Raise(ErrorNumber::InvalidArgument);
    return std::log(value);
}

/// @throws RunTimeError overflow for an infinity, invalid argument for what is no number
inline double RequireFinite(double value)
{
    if (!std::isfinite(value)) [[unlikely]]
        Raise(std::isnan(value) ? ErrorNumber::InvalidArgument : ErrorNumber::Overflow);
    return value;
}

/// The nearest 16-bit integer, halves to even.
/// @throws RunTimeError overflow outside 16 bits, invalid argument for what is no number
inline std::int16_t RoundToInt16(double value)
{
    using Limits = std::numeric_limits<std::int16_t>;
    const double nearest = std::nearbyint(RequireFinite(value));
    if (nearest < Limits::min() || nearest > Limits::max())
        Raise(ErrorNumber::Overflow);
    return static_cast<std::int16_t>(nearest);
}
