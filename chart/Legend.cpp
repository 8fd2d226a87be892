#include "chart/Legend.h"

#include "chart/Texts.h"

#include <algorithm>

namespace chart {
namespace {

constexpr double gap = 9;     // between the entries of a run
constexpr double runGap = 22; // between the runs of a line

} // namespace

Legend::Legend(const Layout& chart, const Lettering& inLetters)
    : air(chart.air),
      plane(chart.plane),
      isWhole(!chart.view.zoom),
      letters(inLetters),
      lineHeight(letters.height() * 1.3)
{
    lines.push_back({entry("At " + PressureText(air.pressure()), std::nullopt)});
    int number = 1;
    for (const Run& run : chart.runs)
        lines.push_back(lineOf(run, number));
}

Label Legend::entry(const QString& text, std::optional<Calculator> calculator) const
{
    Label label = letters.label(text);
    label.calculator = calculator;
    return label;
}

/// Adds a note if the state is off the whole chart, or at another pressure: its wet bulb and relative
/// humidity can't be read off this chart.
QString Legend::nameOf(const RunState& state) const
{
    QString name = QString::fromStdString(state.name);
    if (state.P != air.pressure())
        name += " (at " + PressureText(state.P) + ")";
    if (isWhole && !plane.holds({state.Tdb, state.W}))
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

void Legend::append(const Line& line, QPointF topLeft, std::vector<Label>& labels) const
{
    for (Label label : line) {
        label.center = topLeft + QPointF(label.size.width(), label.size.height()) / 2;
        topLeft.rx() += label.size.width() + gap;
        labels.push_back(std::move(label));
    }
}

/// In the psychrometric form from the top left corner on, in Mollier's above the bottom right one.
QPointF Legend::cornerStart(std::size_t index) const
{
    const QRectF& plot = plane.plot;
    const auto above = static_cast<double>(index);
    if (!plane.isMollier)
        return plot.topLeft() + QPointF(0, above * lineHeight);
    const auto count = static_cast<double>(lines.size());
    return plot.bottomRight() - QPointF(widthOf(lines[index]), (count - above) * lineHeight);
}

std::vector<Label> Legend::inCorner(const Rim& rim, double least) const
{
    std::vector<Label> labels;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        const QPointF start = cornerStart(index);
        const QPointF inner =
            plane.isMollier ? start : start + QPointF(widthOf(lines[index]), letters.height());
        const Place place = plane.placeAt(inner);
        const bool isFree =
            plane.plot.contains(inner) && place.W > air.saturated(place.Tdb) && rim.distanceTo(inner) > least;
        if (!isFree)
            return {};
        append(lines[index], start, labels);
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
        append(line, start, labels);
        start.rx() += widthOf(line) + runGap;
    }
    return labels;
}

double Legend::stripHeight(double width) const
{
    return inStrip({0, 0, width, 0}).back().center.y() + letters.height();
}

} // namespace chart
