#include "chart/Frame.h"

#include "core/StatePoint.h"

#include <QMarginsF>

#include <algorithm>
#include <cmath>

namespace chart {
namespace {

constexpr double leastForScales = 330; // pixels; smaller pictures have only the required axes
constexpr double curveGap = 3;

/// The part of the cold edge of the plot that is below saturation: there the oblique lines enter the plot.
double partOfColdEdge(const Span& span, const Air& air)
{
    return (std::min(air.saturated(span.tdb.low), span.w.high) - span.w.low) / span.w.length();
}

/// The width or height of the figures of the oblique families beside an edge.
double beside(const QPointF& outward, const Lettering& letters, const View& view, bool hasScale)
{
    const double row = std::fabs(outward.x()) * letters.width("-000") + std::fabs(outward.y()) * letters.height();
    return hasScale ? ScaleDistance(outward, letters, view) + Tick + row + 2 : row + curveGap;
}

QMarginsF psychrometric(const Frame& frame, const Lettering& letters, const View& view)
{
    const double line = letters.height();
    const double grains = frame.hasGrains ? letters.width("0000") + Tick + AxisGap + 2 : 0;
    return {beside({-1, 0}, letters, view, frame.hasColdScale),
            beside({0, -1}, letters, view, frame.hasEnthalpy) + 0.3 * line,
            letters.width("0.0000") + line * 1.5 + AxisGap + grains, line * 2.8};
}

QMarginsF mollier(const Frame& frame, const Lettering& letters, const View& view)
{
    const double line = letters.height();
    const double grains = frame.hasGrains ? line + Tick + 2 : 0;
    return {letters.width("-000") + line * 1.5 + AxisGap, line * 2.6 + AxisGap + grains,
            beside({1, 0}, letters, view, frame.hasEnthalpy),
            beside({0, 1}, letters, view, frame.hasColdScale) + 0.3 * line};
}

} // namespace

double ScaleDistance(const QPointF& outward, const Lettering& letters, const View& view)
{
    if (!view.switches.wetBulb)
        return 2 * curveGap;
    return std::fabs(outward.x()) * (letters.width("-00") + 2) + std::fabs(outward.y()) * letters.height() +
           2 * curveGap;
}

Frame FrameIn(const QRectF& area, const Lettering& letters, const View& view, const Span& span,
              const Air& air)
{
    constexpr double leastForTwoRows = 0.25;
    const bool isLarge = std::min(area.width(), area.height()) >= leastForScales;
    Frame frame;
    frame.hasGrains = isLarge && !IsMetric();
    frame.hasEnthalpy = isLarge && view.switches.enthalpy && air.isDefined();
    frame.hasColdScale = frame.hasEnthalpy && partOfColdEdge(span, air) > leastForTwoRows;
    const auto& marginsOf = view.switches.mollier ? mollier : psychrometric;
    const QRectF plot = area.marginsRemoved(marginsOf(frame, letters, view));
    frame.plot = plot.isValid() ? QRectF(plot.toAlignedRect()) & area : QRectF();
    return frame;
}

} // namespace chart
