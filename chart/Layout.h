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

/// Everything on the chart and its position, ready for painting.
struct Layout
{
    /// The chart of the last runs, in the current units and at the current pressure.
    Layout(const QSize& size, const QFont& widgetFont);

    Air air;
    std::vector<Run> runs;
    QFont font;
    Plane plane;
    std::vector<Curve> curves;
    std::vector<Mark> marks; ///< for the states in the plot
    Labels labels;

    QPointF placeOf(const RunState& state) const { return plane.at(state.Tdb, state.W); }

private:
    void addMarks();
};

} // namespace chart
