#include "chart/Runs.h"

#include "chart/Air.h"

#include <algorithm>
#include <array>

namespace chart {
namespace {

/// Slightly above 1, because rounding can put saturated air there.
constexpr double highestRelativeHumidity = 1.0001;

/// A refused solution, or an entry that no solver refuses, can lie above saturation.
bool isAboveSaturation(const RunState& state)
{
    return Air(state.P).relativeHumidity(state.Tdb, state.W) > highestRelativeHumidity;
}

Run shown(const LastRun& last)
{
    Run run{last.calculator, last.states};
    std::erase_if(run.states, isAboveSaturation);
    run.isJoined = run.states.size() > 1 && run.states.size() == last.states.size();
    return run;
}

} // namespace

const char* TitleOf(Calculator calculator)
{
    constexpr std::array titles{"Air properties", "Mixed air", "Cooling", "Heating", "Humidification"};
    return titles.at(static_cast<std::size_t>(calculator));
}

QString NextLetter(const QString& letter)
{
    const QString front = letter.chopped(1);
    const QChar last = letter.back();
    if (last != 'Z')
        return front + QChar(last.unicode() + 1);
    return (front.isEmpty() ? QString("A") : NextLetter(front)) + "A";
}

std::vector<Run> ShownRuns()
{
    std::vector<Run> runs;
    for (const LastRun& last : LastRuns) {
        Run run = shown(last);
        if (last.units == UnitSystem && !run.states.empty())
            runs.push_back(std::move(run));
    }
    return runs;
}

} // namespace chart
