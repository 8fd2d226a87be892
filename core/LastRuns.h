#pragma once

#include "core/StatePoint.h"

#include <array>
#include <initializer_list>
#include <string>
#include <vector>

/// The calculators, in the order of the main menu.
enum class Calculator
{
    AirProperties,
    MixedAir,
    Cooling,
    Heating,
    Humidification,
};

struct RunState
{
    std::string name; ///< its role in the calculator, for example "entering"
    Single Tdb = 0;   ///< deg F or deg C
    Single W = 0;     ///< lb/lb or kg/kg
    Single P = 0;     ///< psi or Pa

    friend bool operator==(const RunState&, const RunState&) = default;
};

/// The last run that a calculator completed.
struct LastRun
{
    Calculator calculator{};
    Boolean16 units = False16;    ///< the UnitSystem of the run
    std::vector<RunState> states; ///< empty before the first run

    friend bool operator==(const LastRun&, const LastRun&) = default;
};

/// One record for each calculator, in the order of the main menu. No calculation reads them.
inline std::array<LastRun, 5> LastRuns;

struct NamedAir
{
    const char* name;
    const AirSnapshot& air;
};

/// Called after a record was replaced, so that a chart on the screen follows. Does nothing by default.
inline void (*LastRunKept)() = [] {};

/// Replaces a calculator's record and nothing else. Called by the step that completes a run.
void KeepLastRun(Calculator calculator, std::initializer_list<NamedAir> states);
