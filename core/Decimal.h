#pragma once

#include "core/Single.h"

#include <string>

/// A number as decimal digits: 0.d1d2d3... times 10 to the power of point, without trailing zeros. Zero has
/// no digits and no sign.
struct Decimal
{
    bool negative = false;
    std::string digits;
    int point = 0;

    /// The value at 15 significant digits, the most that a double is sure to keep.
    /// @throws RunTimeError overflow, invalid argument for what is not finite
    static Decimal of(double value);

    /// The shortest digits that read back as the same single.
    /// @throws RunTimeError as of
    static Decimal shortestOf(Single value);

    bool isZero() const { return digits.empty(); }

    /// Keeps count digits, rounding half away from zero.
    void roundToDigits(int count);

    /// Keeps count places after the decimal point, rounding half away from zero.
    void roundToPlaces(int count) { roundToDigits(point + count); }

    /// The digits in front of the decimal point, none for a fraction.
    std::string integerDigits() const;

    /// The digits behind the decimal point, none for an integer.
    std::string fractionDigits() const;

private:
    void dropTrailingZeros();
    static Decimal fromScientific(std::string_view text);
};
