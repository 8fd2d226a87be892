#pragma once

#include "core/LastRuns.h"

#include <QString>

#include <vector>

namespace chart {

/// A calculator's last run as the chart shows it.
struct Run
{
    Calculator calculator{};
    std::vector<RunState> states; ///< without those above saturation
    bool isJoined = false;        ///< a line joins the first two states; never if a state was left out

    /// The line has an arrow.
    bool isDirected() const { return calculator != Calculator::MixedAir; }
};

const char* TitleOf(Calculator calculator);

/// The name of the next pin: "A" to "Z", then "AA".
QString NextLetter(const QString& letter);

/// The last runs in the current units, in the order of the main menu.
std::vector<Run> ShownRuns();

} // namespace chart
