#pragma once

/// Pressure of the standard atmosphere at an altitude,
///     P = P0 (1 - a Z)^5.2559      [ASHRAE Handbook of Fundamentals]
/// with P0 = 14.696 psi and a = 6.8754e-6 per ft, or 101.325 kPa and 2.25577e-5 per m.
/// @param Z  altitude, ft or m
/// @return   psi or kPa; 0 above the atmosphere
double StandardPressure(double Z, bool isMetric);

/// The altitude at which the standard atmosphere has a pressure: the inverse of StandardPressure.
/// @param P  psi or kPa, above 0
/// @return   ft or m; negative below sea level
double StandardAltitude(double P, bool isMetric);
