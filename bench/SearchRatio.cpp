// bench_search: the processor time of a complete state, divided by the time of the same state with the plain
// wet bulb search. Both are measured in turn, round by round, so that other load on the machine affects both
// alike.

#include "bench/Quantiles.h"
#include "bench/Sample.h"
#include "core/Relations.h"
#include "core/Solvers.h"
#include "core/WetBulbSearch.h"
#include "tests/core/PlainForms.h"

#include <cstdio>
#include <ctime>

// The same solvers with the plain search. Their headers are included above.
namespace plain {
#define SolveWetBulb PlainSolveWetBulb
#include "core/Solvers.cpp" // NOLINT(bugprone-suspicious-include)
#undef SolveWetBulb
} // namespace plain

namespace {

constexpr int Rounds = 101;

struct Item
{
    const char* title;
    StateItem item;
    void (*solve)();
    void (*solvePlain)();
    bool isEnglishOnly;
};

const Item Items[] = {
    {"relative humidity", &MoistAirState::RH, SolveFromRH, plain::SolveFromRH, false},
    {"dew point", &MoistAirState::td, SolveFromDewPoint, plain::SolveFromDewPoint, false},
    {"humidity ratio", &MoistAirState::W, SolveFromW, plain::SolveFromW, false},
    {"grains", &MoistAirState::Grains, SolveFromGrains, plain::SolveFromGrains, true},
    {"wet bulb", &MoistAirState::Twb, SolveFromWetBulb, plain::SolveFromWetBulb, false}, // has no search
};

/// The processor time of this process so far, which excludes the time of other programs.
double nanoseconds()
{
    timespec used{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) * 1e9 + static_cast<double>(used.tv_nsec);
}

/// Nanoseconds per state.
double timeOf(const std::vector<MoistAirState>& states, StateItem item, void (*solve)())
{
    const double start = nanoseconds();
    for (const MoistAirState& given : states) {
        StatePoint.Tdb = given.Tdb;
        StatePoint.*item = (given.*item).asSingle();
        solve();
    }
    return (nanoseconds() - start) / SampleSize;
}

void measure(const std::vector<MoistAirState>& states, const Item& each)
{
    std::vector<double> times;
    std::vector<double> plainTimes;
    std::vector<double> ratios;
    for (int round = 0; round < Rounds; ++round) {
        times.push_back(timeOf(states, each.item, each.solve));
        plainTimes.push_back(timeOf(states, each.item, each.solvePlain));
        ratios.push_back(times.back() / plainTimes.back());
    }
    std::printf("  %-18s %8.0f %8.0f %8.3f  (%.3f - %.3f)\n", each.title, Median(times), Median(plainTimes),
                Median(ratios), Quantile(ratios, 0.25), Quantile(ratios, 0.75));
}

} // namespace

int main()
{
    for (const Boolean16 mode : {False16, True16}) {
        UnitSystem = mode;
        std::printf("State, %-12s %8s %8s %8s  (quartiles), %d rounds\n", IsMetric() ? "Metric" : "English",
                    "ns", "plain ns", "ratio", Rounds);
        const std::vector<MoistAirState> states = SampleOfStates();
        for (const Item& each : Items) {
            if (!each.isEnglishOnly || !IsMetric())
                measure(states, each);
        }
    }
}
