#include "core/WetBulbSigns.h"

#include "core/Relations.h"
#include "core/SaturationCurve.h"
#include "core/WetBulbBalance.h"
#include "core/WetBulbBracket.h"

#include <algorithm>

namespace {

// Why the zone is wide enough. WetBulbResidual rounds five times; the last rounding keeps the sign. Let G be
// the unrounded balance (see stepToRoot), u = 2^-24, and g = Ws*' / Ws*. Within the limits below, pws < p /
// 2, and g > 0.051 per deg C or 0.028 per deg F. The other roundings change G by at most
//   - absolute temperature: half a unit in the last place, 2^-16 deg C or 2^-15 deg F, times latent Ws*';
//   - pws, then Ws*: 2u (because p / (p - pws) < 2) and u of latent Ws*, that is 3u / g times latent Ws*';
//   - the candidate's W, compared with w: u of w divisor, at the root at most u / g times latent Ws*'.
// The slope of G is over 0.98 latent Ws*', because latentFall Ws* is below 2 percent of that and the other
// terms are positive. So rounding shifts the root by at most 2.1e-5 deg C or 4.0e-5 deg F. G is convex, and
// its slope changes by at most 0.13 per degree, so farther away G only gains on the rounding. At freezing,
// Ws* rises from ice to water, so the sign is right beyond it, too. The last step d leaves at most 0.02 d^2 =
// 8e-6 deg C or 0.01 d^2 = 4e-6 deg F (half the error of the curvature divided by the slope). The sum is
// below 3e-5 deg C or 5e-5 deg F; the zone is ten times that to each side. A test recalculates the
// bounds (tests/core/WetBulbBoundsTest.cpp).
constexpr double LongestLastStep = 0.02; // degrees
constexpr double FreezingGuard = 0.05;   // degrees, so that the last step stays on one branch of the curve
constexpr Single LeastW = 1e-9F;         // below it, a product of two residuals may underflow to 0
constexpr Single MostW = 1.0F;
constexpr int MostSteps = 6;

struct Limits
{
    Single leastTdb, mostTdb;
    Single leastP, mostP;
    double freezing, absoluteZero;
    double zone;
    double guess, guessPerRoot; ///< first estimate from the enthalpy, guess + guessPerRoot sqrt(h)
};

constexpr Limits LimitsEnglish{-40.0F, 140.0F, 6.0F, 30.0F, 32.0, -459.67, 0.0005, -13.0, 13.75};
constexpr Limits LimitsMetric{-40.0F, 60.0F, 40000.0F, 200000.0F, 0.0, -273.15, 0.0003, -11.0, 4.0};

constexpr WetBulbSigns NoSigns{-std::numeric_limits<Single>::infinity(),
                               std::numeric_limits<Single>::infinity()};

/// Halley's step from twb towards the root of G = latent Ws* - sensible - w divisor. For its second
/// derivative, Ws* is taken as exponential.
double stepToRoot(double twb, double absolute, Single tdb, Single w, Single p)
{
    const SaturationCurve& curve = *SaturationCurveAt(static_cast<Single>(absolute));
    const double pws = std::exp(LogSaturationPressure(curve, absolute));
    const double ws = WaterToAirMassRatio * pws / (p - pws);
    const double growth = LogSaturationPressureSlope(curve, absolute) * p / (p - pws); // Ws*' / Ws*

    const WetBulbBalance balance(twb, tdb);
    const double G = balance.latent * ws - balance.sensible - w * balance.divisor;
    const double latentSlope = balance.latent * ws * growth;
    const double slope = latentSlope - Heat().latentFall * ws + Heat().air + w * Heat().liquid;
    const double curvature = latentSlope * growth;
    return -G * slope / (slope * slope - G * curvature / 2.0);
}

} // namespace

WetBulbSigns FindWetBulbSigns(Single tdb, Single w, Single p)
{
    const Limits& limits = IsMetric() ? LimitsMetric : LimitsEnglish;
    const bool isWithinLimits = tdb >= limits.leastTdb && tdb <= limits.mostTdb && p >= limits.leastP &&
                                p <= limits.mostP && w >= LeastW && w <= MostW;
    if (!isWithinLimits)
        return NoSigns;

    const WetBulbBracket bracket(tdb);
    const double rootOfEnthalpy = std::sqrt(std::max(EnthalpyOf(tdb, w), 0.0F));
    double twb = std::min<double>(limits.guess + limits.guessPerRoot * rootOfEnthalpy, bracket.upper);
    for (int i = 0; i < MostSteps; ++i) {
        const double step = stepToRoot(twb, twb - limits.absoluteZero, tdb, w, p);
        twb += step;
        if (!(twb > bracket.lower && twb < bracket.upper))
            return NoSigns;
        if (std::fabs(step) > LongestLastStep)
            continue;
        if (std::fabs(twb - limits.freezing) < FreezingGuard)
            return NoSigns;
        return {RoundToSingle(twb - limits.zone), RoundToSingle(twb + limits.zone)};
    }
    return NoSigns;
}
