#pragma once

#include "core/Single.h"

// The operations that can fail. Each checks its operands and throws at once. Unlike checks of the processor's
// flags, these can't be moved or dropped by the compiler. They cost next to nothing.

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

/// @throws RunTimeError overflow for an infinity, invalid argument for a NaN
inline double RequireFinite(double value)
{
    if (!std::isfinite(value)) [[unlikely]]
        Raise(std::isnan(value) ? ErrorNumber::InvalidArgument : ErrorNumber::Overflow);
    return value;
}

/// The nearest 16-bit integer; halves round to even.
/// @throws RunTimeError overflow outside 16 bits, invalid argument for a NaN
inline std::int16_t RoundToInt16(double value)
{
    using Limits = std::numeric_limits<std::int16_t>;
    const double nearest = std::nearbyint(RequireFinite(value));
    if (nearest < Limits::min() || nearest > Limits::max())
        Raise(ErrorNumber::Overflow);
    return static_cast<std::int16_t>(nearest);
}
