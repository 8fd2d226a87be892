#pragma once

#include "core/StatePoint.h"

/// The heat balance at a wet bulb, W = (latent Ws* - sensible) / divisor (see HumidityRatioFromWetBulb).
struct WetBulbBalance
{
    double latent;
    double sensible;
    double divisor;

    // The latent heat in English units is 1093.0 here, not 1061.0 as in EnthalpyOf.
    WetBulbBalance(Single twb, Single tdb)
    {
        const double depression = static_cast<double>(tdb) - twb;
        if (IsMetric()) {
            latent = 2501.0 - 2.381 * twb;
            sensible = depression;
            divisor = tdb * 1.805 + 2501.0 - twb * 4.186;
        } else {
            latent = 1093.0 - 0.556 * twb;
            sensible = depression * 0.24;
            divisor = tdb * 0.444 + 1093.0 - twb;
        }
    }
};
