#pragma once

#include "shell/chart/ChartAir.h"
#include "shell/chart/ChartPlane.h"

#include <QPolygonF>

#include <vector>

enum class ChartFamily
{
    DryBulb,
    HumidityRatio,
    SpecificVolume,
    WetBulb,
    RelativeHumidity,
    Saturation,
};

/// A curve of one value of its family, as places on the picture from its left end to its right end. It may
/// leave the plot by less than a step.
struct ChartCurve
{
    ChartFamily family{};
    double value = 0; ///< a relative humidity in percent, all others in the unit of the chart
    QPolygonF line;
};

/// All curves that the plot has room for, quiet families first, from the relations.
std::vector<ChartCurve> ChartCurves(const ChartAir& air, const ChartPlane& plane);

/// The dry bulb in a span at which air of that humidity ratio is saturated; an end of the span where it is
/// saturated, or not yet, all over.
double SaturatedTdb(const ChartAir& air, const ChartAxis& tdb, double w);
