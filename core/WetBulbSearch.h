#pragma once

#include "core/Single.h"

/// How far the humidity ratio that a candidate wet bulb gives lies above w.
/// @param candidate  wet bulb to try, deg F or deg C
/// @param tdb        dry bulb, same unit
/// @param p          barometric pressure, psi or Pa
/// @param w          humidity ratio to meet, lb/lb or kg/kg
/// @throws RunTimeError as the relations it calls
Single WetBulbResidual(Single candidate, Single tdb, Single p, Single w);

/// The wet bulb of a known humidity ratio, by bisection of WetBulbResidual between 70 deg F (50 deg C) below
/// the dry bulb and 0.005 below it. It ends when a step is at most 0.01 percent of the temperature on the
/// user's scale (so near 0 degrees it takes all its 21 passes), or when a residual is 0. Nothing tells a
/// search that failed: without a root in the bracket the result lies just beneath the dry bulb.
/// @return  deg F or deg C
/// @throws RunTimeError as WetBulbResidual, and division by zero where a midpoint is exactly 0
Single SolveWetBulb(Single tdb, Single w, Single p);
