#pragma once

#include "core/StatePoint.h"

// The relations of moist air (ASHRAE Handbook of Fundamentals). Each holds one equation for English units and
// one for Metric units, with coefficients of their own, and asks UnitSystem which to take. Expressions are
// worked out in double from single arguments and rounded once, at the return; the few roundings inside are
// visible as RoundToSingle. Every relation throws RunTimeError overflow where its result leaves the range of
// a single; further errors are named where they can arise. A strange result, such as a negative humidity
// ratio, is no error.

/// Molar mass of water over that of dry air.
constexpr double WaterToAirMassRatio = 0.62198;

constexpr double KiloPascalPerPsi = 6.8947333;

/// Kelvin from deg C, T = t + 273.15.
inline Single CelsiusToKelvin(Single t) { return RoundToSingle(t + 273.15); }

/// Degrees Rankine from deg F, T = t + 459.67.
inline Single FahrenheitToRankine(Single t) { return RoundToSingle(t + 459.67); }

/// Absolute temperature on the scale of the unit mode: kelvin or degrees Rankine.
inline Single ToAbsolute(Single t) { return IsMetric() ? CelsiusToKelvin(t) : FahrenheitToRankine(t); }

/// Saturation pressure of water vapour over ice or liquid water,
///     ln pws = c1/T + c2 + c3 T + c4 T^2 + c5 T^3 [+ c6 T^4 over ice] + c7 ln T       [Hyland and Wexler]
/// @param T  absolute temperature, degrees Rankine (English) or K (Metric)
/// @return   psi or Pa; 0 outside 311 to 851.67 degrees Rankine, 175 to 473 K (limits excluded)
Single SaturationPressure(Single T);

/// Humidity ratio from the partial pressure of the water vapour, W = 0.62198 pw / (P - pw)   [perfect gas]
/// @param pw  vapour pressure, psi or Pa
/// @param P   barometric pressure, same unit
/// @return    lb/lb or kg/kg; negative where pw exceeds P
/// @throws RunTimeError division by zero where pw equals P
Single HumidityRatioFromVaporPressure(Single pw, Single P);

/// Partial pressure of the water vapour, pw = RH pws.
/// @param RH   relative humidity as a fraction
/// @param pws  saturation pressure, psi or Pa
/// @return     in the unit of pws
Single VaporPressureFromRH(Single RH, Single pws);

/// Degree of saturation, mu = W / Ws.
/// @throws RunTimeError division by zero where Ws is 0
Single DegreeOfSaturation(Single W, Single Ws);

/// Relative humidity, RH = mu / (1 - (1 - mu) pws / P).
/// @param pws, P  saturation and barometric pressure, same unit
/// @return        a fraction
/// @throws RunTimeError division by zero where P is 0 or the divisor vanishes
Single RHFromDegreeOfSaturation(Single mu, Single pws, Single P);

/// Specific volume of moist air per unit of dry air, v = R T (1 + 1.6078 W) / (28.9645 P)   [perfect gas]
/// @param T  absolute temperature, degrees Rankine or K
/// @param P  barometric pressure, psi or Pa
/// @return   ft3/lb or m3/kg
/// @throws RunTimeError division by zero where P is 0
Single SpecificVolumeOf(Single T, Single W, Single P);

/// Enthalpy of moist air per unit of dry air,
///     h = 0.24 t + W (1061 + 0.444 t)  in Btu/lb, deg F
///     h = t + W (2501 + 1.805 t)       in kJ/kg, deg C
Single EnthalpyOf(Single t, Single W);

/// Dry bulb from enthalpy and humidity ratio, the inverse of EnthalpyOf.
/// @throws RunTimeError division by zero where the specific heat of the mixture vanishes
Single DryBulbFromEnthalpy(Single h, Single W);

/// Humidity ratio from the thermodynamic wet bulb,
///     W = ((1093 - 0.556 t*) Ws* - 0.24 (t - t*)) / (1093 + 0.444 t - t*)          deg F
///     W = ((2501 - 2.381 t*) Ws* - (t - t*)) / (2501 + 1.805 t - 4.186 t*)         deg C
/// @param twb, tdb  wet bulb t* and dry bulb t
/// @param wsWet     humidity ratio at saturation at the wet bulb, Ws*
/// @return          lb/lb or kg/kg; negative where the wet bulb lies too far below the dry bulb
/// @throws RunTimeError division by zero where the divisor vanishes
Single HumidityRatioFromWetBulb(Single twb, Single tdb, Single wsWet);

/// Partial pressure of the water vapour from the humidity ratio, pw = P W / (0.62198 + W).
/// @return  in the unit of P
/// @throws RunTimeError division by zero where the divisor vanishes
Single VaporPressureFromHumidityRatio(Single P, Single W);

/// Dew point from the partial pressure of the water vapour, with a = ln pw, pw in kPa, td in deg C [Peppers]
///     td = 6.54 + 14.526 a + 0.7389 a^2 + 0.09486 a^3 + 0.4569 pw^0.1984
///     td = 6.09 + 12.608 a + 0.4959 a^2       where the first one comes out below 0
/// English values are converted on the way in and out. The two regressions do not meet at 0.
/// @param pw  vapour pressure, psi (English) or kPa (Metric: the caller divides its Pa by 1000)
/// @return    deg F or deg C
/// @throws RunTimeError invalid argument where pw is 0 or negative
Single DewPointFromVaporPressure(Single pw);
