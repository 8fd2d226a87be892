#pragma once

#include "core/TaggedNumber.h"

/// The heating load as it stands after its last division, Btu/hr or kW, for the report. It outlasts the
/// screens, like HeatingLoadValue and the two snapshots.
inline Single HeatingLoadSingle = 0;

/// Mass flow of dry air of HeatingEnteringAir: 60 V / v in lb/hr, a double; V / v in kg/hr, a single.
/// @throws RunTimeError division by zero where no entering air was saved
TaggedNumber HeatingMassFlow();

/// Heat that the coil adds to HeatingEnteringAir on the way to HeatingLeavingAir.Tdb, at constant W:
///     load = (h(leaving) - h(entering)) m
/// Sets HeatingLoadValue, Btu/hr or kJ/hr, of the mass flow's kind.
/// @throws RunTimeError overflow
void CalculateHeatingLoad(const TaggedNumber& massFlow);
