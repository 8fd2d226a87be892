#pragma once

#include "core/StatePoint.h"

// The relations of moist air, from the ASHRAE Handbook of Fundamentals. Each has separate equations for
// English and Metric units and picks one by UnitSystem. Expressions are evaluated in double from single
// arguments and rounded once, on return; any other rounding is an explicit RoundToSingle. Every relation
// throws RunTimeError overflow if its result exceeds the range of a single; its comment names any further
// errors. An implausible result, such as a negative humidity ratio, is not an error.

/// Ratio of the molar masses of water and dry air.
constexpr double WaterToAirMassRatio = 0.62198;

constexpr double KiloPascalPerPsi = 6.8947333;

/// Kelvin from deg C, T = t + 273.15.
inline Single CelsiusToKelvin(Single t) { return RoundToSingle(t + 273.15); }

/// Degrees Rankine from deg F, T = t + 459.67.
inline Single FahrenheitToRankine(Single t) { return RoundToSingle(t + 459.67); }

/// Absolute temperature on the unit mode's scale, kelvin or degrees Rankine.
inline Single ToAbsolute(Single t) { return IsMetric() ? CelsiusToKelvin(t) : FahrenheitToRankine(t); }

/// Saturation pressure of water vapor over ice or liquid water,
///     ln pws = c1/T + c2 + c3 T + c4 T^2 + c5 T^3 [+ c6 T^4 over ice] + c7 ln T
/// Hyland and Wexler (1983), as given in the ASHRAE Handbook of Fundamentals.
/// @param T  absolute temperature, degrees Rankine (English) or K (Metric)
/// @return   psi or Pa; 0 outside 311 to 851.67 degrees Rankine, 175 to 473 K (limits excluded)
Single SaturationPressure(Single T);

/// Humidity ratio from the partial pressure of the water vapor, W = 0.62198 pw / (P - pw), for a perfect gas.
/// @param pw  vapor pressure, psi or Pa
/// @param P   barometric pressure, same unit
/// @return    lb/lb or kg/kg; negative if pw exceeds P
/// @throws RunTimeError division by zero if pw equals P
Single HumidityRatioFromVaporPressure(Single pw, Single P);

/// Partial pressure of the water vapor, pw = RH pws.
/// @param RH   relative humidity as a fraction
/// @param pws  saturation pressure, psi or Pa
/// @return     in the unit of pws
Single VaporPressureFromRH(Single RH, Single pws);

/// Degree of saturation, mu = W / Ws.
/// @throws RunTimeError division by zero if Ws is 0
Single DegreeOfSaturation(Single W, Single Ws);

/// Relative humidity, RH = mu / (1 - (1 - mu) pws / P).
/// @param pws, P  saturation and barometric pressure, same unit
/// @return        a fraction
/// @throws RunTimeError division by zero if P or the divisor is 0
Single RHFromDegreeOfSaturation(Single mu, Single pws, Single P);

/// Specific volume of moist air per unit mass of dry air, v = R T (1 + 1.6078 W) / (28.9645 P), for a perfect
/// gas.
/// @param T  absolute temperature, degrees Rankine or K
/// @param P  barometric pressure, psi or Pa
/// @return   ft3/lb or m3/kg
/// @throws RunTimeError division by zero if P is 0
Single SpecificVolumeOf(Single T, Single W, Single P);

/// Enthalpy of moist air per unit mass of dry air,
///     h = 0.24 t + W (1061 + 0.444 t)  in Btu/lb, deg F
///     h = t + W (2501 + 1.805 t)       in kJ/kg, deg C
Single EnthalpyOf(Single t, Single W);

/// Dry bulb from enthalpy and humidity ratio, the inverse of EnthalpyOf.
/// @throws RunTimeError division by zero if the specific heat of the mixture is 0
Single DryBulbFromEnthalpy(Single h, Single W);

/// Humidity ratio from the thermodynamic wet bulb,
///     W = ((1093 - 0.556 t*) Ws* - 0.24 (t - t*)) / (1093 + 0.444 t - t*)          deg F
///     W = ((2501 - 2.381 t*) Ws* - (t - t*)) / (2501 + 1.805 t - 4.186 t*)         deg C
/// @param twb, tdb  wet bulb t* and dry bulb t
/// @param wsWet     humidity ratio at saturation at the wet bulb, Ws*
/// @return          lb/lb or kg/kg; negative if the wet bulb is too far below the dry bulb
/// @throws RunTimeError division by zero if the divisor is 0
Single HumidityRatioFromWetBulb(Single twb, Single tdb, Single wsWet);

/// Partial pressure of the water vapor from the humidity ratio, pw = P W / (0.62198 + W).
/// @return  in the unit of P
/// @throws RunTimeError division by zero if the divisor is 0
Single VaporPressureFromHumidityRatio(Single P, Single W);

/// Dew point from the partial pressure of the water vapor, with a = ln pw, pw in kPa, td in deg C,
///     td = 6.54 + 14.526 a + 0.7389 a^2 + 0.09486 a^3 + 0.4569 pw^0.1984
///     td = 6.09 + 12.608 a + 0.4959 a^2       if the first equation gives less than 0
/// Peppers (1988), as given in the ASHRAE Handbook of Fundamentals. English values are converted before and
/// after. The two regressions do not meet at 0.
/// @param pw  vapor pressure, psi (English) or kPa (Metric: the caller converts from Pa)
/// @return    deg F or deg C
/// @throws RunTimeError invalid argument if pw is 0 or negative
Single DewPointFromVaporPressure(Single pw);
