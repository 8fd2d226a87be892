#pragma once

#include "core/TaggedNumber.h"

#include <string>

/// A moist-air state. Nothing marks a field as outdated: a solver overwrites only the fields that it
/// computes.
struct MoistAirState
{
    TaggedNumber Mu;           ///< degree of saturation, W / Ws
    TaggedNumber Grains;       ///< humidity ratio in grains per lb dry air; updated in English mode only
    TaggedNumber RH;           ///< relative humidity, 0 to 1; in percent until SolveFromRH converts it
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
    TaggedNumber Pw;           ///< partial pressure of the water vapor, psi or Pa
    TaggedNumber Twb;          ///< thermodynamic wet bulb, deg F or deg C
    Single Tdb = 0;            ///< dry bulb, deg F or deg C
};

/// A copy of a state, in the same units and without TAbs.
struct AirSnapshot
{
    Single AirVolume = 0;
    Single Mu = 0;
    Single Grains = 0;
    Single RH = 0;
    Single SpVol = 0;
    Single h = 0;
    Single PwsDew = 0;
    Single PwsWet = 0;
    Single Pws = 0;
    Single W = 0;
    Single ReservedSingle = 0;
    Single Ws = 0;
    Single WsWet = 0;
    Single td = 0;
    Single Pw = 0;
    Single Twb = 0;
    Single Tdb = 0;
    Single P = 0;

    /// Copies every field and converts tagged numbers to single.
    /// @throws RunTimeError type mismatch or overflow, also if airVolume holds text that is not a number
    static AirSnapshot of(const MoistAirState& state, const TaggedNumber& airVolume);
};

/// The working state of all calculators. It outlives the screens.
inline MoistAirState StatePoint;

/// The unit mode: 0 English (I-P), -1 Metric (SI). Every relation reads it.
inline Boolean16 UnitSystem = False16;
inline bool IsMetric() { return UnitSystem != False16; }

/// The default barometric pressure, in psi or kPa (not Pa).
inline Single BaroPressure = 0;

/// The last air volume entered, cfm or m3/hr. It can hold the text as typed; its readers convert it.
inline TaggedNumber AirVolume;
/// The volume that the air volume dialog offers, if above 0.
inline TaggedNumber AirVolumePreset;

/// The selected humidity item on the current screen: "Wetbulb", "Dew Point", "Rel", "W" or "Grains".
inline std::string HumiditySelector;

/// SolveFromW and SolveFromGrains set these to -1 if the air would be above saturation.
inline Boolean16 HumidityRatioTooHigh = False16;
inline Boolean16 GrainsTooHigh = False16;

/// The heating load. English: Btu/hr. Metric: kJ/hr until the heating screen divides it, then kW.
inline TaggedNumber HeatingLoadValue;

/// Cleared with the state and not used otherwise.
inline Single SpareSingle = 0;

// The saved states of the calculators. Each lasts until the next save replaces it.
inline AirSnapshot MixedOutsideAir;
inline AirSnapshot MixedReturnAir;
inline AirSnapshot MixedResultAir;
inline AirSnapshot CoolingEnteringAir;
inline AirSnapshot CoolingLeavingAir;
inline AirSnapshot HeatingEnteringAir;
inline AirSnapshot HeatingLeavingAir;
inline AirSnapshot HumidOutsideAir;
inline AirSnapshot HumidDesiredAir;

/// Sets the state, the air volume and the heating load to 0. Intentional: keeps the pressures of the last
/// calculation (P, Pw, Pws, PwsDew, PwsWet), Ws and WsWet, as well as the settings, the selector and the two
/// flags.
void ClearStatePoint();

/// Parses a text field. Empty text is 0; any other text must be a number in the user's locale.
/// @throws RunTimeError type mismatch, overflow
Single ParseSingle(const std::string& text);
