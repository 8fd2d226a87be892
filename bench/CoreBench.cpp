// The cost of a moist-air state: the complete state from each of the five items in both unit modes, and the
// wet bulb search and its plain form.

#include "bench/Sample.h"
#include "tests/core/PlainForms.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

void setMode(benchmark::State& state)
{
    UnitSystem = state.range(0) != 0 ? True16 : False16;
    state.SetLabel(IsMetric() ? "Metric" : "English");
}

/// Solves the complete state from one item, taken from a solved state.
void solveFrom(benchmark::State& state, StateItem item, void (*solve)())
{
    setMode(state);
    const std::vector<MoistAirState> states = SampleOfStates();
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
    const std::vector<MoistAirState> states = SampleOfStates();
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
