#pragma once

#include "core/StatePoint.h"

/// A frozen copy of a state. Units are those of the state; TAbs is not kept.
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

    /// Copies every field, tagged numbers converted to single.
    /// @throws RunTimeError type mismatch or overflow, also from an air volume that holds a text
    static AirSnapshot of(const MoistAirState& state, const TaggedNumber& airVolume);
};

// The states that the calculators keep, each until the next one of its name is saved.
inline AirSnapshot MixedOutsideAir;
inline AirSnapshot MixedReturnAir;
inline AirSnapshot MixedResultAir;
inline AirSnapshot CoolingEnteringAir;
inline AirSnapshot CoolingLeavingAir;
inline AirSnapshot HeatingEnteringAir;
inline AirSnapshot HeatingLeavingAir;
inline AirSnapshot HumidOutsideAir;
inline AirSnapshot HumidDesiredAir;
