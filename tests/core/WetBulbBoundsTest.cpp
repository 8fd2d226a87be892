// The bounds that the comment in core/WetBulbSigns.cpp relies on, over its limits.

#include "core/SaturationCurve.h"
#include "core/WetBulbBalance.h"
#include "tests/core/CoreTest.h"

#include <algorithm>
#include <cmath>

namespace {

/// The extremes over all wet bulbs and pressures within the limits. Slopes are per degree of wet bulb.
struct Extremes
{
    double mostPressurePart = 0.0;    ///< pws / p
    double leastGrowth = 1.0;         ///< g = Ws*' / Ws*
    double leastSlopePart = 2.0;      ///< (latent Ws*' - latentFall Ws*) / (latent Ws*')
    double leastCurvature = 1.0;      ///< of G
    double mostRelativeChange = 0.0;  ///< of the slope of G
    double mostCurvatureError = 0.0;  ///< of the curvature taken for a step, divided by twice the slope
    double mostDerivativeError = 0.0; ///< of g against a difference quotient
};

class WetBulbBounds : public EnglishCore
{
protected:
    double ratioAt(double absolute, double p) const
    {
        const SaturationCurve& curve = *SaturationCurveAt(static_cast<Single>(absolute));
        const double pws = std::exp(LogSaturationPressure(curve, absolute));
        return WaterToAirMassRatio * pws / (p - pws);
    }

    void add(double twb, double p)
    {
        constexpr double step = 0.05;
        const double absolute = twb + (IsMetric() ? 273.15 : 459.67);
        const SaturationCurve& curve = *SaturationCurveAt(static_cast<Single>(absolute));
        const double pws = std::exp(LogSaturationPressure(curve, absolute));
        const double growth = LogSaturationPressureSlope(curve, absolute) * p / (p - pws);

        const double below = ratioAt(absolute - step, p);
        const double ws = ratioAt(absolute, p);
        const double above = ratioAt(absolute + step, p);
        const double first = (above - below) / (2.0 * step);
        const double second = (above - 2.0 * ws + below) / (step * step);

        // For dry air at its wet bulb, where the sensible heat and w add least to the slope.
        const double latent = WetBulbBalance(twb, twb).latent;
        const double slope = latent * first - Heat().latentFall * ws + Heat().air;
        const double curvature = latent * second - 2.0 * Heat().latentFall * first;
        const double curvatureTaken = latent * ws * growth * growth;

        found.mostPressurePart = std::max(found.mostPressurePart, pws / p);
        found.leastGrowth = std::min(found.leastGrowth, growth);
        found.leastSlopePart = std::min(found.leastSlopePart, (slope - Heat().air) / (latent * first));
        found.leastCurvature = std::min(found.leastCurvature, curvature);
        found.mostRelativeChange = std::max(found.mostRelativeChange, curvature / slope);
        found.mostCurvatureError =
            std::max(found.mostCurvatureError, std::fabs(curvatureTaken - curvature) / (2.0 * slope));
        found.mostDerivativeError = std::max(found.mostDerivativeError, std::fabs(growth * ws / first - 1.0));
    }

    void addAll(double least, double most, double freezing, const std::vector<double>& pressures)
    {
        constexpr double guard = 0.1; // so that no difference quotient spans both branches
        for (const double p : pressures) {
            for (double twb = least; twb < most; twb += 0.25) {
                if (std::fabs(twb - freezing) > guard)
                    add(twb, p);
            }
        }
    }

    Extremes found;
};

} // namespace

TEST_F(WetBulbBounds, HoldInEnglish)
{
    addAll(-110.0, 140.0, 32.0, {6.0, 10.0, 14.696, 30.0});
    EXPECT_LT(found.mostPressurePart, 0.5);
    EXPECT_GT(found.leastGrowth, 0.028);
    EXPECT_GT(found.leastSlopePart, 0.98);
    EXPECT_GT(found.leastCurvature, 0.0);
    EXPECT_LT(found.mostRelativeChange, 0.13);
    EXPECT_LT(found.mostCurvatureError, 0.01);
    EXPECT_LT(found.mostDerivativeError, 1e-4);
}

TEST_F(WetBulbBounds, HoldInMetric)
{
    UnitSystem = True16;
    addAll(-90.0, 60.0, 0.0, {40000.0, 70000.0, 101325.0, 200000.0});
    EXPECT_LT(found.mostPressurePart, 0.5);
    EXPECT_GT(found.leastGrowth, 0.051);
    EXPECT_GT(found.leastSlopePart, 0.98);
    EXPECT_GT(found.leastCurvature, 0.0);
    EXPECT_LT(found.mostRelativeChange, 0.13);
    EXPECT_LT(found.mostCurvatureError, 0.02);
    EXPECT_LT(found.mostDerivativeError, 1e-4);
}

// At freezing the curve over water begins above that over ice, so a sign across the jump is right.
TEST_F(WetBulbBounds, TheSaturationPressureRisesFromIceToWater)
{
    EXPECT_GT(LogSaturationPressure(WaterEnglish, 491.67), LogSaturationPressure(IceEnglish, 491.67));
    EXPECT_GT(LogSaturationPressure(WaterMetric, 273.15), LogSaturationPressure(IceMetric, 273.15));
}
