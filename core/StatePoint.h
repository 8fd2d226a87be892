#pragma once

#include "core/TaggedNumber.h"

#include <string>

/// A moist-air state. No field says whether it is current: a solver overwrites the fields that it computes.
struct MoistAirState
{
    TaggedNumber Mu;           ///< degree of saturation, W / Ws
    TaggedNumber Grains;       ///< humidity ratio in grains per lb dry air; kept up in English mode only
    TaggedNumber RH;           ///< relative humidity, 0 to 1; a percentage until SolveFromRH has read it
    TaggedNumber SpVol;        ///< specific volume, ft3/lb or m3/kg of dry air
    Single h = 0;              ///< enthalpy, Btu/lb or kJ/kg of dry air
    TaggedNumber PwsDew;       ///< saturation pressure at td, psi or Pa
    TaggedNumber PwsWet;       ///< saturation pressure at Twb, psi or Pa
    TaggedNumber Pws;          ///< saturation pressure at Tdb, psi or Pa
    TaggedNumber W;            ///< humidity ratio, lb/lb or kg/kg
    Single ReservedSingle = 0; ///< never assigned
    TaggedNumber Ws;           ///< humidity ratio at saturation at Tdb
    Single WsWet = 0;          ///< humidity ratio at saturation at Twb
    Single TAbs = 0;           ///< Tdb on the absolute scale, degrees Rankine or kelvin
    TaggedNumber td;           ///< dew point, deg F or deg C
    TaggedNumber P;            ///< barometric pressure, psi or Pa
    TaggedNumber Pw;           ///< partial pressure of the water vapour, psi or Pa
    TaggedNumber Twb;          ///< thermodynamic wet bulb, deg F or deg C
    Single Tdb = 0;            ///< dry bulb, deg F or deg C
};

/// The state that the whole calculator works on. It outlasts the screens.
inline MoistAirState StatePoint;

/// The unit mode: 0 English (I-P), -1 Metric (SI). Every relation asks it for itself.
inline Boolean16 UnitSystem = False16;
inline bool IsMetric() { return UnitSystem != False16; }

/// The default barometric pressure, in psi or kPa (not Pa).
inline Single BaroPressure = 0;

/// The air volume last entered, cfm or m3/hr. It may hold the text as typed: its readers convert it.
inline TaggedNumber AirVolume;
/// What the air volume dialog offers, when above 0.
inline TaggedNumber AirVolumePreset;

/// The humidity item in force on the current screen: "Wetbulb", "Dew Point", "Rel", "W" or "Grains".
inline std::string HumiditySelector;

/// Set to -1 by SolveFromW and SolveFromGrains where the air would be above saturation.
inline Boolean16 HumidityRatioTooHigh = False16;
inline Boolean16 GrainsTooHigh = False16;

/// The heating load: Btu/hr in English; in Metric kJ/hr until the heating screen has divided it, then kW.
inline TaggedNumber HeatingLoadValue;

/// Cleared with the state and used by nothing else.
inline Single SpareSingle = 0;

/// Zeroes what a screen shows and enters. The pressures of the last calculation (P, Pw, Pws, PwsDew, PwsWet),
/// Ws and WsWet stay on purpose, and so do the settings, the selector and the two flags.
void ClearStatePoint();

/// Reads a text field: an empty text is 0, any other must be a number in the user's locale.
/// @throws RunTimeError type mismatch, overflow
Single ParseSingle(const std::string& text);
