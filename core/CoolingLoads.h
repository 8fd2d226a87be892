#pragma once

#include "core/TaggedNumber.h"

// The cooling coil calculation's own state. It outlasts the screens, like the two snapshots it works on.

/// -1 when an entry of leaving air was accepted; 0 after Cancel, after a refused entry, and whenever the
/// calculator opens.
inline Boolean16 LeavingAirAccepted = False16;
/// -1 when the accepted entry came with a wet bulb.
inline Boolean16 LeavingWetBulbGiven = False16;

/// The loads of the last calculation, Btu/h or kW.
inline TaggedNumber SensibleLoad;
inline TaggedNumber LatentLoad;
inline Single TotalLoad = 0;

/// What a unit mass of condensate carries off at the leaving wet bulb, Btu/lb or kJ/kg: the value of the
/// first band of the table that does NOT hold the wet bulb. That is the required rule; it only ever takes one
/// of the first two bands.
Single CondensateEnthalpy(Single wetBulb);

/// Energy balance of the coil on CoolingEnteringAir (1) and CoolingLeavingAir (2), mass flow referred to the
/// entering air:
///     total    = m ((h1 - h2) - (W1 - W2) hc), or the sensible load where the coil stays dry
///     sensible = 2 cp / (v1 + v2) V (t1 - t2)
///     latent   = total - sensible
/// in Btu/h (volume in cfm) or kW (m3/hr). Sets the three loads.
/// @throws RunTimeError division by zero where no entering air has a specific volume; overflow
void CalculateCoolingLoads();
