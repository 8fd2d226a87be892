#pragma once

#include "chart/Air.h"
#include "chart/Curves.h"
#include "chart/Labels.h"
#include "chart/Plane.h"
#include "chart/Runs.h"
#include "chart/View.h"

#include <QFont>
#include <QSizeF>

namespace chart {

/// A state's point on the picture, or a pin's.
struct Mark
{
    QPointF place{};
    QString name{};                         ///< in the legend: "1", "2"... for states, "A", "B"... for pins
    std::optional<Calculator> calculator{}; ///< empty for a pin
    RunState state{};                       ///< for a pin, at the chart's pressure and without a name
};

/// Everything on the chart and its position, ready for painting.
struct Layout
{
    /// The chart of the last runs, in the current units and at the current pressure.
    Layout(const QSizeF& size, const QFont& widgetFont, const View& lookedAt = {});

    QSizeF size;
    View view;
    Air air;
    std::vector<Run> runs;
    QFont font;
    Plane plane;
    std::vector<Curve> curves;
    std::vector<Mark> marks; ///< for the states and pins in the plot
    Labels labels;

    QPointF placeOf(const RunState& state) const { return plane.at(state.Tdb, state.W); }

private:
    void addMarks();
};

} // namespace chart
