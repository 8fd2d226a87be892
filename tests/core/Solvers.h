#pragma once

#include "tests/core/CoreTest.h"

#include <functional>

using EnglishSolvers = EnglishCore;
using MetricSolvers = MetricCore;

inline void SetAir(Single Tdb, Single P)
{
    StatePoint.Tdb = Tdb;
    StatePoint.P = P;
}

inline void SolveRH(Single Tdb, Single P, Single percent)
{
    SetAir(Tdb, P);
    StatePoint.RH = percent;
    SolveFromRH();
}

/// Sets every field to a value that no solver would give it.
inline void Litter()
{
    for (TaggedNumber* field : {&StatePoint.Mu, &StatePoint.Grains, &StatePoint.RH, &StatePoint.SpVol,
                                &StatePoint.PwsDew, &StatePoint.PwsWet, &StatePoint.Pws, &StatePoint.W,
                                &StatePoint.Ws, &StatePoint.td, &StatePoint.Pw, &StatePoint.Twb})
        *field = "stale";
    StatePoint.h = StatePoint.WsWet = StatePoint.TAbs = -999.0F;
}

inline bool IsStale(const TaggedNumber& field) { return field.kind() == NumberKind::Text; }
