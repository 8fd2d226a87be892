#pragma once

#include "chart/Air.h"
#include "chart/Plane.h"

#include <QPolygonF>

#include <vector>

namespace chart {

enum class Family
{
    DryBulb,
    HumidityRatio,
    SpecificVolume,
    WetBulb,
    RelativeHumidity,
    Saturation,
};

/// A curve of constant value as points of the picture, from left to right. It can extend beyond the plot by
/// less than a step.
struct Curve
{
    Family family{};
    double value = 0; ///< percent for relative humidity, otherwise in the units of the chart
    QPolygonF line;
};

/// All curves that fit the plot, in the order of painting.
std::vector<Curve> TraceCurves(const Air& air, const Plane& plane);

/// The dry bulb within an axis at which air with humidity ratio w is saturated; the high end if there is
/// none.
double SaturatedTdb(const Air& air, const Axis& tdb, double w);

} // namespace chart
