#include "shell/chart/ChartLegend.h"

#include "shell/chart/ChartTexts.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double gap = 9;        // between the entries of a line
constexpr double runGap = 22;    // between runs on a line
constexpr double lineStep = 1.3; // of the height of the text

} // namespace

ChartLegend::ChartLegend(const ChartAir& air, const ChartSpan& shown, const std::vector<ChartRun>& runs,
                         const QFontMetricsF& font)
    : pressure(air.pressure()), span(shown), metrics(font)
{
    lines.push_back({entry("At " + PressureText(pressure), std::nullopt)});
    int number = 1;
    for (const ChartRun& run : runs)
        lines.push_back(lineOf(run, number));
}

ChartLabel ChartLegend::entry(const QString& text, std::optional<std::size_t> calculator) const
{
    return {
        .text = text, .size = {metrics.horizontalAdvance(text), metrics.height()}, .calculator = calculator};
}

/// A state that was found at another pressure says so: its humidity and its wet bulb can't be read here.
QString ChartLegend::nameOf(const ChartState& state) const
{
    QString name = QString::fromStdString(state.name);
    if (state.pressure != pressure)
        name += " (at " + PressureText(state.pressure) + ")";
    if (!span.holds(state.tdb, state.w))
        name += " (off the chart)";
    return name;
}

ChartLegend::Line ChartLegend::lineOf(const ChartRun& run, int& number) const
{
    Line line{entry(QString::fromStdString(run.title) + ":", run.calculator)};
    for (const ChartState& state : run.states)
        line.push_back(entry(QString::number(number++) + " " + nameOf(state), run.calculator));
    return line;
}

double ChartLegend::widthOf(const Line& line) const
{
    double width = -gap;
    for (const ChartLabel& label : line)
        width += label.size.width() + gap;
    return width;
}

std::vector<ChartLabel> ChartLegend::placed(const Line& line, QPointF topLeft) const
{
    std::vector<ChartLabel> labels = line;
    for (ChartLabel& label : labels) {
        label.centre = topLeft + QPointF(label.size.width(), label.size.height()) / 2;
        topLeft.rx() += label.size.width() + gap;
    }
    return labels;
}

bool ChartLegend::fitsCorner(const ChartAir& air, const ChartPlane& plane) const
{
    const double beside = metrics.horizontalAdvance("00000"); // for the labels at the saturation curve
    double bottom = plane.plot.top() + metrics.height() * lineStep;
    return std::all_of(lines.begin(), lines.end(), [&](const Line& line) {
        bottom += metrics.height() * lineStep;
        const double saturated = SaturatedTdb(air, plane.span.tdb, plane.wAt(bottom));
        return plane.plot.left() + widthOf(line) + beside < plane.at(saturated, 0).x();
    });
}

std::vector<ChartLabel> ChartLegend::inCorner(const QRectF& plot) const
{
    std::vector<ChartLabel> all;
    QPointF place = plot.topLeft();
    for (const Line& line : lines) {
        const std::vector<ChartLabel> labels = placed(line, place);
        all.insert(all.end(), labels.begin(), labels.end());
        place.ry() += metrics.height() * lineStep;
    }
    return all;
}

std::vector<ChartLabel> ChartLegend::inStrip(const QRectF& strip) const
{
    std::vector<ChartLabel> all;
    QPointF place = strip.topLeft();
    for (const Line& line : lines) {
        if (place.x() > strip.left() && place.x() + widthOf(line) > strip.right())
            place = {strip.left(), place.y() + metrics.height() * lineStep};
        const std::vector<ChartLabel> labels = placed(line, place);
        all.insert(all.end(), labels.begin(), labels.end());
        place.rx() += widthOf(line) + runGap;
    }
    return all;
}

double ChartLegend::stripHeight(double width) const
{
    const std::vector<ChartLabel> labels = inStrip({0, 0, width, 0});
    return labels.back().centre.y() + metrics.height();
}
