#include "chart/Layout.h"

#include "chart/Legend.h"
#include "chart/Names.h"

#include <QFontMetricsF>

#include <cmath>

namespace chart {
namespace {

constexpr double fontScale = 0.85; // times the size of the window's font

QFont smaller(const QFont& widgetFont)
{
    QFont font = widgetFont;
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * fontScale);
    else
        font.setPixelSize(static_cast<int>(std::lround(font.pixelSize() * fontScale)));
    font.setHintingPreference(QFont::PreferNoHinting); // most of the labels are rotated
    return font;
}

Span spanOf(const std::vector<Run>& runs, const View& view)
{
    std::vector<Place> places;
    for (const Run& run : runs) {
        for (const RunState& state : run.states)
            places.push_back({Ordinate(state.Tdb, state.W, view.switches.mollier), state.W});
    }
    return Span::around(places);
}

/// The plot, on whole pixels, with margins for the figures and titles of the axes.
QRectF plotIn(const QSizeF& size, const QFontMetricsF& metrics)
{
    const double line = metrics.height();
    const double left = metrics.horizontalAdvance("-000");
    const double right = metrics.horizontalAdvance("0.0000") + line * 1.5 + axisGap;
    const QRectF plot(left, line * 1.4, size.width() - left - right, size.height() - line * 4.2);
    return plot.toAlignedRect().intersected(QRect(QPoint(0, 0), size.toSize()));
}

/// Marks and process lines come first, so that the names of the curves avoid them.
void addLabels(Layout& chart, const QFontMetricsF& metrics, const std::vector<Label>& legend)
{
    for (const Label& label : legend)
        chart.labels.add(label);
    for (const Run& run : chart.runs) {
        if (run.isJoined)
            chart.labels.avoid({chart.placeOf(run.states[0]), chart.placeOf(run.states[1])});
    }
    AddNames(chart, metrics);
}

} // namespace

Layout::Layout(const QSizeF& ofPicture, const QFont& widgetFont, const View& lookedAt)
    : size(ofPicture),
      view(lookedAt),
      air(Air::inForce()),
      runs(ShownRuns()),
      font(smaller(widgetFont)),
      labels(QRectF(QPointF(0, 0), size))
{
    const QFontMetricsF metrics(font);
    const Span span = view.zoom ? view.zoom->clamped() : spanOf(runs, view);
    plane = {span, plotIn(size, metrics), view.switches.mollier};
    const Legend legend(air, plane, runs, metrics);
    const QRectF whole = plane.plot;
    const bool isInCorner = legend.fitsCorner(air, plane);
    if (!isInCorner)
        plane.plot.setTop(std::ceil(whole.top() + legend.stripHeight(size.width())));
    if (plane.plot.width() < 1 || plane.plot.height() < 1)
        return; // too small for a chart

    curves = TraceCurves(air, plane);
    addMarks();
    const QRectF strip(2, 2, size.width() - 4, 0);
    addLabels(*this, metrics, isInCorner ? legend.inCorner(whole) : legend.inStrip(strip));
}

void Layout::addMarks()
{
    int number = 0;
    for (const Run& run : runs) {
        for (const RunState& state : run.states) {
            ++number;
            if (plane.holds({state.Tdb, state.W}))
                marks.push_back({placeOf(state), QString::number(number), run.calculator, state});
        }
    }
    QString letter = "A";
    for (const Place& pin : view.pins) {
        const RunState state{"", static_cast<Single>(pin.Tdb), static_cast<Single>(pin.W), air.pressure()};
        if (plane.holds(pin))
            marks.push_back({plane.at(pin), letter, std::nullopt, state});
        letter = NextLetter(letter);
    }
}

} // namespace chart
