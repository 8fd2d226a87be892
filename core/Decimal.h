#pragma once

#include "core/Single.h"

#include <string>

/// A decimal number: 0.d1d2d3... times 10 to the power of point, without trailing zeros. Zero has no digits
/// and no sign.
struct Decimal
{
    bool negative = false;
    std::string digits;
    int point = 0;

    /// The value at 15 significant digits, the most that every double preserves.
    /// @throws RunTimeError overflow for an infinity, invalid argument for a NaN
    static Decimal of(double value);

    /// The shortest digits that read back as the same single.
    /// @throws RunTimeError as of()
    static Decimal shortestOf(Single value);

    bool isZero() const { return digits.empty(); }

    /// Keeps count digits, rounding half away from zero.
    void roundToDigits(int count);

    /// Keeps count places after the decimal point, rounding half away from zero.
    void roundToPlaces(int count) { roundToDigits(point + count); }

    /// The digits before the decimal point; empty for a fraction.
    std::string integerDigits() const;

    /// The digits after the decimal point; empty for an integer.
    std::string fractionDigits() const;
};
