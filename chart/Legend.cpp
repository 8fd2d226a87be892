#include "chart/Legend.h"

#include "chart/Texts.h"

#include <algorithm>

namespace chart {
namespace {

constexpr double gap = 9;     // between the entries of a run
constexpr double runGap = 22; // between the runs of a line

} // namespace

Legend::Legend(const Air& air, const Plane& shown, const std::vector<Run>& runs, const QFontMetricsF& font)
    : pressure(air.pressure()), shownPlane(shown), metrics(font)
{
    lines.push_back({entry("At " + PressureText(pressure), std::nullopt)});
    int number = 1;
    for (const Run& run : runs)
        lines.push_back(lineOf(run, number));
}

Label Legend::entry(const QString& text, std::optional<Calculator> calculator) const
{
    return {
        .text = text, .size = {metrics.horizontalAdvance(text), metrics.height()}, .calculator = calculator};
}

/// Adds a note if the state is off the chart, or at another pressure: its wet bulb and relative humidity
/// can't be read off this chart.
QString Legend::nameOf(const RunState& state) const
{
    QString name = QString::fromStdString(state.name);
    if (state.P != pressure)
        name += " (at " + PressureText(state.P) + ")";
    if (!shownPlane.holds({state.Tdb, state.W}))
        name += " (off the chart)";
    return name;
}

Legend::Line Legend::lineOf(const Run& run, int& number) const
{
    Line line{entry(QString(TitleOf(run.calculator)) + ":", run.calculator)};
    for (const RunState& state : run.states)
        line.push_back(entry(QString::number(number++) + " " + nameOf(state), run.calculator));
    return line;
}

double Legend::widthOf(const Line& line) const
{
    double width = -gap;
    for (const Label& label : line)
        width += label.size.width() + gap;
    return width;
}

void Legend::place(const Line& line, QPointF topLeft, std::vector<Label>& labels) const
{
    for (Label label : line) {
        label.center = topLeft + QPointF(label.size.width(), label.size.height()) / 2;
        topLeft.rx() += label.size.width() + gap;
        labels.push_back(std::move(label));
    }
}

bool Legend::fitsCorner(const Air& air, const Plane& plane) const
{
    const double beside = metrics.horizontalAdvance("00000"); // for the labels at the saturation curve
    double bottom = plane.plot.top() + lineHeight;
    return std::all_of(lines.begin(), lines.end(), [&](const Line& line) {
        bottom += lineHeight;
        const double saturated = SaturatedTdb(air, plane.span.tdb, plane.placeAt({0, bottom}).W);
        return plane.plot.left() + widthOf(line) + beside < plane.at(saturated, 0).x();
    });
}

std::vector<Label> Legend::inCorner(const QRectF& plot) const
{
    std::vector<Label> labels;
    QPointF start = plot.topLeft();
    for (const Line& line : lines) {
        place(line, start, labels);
        start.ry() += lineHeight;
    }
    return labels;
}

std::vector<Label> Legend::inStrip(const QRectF& strip) const
{
    std::vector<Label> labels;
    QPointF start = strip.topLeft();
    for (const Line& line : lines) {
        if (start.x() > strip.left() && start.x() + widthOf(line) > strip.right())
            start = {strip.left(), start.y() + lineHeight};
        place(line, start, labels);
        start.rx() += widthOf(line) + runGap;
    }
    return labels;
}

double Legend::stripHeight(double width) const
{
    return inStrip({0, 0, width, 0}).back().center.y() + metrics.height();
}

} // namespace chart
