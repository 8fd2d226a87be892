#include "core/LastRuns.h"

void KeepLastRun(Calculator calculator, std::initializer_list<NamedAir> states)
{
    LastRun& run = LastRuns.at(static_cast<std::size_t>(calculator));
    run = {calculator, UnitSystem, {}};
    for (const auto& [name, air] : states)
        run.states.push_back({name, air.Tdb, air.W, air.P});
    LastRunKept();
}
