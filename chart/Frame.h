#pragma once

#include "chart/Air.h"
#include "chart/Lettering.h"
#include "chart/View.h"

namespace chart {

constexpr double AxisGap = 4; ///< between an axis and its figures
constexpr double GrainsPerPound = 7000;
constexpr double Tick = 5; ///< length of a mark on a scale

/// Where everything around the plot has its place.
struct Frame
{
    QRectF plot;
    double tdbWidth = 0;       ///< of the figures of the dry and wet bulb
    double ratioWidth = 0;     ///< of the figures of the humidity ratio
    double grainsWidth = 0;    ///< of the figures of the grains
    bool hasWetBulb = false;   ///< figures outside saturation
    bool hasGrains = false;    ///< a second scale beside the humidity ratio
    bool hasEnthalpy = false;  ///< a scale beyond saturation
    bool hasColdScale = false; ///< also along the edge of the cold air
};

/// The largest plot, on whole pixels, with margins for the figures and titles of its scales.
/// @param area  of the picture, without its title, its legend and its table
Frame FrameIn(const QRectF& area, const Lettering& letters, const View& view, const Span& span,
              const Air& air);

/// Between saturation and the enthalpy scale, in the direction of this normal: space for a wet bulb figure.
double ScaleDistance(const QPointF& outward, const Lettering& letters, const Frame& frame);

} // namespace chart
