#pragma once

#include "core/MainMod.h"

#include <random>
#include <vector>

constexpr int SampleSize = 4096; // too many for the processor to predict the branches of a search

/// Solved states over the usual range of the screens in the current units, with the relative humidity in
/// percent, as it is entered.
inline std::vector<MoistAirState> SampleOfStates()
{
    std::mt19937 random(1);
    std::uniform_real_distribution<Single> dryBulb(IsMetric() ? 0.0F : 35.0F, IsMetric() ? 45.0F : 115.0F);
    std::uniform_real_distribution<Single> percent(5.0F, 95.0F);
    std::vector<MoistAirState> states;
    for (int i = 0; i < SampleSize; ++i) {
        StatePoint = {};
        StatePoint.Tdb = dryBulb(random);
        StatePoint.P = IsMetric() ? 101325.0F : 14.696F;
        StatePoint.RH = percent(random);
        SolveFromRH();
        StatePoint.RH = (StatePoint.RH * 100).asSingle();
        states.push_back(StatePoint);
    }
    return states;
}

using StateItem = TaggedNumber MoistAirState::*;
