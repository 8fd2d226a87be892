#pragma once

/// What a person feels, wears and does, in Metric units.
struct ThermalConditions
{
    double tdb = 0;           ///< deg C
    double tr = 0;            ///< mean radiant temperature, deg C
    double velocity = 0;      ///< of the air, m/s
    double vaporPressure = 0; ///< Pa
    double met = 0;           ///< metabolic rate, 58.15 W/m2 each
    double clo = 0;           ///< insulation of the clothing, 0.155 m2 K/W each
};

/// Predicted mean vote of ISO 7730: -3 cold, 0 neutral, 3 hot. With the heat M that the body makes (no work),
///     PMV = (0.303 exp(-0.036 M) + 0.028) (M - E - C - R)
/// where E is the heat lost by the skin's moisture, sweat and breath, C by convection and R by radiation.
/// Finds the temperature of the clothing by iteration. The vote rises with tdb and with the vapor pressure.
double PredictedMeanVote(const ThermalConditions& conditions);

/// The vapor pressure in Pa that the standard uses for a relative humidity (a fraction),
///     pa = 1000 rh exp(16.6536 - 4030.183 / (tdb + 235))
double VaporPressureForVote(double rh, double tdb);
