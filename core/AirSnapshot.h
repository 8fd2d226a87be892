#pragma once

#include "core/StatePoint.h"

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
