#pragma once

#include "core/Single.h"

/// The humidity ratio that a candidate wet bulb gives, minus w.
/// @param candidate  wet bulb to try, deg F or deg C
/// @param tdb        dry bulb, same unit
/// @param p          barometric pressure, psi or Pa
/// @param w          target humidity ratio, lb/lb or kg/kg
/// @throws RunTimeError as the relations it calls
Single WetBulbResidual(Single candidate, Single tdb, Single p, Single w);

/// The wet bulb for a humidity ratio. Bisects WetBulbResidual between 70 deg F (50 deg C) and 0.005 degrees
/// below the dry bulb. Stops when a step is at most 0.01 percent of the temperature in deg F or deg C (near 0
/// degrees, after all 21 passes), or when a residual is 0. A failed search is not reported: without a root in
/// the bracket, the result is just below the dry bulb.
/// @return  deg F or deg C
/// @throws RunTimeError as WetBulbResidual, and division by zero if a midpoint is exactly 0
Single SolveWetBulb(Single tdb, Single w, Single p);
