#include "core/StatePoint.h"

#include "core/NumberText.h"

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

void ClearStatePoint()
{
    StatePoint.Mu = 0;
    StatePoint.Grains = 0;
    StatePoint.RH = 0;
    StatePoint.SpVol = 0;
    StatePoint.h = 0;
    StatePoint.W = 0;
    StatePoint.TAbs = 0;
    StatePoint.td = 0;
    StatePoint.Twb = 0;
    StatePoint.Tdb = 0;
    AirVolume = 0;
    HeatingLoadValue = 0;
    SpareSingle = 0;
}

Single ParseSingle(const std::string& text) { return text.empty() ? 0.0F : RoundToSingle(ParseDouble(text)); }
