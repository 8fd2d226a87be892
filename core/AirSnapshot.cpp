#include "core/AirSnapshot.h"

// Braced initializers are evaluated in the order of the fields, so the air volume is converted first and may
// throw.
AirSnapshot AirSnapshot::of(const MoistAirState& state, const TaggedNumber& airVolume)
{
    return {.AirVolume = airVolume.asSingle(),
            .Mu = state.Mu.asSingle(),
            .Grains = state.Grains.asSingle(),
            .RH = state.RH.asSingle(),
            .SpVol = state.SpVol.asSingle(),
            .h = state.h,
            .PwsDew = state.PwsDew.asSingle(),
            .PwsWet = state.PwsWet.asSingle(),
            .Pws = state.Pws.asSingle(),
            .W = state.W.asSingle(),
            .ReservedSingle = state.ReservedSingle,
            .Ws = state.Ws.asSingle(),
            .WsWet = state.WsWet,
            .td = state.td.asSingle(),
            .Pw = state.Pw.asSingle(),
            .Twb = state.Twb.asSingle(),
            .Tdb = state.Tdb,
            .P = state.P.asSingle()};
}
