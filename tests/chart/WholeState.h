#pragma once

#include "core/MainMod.h"

#include <sstream>
#include <string>

/// The calculator's complete state, with all bits and kinds.
inline std::string wholeState()
{
    std::ostringstream all;
    all << std::hexfloat;
    const MoistAirState& s = StatePoint;
    const TaggedNumber* const tagged[] = {
        &s.Mu, &s.Grains, &s.RH, &s.SpVol, &s.PwsDew, &s.PwsWet,  &s.Pws,           &s.W,
        &s.Ws, &s.td,     &s.P,  &s.Pw,    &s.Twb,    &AirVolume, &AirVolumePreset, &HeatingLoadValue};
    for (const TaggedNumber* number : tagged) {
        all << static_cast<int>(number->kind()) << ' ' << number->text() << ' ';
        if (number->kind() != NumberKind::Text)
            all << number->asDouble() << '\n';
    }
    for (const Single number : {s.h, s.ReservedSingle, s.WsWet, s.TAbs, s.Tdb, BaroPressure, SpareSingle})
        all << number << '\n';
    all << UnitSystem << HumidityRatioTooHigh << GrainsTooHigh << HumiditySelector << '\n';
    for (const AirSnapshot* air :
         {&MixedOutsideAir, &MixedReturnAir, &MixedResultAir, &CoolingEnteringAir, &CoolingLeavingAir,
          &HeatingEnteringAir, &HeatingLeavingAir, &HumidOutsideAir, &HumidDesiredAir})
        all.write(reinterpret_cast<const char*>(air), sizeof *air);
    return all.str();
}
