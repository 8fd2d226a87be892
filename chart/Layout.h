#pragma once

#include "chart/Air.h"
#include "chart/Curves.h"
#include "chart/Labels.h"
#include "chart/Plane.h"
#include "chart/Runs.h"

#include <QFont>
#include <QSize>

namespace chart {

/// A state's point on the picture.
struct Mark
{
    QPointF place{};
    int number = 0; ///< in the legend, from 1
    Calculator calculator{};
    RunState state{};
};

/// Everything on the chart with its place, ready for painting.
struct Layout
{
    /// The chart of the last runs, in the units and at the pressure in force.
    Layout(const QSize& size, const QFont& widgetFont);

    Air air;
    std::vector<Run> runs;
    QFont font;
    Plane plane;
    std::vector<Curve> curves;
    std::vector<Mark> marks; ///< of the states in the plot
    Labels labels;

    QPointF placeOf(const RunState& state) const { return plane.at(state.Tdb, state.W); }

private:
    void addMarks();
};

} // namespace chart
