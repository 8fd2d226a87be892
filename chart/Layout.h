#pragma once

#include "chart/Air.h"
#include "chart/Curves.h"
#include "chart/Frame.h"
#include "chart/Labels.h"
#include "chart/Overlays.h"
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

/// The line between two states of a run, within the plot.
struct Process
{
    Calculator calculator{};
    QLineF line{};
    bool isDirected = false;
};

/// Everything on the chart and its position, ready for painting.
struct Layout
{
    /// The chart of the last runs, in the current units and at the current pressure.
    Layout(const QSizeF& ofPicture, const QFont& widgetFont, View lookedAt = {});

    QSizeF size;
    View view;
    Air air;
    std::vector<Run> runs;
    QFont font;
    Frame frame{};
    Plane plane{};
    QPolygonF airArea{}; ///< the part of the plot below saturation
    std::vector<Curve> curves{};
    std::vector<Curve> scales{}; ///< the lines and ticks of the scales outside the plot
    std::vector<ComfortZone> zones{};
    std::vector<HeatRatio> heatRatios{};
    std::vector<Process> processes{};
    std::vector<QLineF> crossHair{};
    std::vector<Mark> marks{}; ///< for the states and pins in the plot
    Labels labels;
    std::vector<Label> crossHairReading{}; ///< above everything else
    QRectF crossHairPanel{};

    QPointF placeOf(const RunState& state) const { return plane.at(state.Tdb, state.W); }
};

} // namespace chart
