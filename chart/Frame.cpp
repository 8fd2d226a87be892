#include "chart/Frame.h"

#include "chart/Texts.h"
#include "core/StatePoint.h"

#include <QMarginsF>

#include <algorithm>
#include <cmath>

namespace chart {
namespace {

constexpr double leastForScales = 330; // pixels; smaller pictures have only the two axes
constexpr double curveGap = 3;

/// The part of the cold edge of the plot that is below saturation: there the oblique lines enter the plot.
double partOfColdEdge(const Span& span, const Air& air)
{
    return (std::min(air.saturated(span.tdb.low), span.w.high) - span.w.low) / span.w.length();
}

double widestFigure(const Axis& axis, double step, const Lettering& letters)
{
    const int decimals = std::max(0, static_cast<int>(std::ceil(-std::log10(step) - 1e-6)));
    return std::max(letters.width(FormatFigure(axis.low, decimals)),
                    letters.width(FormatFigure(axis.high, decimals)));
}

/// The width or height of the figures of the oblique families beside an edge.
double beside(const QPointF& outward, const Lettering& letters, const Frame& frame, bool hasScale)
{
    const double row = std::fabs(outward.x()) * std::max(letters.width("-000"), frame.tdbWidth + 2) +
                       std::fabs(outward.y()) * letters.height();
    return hasScale ? ScaleDistance(outward, letters, frame) + Tick + row + 2 : row + curveGap;
}

QMarginsF psychrometric(const Frame& frame, const Lettering& letters)
{
    const double line = letters.height();
    const double grains = frame.hasGrains ? frame.grainsWidth + Tick + AxisGap + 2 : 0;
    return {beside({-1, 0}, letters, frame, frame.hasColdScale),
            beside({0, -1}, letters, frame, frame.hasEnthalpy) + (frame.hasColdScale ? 1.4 : 0.3) * line,
            frame.ratioWidth + line * 1.3 + AxisGap + grains, line * 2.8};
}

QMarginsF mollier(const Frame& frame, const Lettering& letters)
{
    const double line = letters.height();
    const double grains = frame.hasGrains ? line + Tick + 2 : 0;
    return {frame.tdbWidth + line * 1.3 + AxisGap + 8, line * 2.8 + AxisGap + grains,
            beside({1, 0}, letters, frame, frame.hasEnthalpy),
            beside({0, 1}, letters, frame, frame.hasColdScale) + (frame.hasColdScale ? 1.4 : 0.3) * line};
}

void measureFigures(Frame& frame, const QRectF& area, const Lettering& letters, const View& view,
                    const Span& span)
{
    const QSizeF along = view.switches.mollier ? area.size().transposed() : area.size();
    frame.tdbWidth =
        std::max(widestFigure(span.tdb, span.tdb.step(along.width(), 34), letters), letters.width("-00"));
    const double unit = IsMetric() ? 1000 : 1;
    const Axis ratio{span.w.low * unit, span.w.high * unit};
    const Axis grains{span.w.low * GrainsPerPound, span.w.high * GrainsPerPound};
    frame.grainsWidth = widestFigure(grains, grains.step(along.height(), 26), letters) + 5;
    frame.ratioWidth = widestFigure(ratio, ratio.step(along.height(), 34), letters) + 6;
}

} // namespace

double ScaleDistance(const QPointF& outward, const Lettering& letters, const Frame& frame)
{
    if (!frame.hasWetBulb)
        return 2 * curveGap;
    return std::fabs(outward.x()) * (frame.tdbWidth + 3) + std::fabs(outward.y()) * letters.height() +
           2 * curveGap;
}

Frame FrameIn(const QRectF& area, const Lettering& letters, const View& view, const Span& span,
              const Air& air)
{
    constexpr double leastForTwoRows = 0.25;
    const bool isLarge = std::min(area.width(), area.height()) >= leastForScales;
    Frame frame;
    frame.hasWetBulb = view.switches.wetBulb;
    frame.hasGrains = isLarge && !IsMetric();
    frame.hasEnthalpy = isLarge && view.switches.enthalpy && air.isDefined();
    frame.hasColdScale = frame.hasEnthalpy && partOfColdEdge(span, air) > leastForTwoRows;
    measureFigures(frame, area, letters, view, span);
    const auto& marginsOf = view.switches.mollier ? mollier : psychrometric;
    const QRectF plot = area.marginsRemoved(marginsOf(frame, letters));
    frame.plot = plot.isValid() ? QRectF(plot.toAlignedRect()) & area : QRectF();
    return frame;
}

} // namespace chart
