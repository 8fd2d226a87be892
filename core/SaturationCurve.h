#pragma once

#include "core/Single.h"
#include "core/StatePoint.h"

/// The coefficients of one branch of the saturation pressure (see SaturationPressure in core/Relations.h).
struct SaturationCurve
{
    bool ice;
    double c1, c2, c3, c4, c5, c6, c7; // c6 is for ice only
};

// clang-format off
constexpr SaturationCurve IceEnglish   {true,  -10214.165, -4.8932428, -0.0053765794, 1.9202377e-7,  3.5575832e-10, -9.0344688e-14, 4.1635019};
constexpr SaturationCurve WaterEnglish {false, -10440.39,  -11.29465,  -0.027022355,  1.289036e-5,   -2.4780681e-9, 0.0,            6.5459673};
constexpr SaturationCurve IceMetric    {true,  -5674.5359, 6.3925247,  -0.009677843,  6.22115701e-7, 2.0747825e-9,  -9.484024e-13,  4.1635019};
constexpr SaturationCurve WaterMetric  {false, -5800.2206, 1.3914993,  -0.048640239,  4.1764768e-5,  -1.4452093e-8, 0.0,            6.5459673};
// clang-format on

/// The branch for an absolute temperature; nullptr outside both branches. The limits are singles, so 0 deg C
/// and 32 deg F, converted to absolute temperatures, are exactly the last values over ice.
inline const SaturationCurve* SaturationCurveAt(Single T)
{
    if (IsMetric()) {
        if (!(T > 175.0F && T < 473.0F))
            return nullptr;
        return T <= 273.15F ? &IceMetric : &WaterMetric;
    }
    if (!(T > 311.0F && T < 851.67F))
        return nullptr;
    return T <= 491.67F ? &IceEnglish : &WaterEnglish;
}

/// The natural logarithm of the saturation pressure. Multiplies instead of calling std::pow: the square of a
/// single is exact in double, and the higher powers are within one bit of std::pow. At every temperature that
/// is a single, the pressure rounded to single is the same to the last bit.
inline double LogSaturationPressure(const SaturationCurve& curve, double t)
{
    const double square = t * t;
    double sum = (curve.c1 / t + curve.c2 + curve.c3 * t) + curve.c4 * square;
    sum += curve.c5 * (square * t);
    if (curve.ice)
        sum += curve.c6 * (square * square);
    return sum + curve.c7 * std::log(t);
}

/// The derivative of LogSaturationPressure with respect to the temperature. Over water, c6 is 0.
inline double LogSaturationPressureSlope(const SaturationCurve& curve, double t)
{
    const double polynomial = curve.c3 + t * (2.0 * curve.c4 + t * (3.0 * curve.c5 + t * (4.0 * curve.c6)));
    return polynomial + (curve.c7 - curve.c1 / t) / t;
}
