#include "shell/chart/ChartLayout.h"

#include "shell/chart/ChartLegend.h"
#include "shell/chart/ChartNames.h"
#include "shell/chart/ChartTexts.h"

#include <QFontMetricsF>

#include <cmath>

namespace {

constexpr double fontPart = 0.85; // of the window's font

QFont smaller(const QFont& widgetFont)
{
    QFont font = widgetFont;
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * fontPart);
    else
        font.setPixelSize(static_cast<int>(std::lround(font.pixelSize() * fontPart)));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

ChartSpan spanOf(const std::vector<ChartRun>& runs)
{
    std::vector<QPointF> states;
    for (const ChartRun& run : runs) {
        for (const ChartState& state : run.states)
            states.emplace_back(state.tdb, state.w);
    }
    return ChartSpan::around(states);
}

/// The plot, on whole pixels, with room around it for the axes' figures and titles.
QRectF plotIn(const QSize& size, const QFontMetricsF& metrics)
{
    const double line = metrics.height();
    const double left = metrics.horizontalAdvance("-000");
    const double right = metrics.horizontalAdvance("0.0000") + line * 1.5 + ChartNames::axisGap;
    const QRectF plot(left, line * 1.4, size.width() - left - right, size.height() - line * 4.2);
    return plot.toAlignedRect().intersected(QRect(QPoint(0, 0), size));
}

/// Marks and lines come first: the curves' own labels keep off them.
void nameAll(ChartLayout& chart, const QFontMetricsF& metrics, const std::vector<ChartLabel>& legend)
{
    ChartNames names(chart.labels, chart.plane, metrics);
    for (const ChartLabel& label : legend)
        chart.labels.add(label);
    for (const ChartRun& run : chart.runs) {
        for (const ChartProcess& process : run.processes)
            names.avoidLine(chart.placeOf(run.states[process.from]), chart.placeOf(run.states[process.to]));
    }
    names.nameMarks(chart.marks);
    names.nameAxes();
    names.nameCurves(chart.curves);
}

} // namespace

ChartLayout::ChartLayout(const QSize& size, const QFont& widgetFont)
    : air(ChartAir::inForce()),
      runs(LastRuns()),
      font(smaller(widgetFont)),
      labels(QRectF(QPointF(0, 0), QSizeF(size)))
{
    const QFontMetricsF metrics(font);
    plane = {spanOf(runs), plotIn(size, metrics)};
    const ChartLegend legend(air, plane.span, runs, metrics);
    const QRectF whole = plane.plot;
    const bool isInCorner = legend.fitsCorner(air, plane);
    if (!isInCorner)
        plane.plot.setTop(std::ceil(whole.top() + legend.stripHeight(size.width())));
    if (plane.plot.width() < 1 || plane.plot.height() < 1)
        return; // no room to draw anything in

    curves = ChartCurves(air, plane);
    int number = 0;
    for (const ChartRun& run : runs) {
        for (const ChartState& state : run.states) {
            ++number;
            if (plane.span.holds(state.tdb, state.w))
                marks.push_back({placeOf(state), number, run.calculator, &state});
        }
    }
    const QRectF strip(2, 2, size.width() - 4, 0);
    nameAll(*this, metrics, isInCorner ? legend.inCorner(whole) : legend.inStrip(strip));
}
