#pragma once

#include "core/StatePoint.h"

/// The coefficients of the heat balance at a wet bulb (see HumidityRatioFromWetBulb).
struct HeatCoefficients
{
    double evaporation; ///< latent heat at 0 degrees
    double vapor, air;  ///< specific heats
    double latentFall;  ///< fall of the latent heat per degree of wet bulb
    double liquid;      ///< specific heat
};

// The latent heat in English units is 1093.0 here, not 1061.0 as in EnthalpyOf.
constexpr HeatCoefficients HeatEnglish{1093.0, 0.444, 0.24, 0.556, 1.0};
constexpr HeatCoefficients HeatMetric{2501.0, 1.805, 1.0, 2.381, 4.186};

inline const HeatCoefficients& Heat() { return IsMetric() ? HeatMetric : HeatEnglish; }

/// The heat balance at a wet bulb, W = (latent Ws* - sensible) / divisor.
struct WetBulbBalance
{
    double latent;
    double sensible;
    double divisor;

    WetBulbBalance(double twb, double tdb)
        : latent(Heat().evaporation - Heat().latentFall * twb),
          sensible((tdb - twb) * Heat().air),
          divisor(tdb * Heat().vapor + Heat().evaporation - twb * Heat().liquid)
    {}
};
