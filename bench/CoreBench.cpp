// The cost of a moist-air state: the complete state from each of the five items in both unit modes, and the
// wet bulb search and its plain form.

#include "core/MainMod.h"
#include "tests/core/PlainForms.h"

#include <benchmark/benchmark.h>

#include <random>
#include <vector>

namespace {

constexpr int SampleSize = 4096; // too many for the processor to predict the branches of a search

/// Solved states over the usual range of the screens.
std::vector<MoistAirState> sample()
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
        states.push_back(StatePoint);
    }
    return states;
}

void setMode(benchmark::State& state)
{
    UnitSystem = state.range(0) != 0 ? True16 : False16;
    state.SetLabel(IsMetric() ? "Metric" : "English");
}

using StateItem = TaggedNumber MoistAirState::*;

/// Solves the complete state from one item, taken from a solved state.
void solveFrom(benchmark::State& state, StateItem item, void (*solve)())
{
    setMode(state);
    std::vector<MoistAirState> states = sample();
    if (item == &MoistAirState::RH) {
        for (MoistAirState& each : states)
            each.RH = (each.RH * 100).asSingle();
    }
    std::size_t i = 0;
    for ([[maybe_unused]] auto _ : state) {
        const MoistAirState& given = states[i++ % SampleSize];
        StatePoint.Tdb = given.Tdb;
        StatePoint.*item = (given.*item).asSingle();
        solve();
        benchmark::DoNotOptimize(StatePoint);
    }
}

void searchStates(benchmark::State& state, Single (*search)(Single, Single, Single))
{
    setMode(state);
    const std::vector<MoistAirState> states = sample();
    std::size_t i = 0;
    for ([[maybe_unused]] auto _ : state) {
        const MoistAirState& air = states[i++ % SampleSize];
        benchmark::DoNotOptimize(search(air.Tdb, air.W.asSingle(), air.P.asSingle()));
    }
}

} // namespace

BENCHMARK_CAPTURE(solveFrom, Grains, &MoistAirState::Grains, SolveFromGrains)->Arg(0); // English only
BENCHMARK_CAPTURE(solveFrom, W, &MoistAirState::W, SolveFromW)->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(solveFrom, WetBulb, &MoistAirState::Twb, SolveFromWetBulb)->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(solveFrom, DewPoint, &MoistAirState::td, SolveFromDewPoint)->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(solveFrom, RH, &MoistAirState::RH, SolveFromRH)->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(searchStates, Fast, SolveWetBulb)->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(searchStates, Plain, PlainSolveWetBulb)->Arg(0)->Arg(1);

BENCHMARK_MAIN();
