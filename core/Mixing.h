#pragma once

#include "core/TaggedNumber.h"

// Adiabatic mixing of two streams of moist air: the mixture keeps their dry air, water and energy, so its
// humidity ratio and its enthalpy are the means of theirs, weighted by the flow of dry air.      [ASHRAE
// Handbook of Fundamentals] Values are tagged numbers that hold singles: each product, sum and quotient is
// rounded to single.

/// Mass flow of dry air, m = V / v.
/// @param volume          V, cfm or m3/hr
/// @param specificVolume  v, ft3/lb or m3/kg of dry air
/// @return                lb/min or kg/hr
/// @throws RunTimeError division by zero if v is 0; overflow
TaggedNumber DryAirFlow(Single volume, Single specificVolume);

/// The mean of two streams by their flow of dry air, (x1 m1 + x2 m2) / (m2 + m1). The sum in the divisor has
/// the second stream first.
/// @param x1, x2  humidity ratio or enthalpy, in any one unit
/// @throws RunTimeError division by zero if no dry air flows; overflow
TaggedNumber MeanByDryAir(Single x1, const TaggedNumber& m1, Single x2, const TaggedNumber& m2);
