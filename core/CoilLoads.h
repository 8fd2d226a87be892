#pragma once

#include "core/TaggedNumber.h"

// The loads of cooling and heating coils. Like the snapshots, their state outlives the screens.

/// -1 after an accepted entry of the air leaving a cooling coil; 0 after Cancel, after a refused entry, and
/// when the calculator opens.
inline Boolean16 LeavingAirAccepted = False16;
/// -1 if the accepted entry had a wet bulb.
inline Boolean16 LeavingWetBulbGiven = False16;

/// The cooling loads of the last calculation, Btu/h or kW.
inline TaggedNumber SensibleLoad;
inline TaggedNumber LatentLoad;
inline Single TotalLoad = 0;

/// Enthalpy of the condensate at the leaving wet bulb, Btu/lb or kJ/kg. Intentional: uses the first band of
/// the table that does NOT contain the wet bulb, which is always one of the first two.
Single CondensateEnthalpy(Single wetBulb);

/// Energy balance of the coil between CoolingEnteringAir (1) and CoolingLeavingAir (2), with the mass flow of
/// the entering air (total: ASHRAE Handbook of Fundamentals, cooling and dehumidification):
///     total    = m ((h1 - h2) - (W1 - W2) hc), or the sensible load if the coil is dry
///     sensible = 2 cp / (v1 + v2) V (t1 - t2)
///     latent   = total - sensible
/// in Btu/h (volume in cfm) or kW (m3/hr). Sets the three loads.
/// @throws RunTimeError division by zero if no entering air was saved; overflow
void CalculateCoolingLoads();

/// The heating load that was last shown, Btu/hr or kW, for the report.
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
