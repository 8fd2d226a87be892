#pragma once

#include "shell/chart/ChartAir.h"
#include "shell/chart/ChartCurves.h"
#include "shell/chart/ChartLabels.h"
#include "shell/chart/ChartPlane.h"
#include "shell/chart/ChartStates.h"

#include <QFont>
#include <QSize>

/// A state's place on the picture.
struct ChartMark
{
    QPointF place{};
    int number = 0; ///< in the legend, from 1
    std::size_t calculator = 0;
    const ChartState* state = nullptr;
};

/// All that stands on the chart, laid out but not yet painted.
struct ChartLayout
{
    /// The chart of the units, the pressure and the last runs in force, for a picture of that size.
    ChartLayout(const QSize& size, const QFont& widgetFont);
    ChartLayout(const ChartLayout&) = delete; // the marks point into the runs
    ChartLayout& operator=(const ChartLayout&) = delete;

    ChartAir air;
    std::vector<ChartRun> runs;
    QFont font;
    ChartPlane plane;
    std::vector<ChartCurve> curves;
    std::vector<ChartMark> marks; ///< of the states in the plot
    ChartLabels labels;

    /// The place of a state of a run.
    QPointF placeOf(const ChartState& state) const { return plane.at(state.tdb, state.w); }
};
