#pragma once

#include "core/TaggedNumber.h"

/// The heating load that was last shown, Btu/hr or kW, for the report. Like HeatingLoadValue and the two
/// snapshots, it outlives the screens.
inline Single HeatingLoadSingle = 0;

/// Mass flow of the dry air in HeatingEnteringAir: 60 V / v in lb/hr, a double, or V / v in kg/hr, a single.
/// @throws RunTimeError division by zero if no entering air was saved
TaggedNumber HeatingMassFlow();

/// Heat that the coil adds to bring HeatingEnteringAir to HeatingLeavingAir.Tdb at constant W (ASHRAE
/// Handbook of Fundamentals, moist air sensible heating):
///     load = (h(leaving) - h(entering)) m
/// Sets HeatingLoadValue, Btu/hr or kJ/hr, which has the kind of the mass flow.
/// @throws RunTimeError overflow
void CalculateHeatingLoad(const TaggedNumber& massFlow);
