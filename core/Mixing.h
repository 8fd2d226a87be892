#pragma once

#include "core/TaggedNumber.h"

// Adiabatic mixing of two streams of moist air (ASHRAE Handbook of Fundamentals). Dry air, water and energy
// are conserved, so the humidity ratio and the enthalpy of the mixture are means weighted by the flow of dry
// air. Values are tagged numbers that hold singles: each product, sum and quotient is rounded to single.

/// Mass flow of dry air, m = V / v.
/// @param volume          V, cfm or m3/hr
/// @param specificVolume  v, ft3/lb or m3/kg of dry air
/// @return                lb/min or kg/hr
/// @throws RunTimeError division by zero if v is 0; overflow
TaggedNumber DryAirFlow(Single volume, Single specificVolume);

/// The mean of two streams weighted by their flow of dry air, (x1 m1 + x2 m2) / (m2 + m1).
/// @param x1, x2  humidity ratio or enthalpy, both in the same unit
/// @throws RunTimeError division by zero if no dry air flows; overflow
TaggedNumber MeanByDryAir(Single x1, const TaggedNumber& m1, Single x2, const TaggedNumber& m2);
