#pragma once

#include "core/Single.h"

#include <cstddef>
#include <string>
#include <vector>

/// A state that a calculator found.
struct ChartState
{
    std::string name;    ///< what it is to its calculator
    Single tdb = 0;      ///< deg F or deg C
    Single w = 0;        ///< lb/lb or kg/kg
    Single pressure = 0; ///< that it was found at, psi or Pa

    friend bool operator==(const ChartState&, const ChartState&) = default;
};

/// Two states of a calculator that a process joins.
struct ChartProcess
{
    std::size_t from = 0;
    std::size_t to = 0;
    bool isDirected = false; ///< the air goes from the one to the other

    friend bool operator==(const ChartProcess&, const ChartProcess&) = default;
};

/// The last run of one calculator.
struct ChartRun
{
    std::size_t calculator = 0; ///< in the order of the main menu
    std::string title;
    std::vector<ChartState> states;
    std::vector<ChartProcess> processes;

    friend bool operator==(const ChartRun&, const ChartRun&) = default;
};

/// The last runs of the calculators, from the states that they keep. A state counts when the relations of the
/// units in force give back its enthalpy and its specific volume to the bit: so none is shown that was never
/// solved, that a refusal left half written, that belongs to the other units, or that lies above saturation.
std::vector<ChartRun> LastRuns();

/// Keeps the state for the chart. The air properties calculator keeps none of its own, and the next
/// calculator clears the one it solved.
void KeepAirProperties();
