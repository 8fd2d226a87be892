#include "chart/Names.h"
#include "chart/Texts.h"

#include <QLineF>

#include <algorithm>

namespace chart {
namespace {

constexpr double markReach = 6; // from the center of a mark to its label
constexpr double samePlace = 3; // marks at most this far apart share a label

/// Tries above the mark, then around it, then farther away.
std::vector<Label> placesAround(const Mark& mark, Label name)
{
    const QPointF ways[] = {{0, -1}, {1, -1}, {-1, -1}, {1, 0}, {-1, 0}, {0, 1}, {1, 1}, {-1, 1}};
    std::vector<Label> places;
    for (const double reach : {0.0, 6.0, 14.0, 24.0}) {
        for (const QPointF& way : ways) {
            const double across = markReach - 1 + reach + name.size.width() / 2;
            const double up = markReach - 3 + reach + name.size.height() / 2;
            name.center = mark.place + QPointF(way.x() * across, way.y() * up);
            places.push_back(name);
        }
    }
    return places;
}

QString textOf(const HeatRatio& ratio)
{
    return "SHR " + (ratio.value ? FormatFigure(*ratio.value, 2) : QString("–"));
}

/// On the zone's own side, or in its middle if that side is not on the plot.
void nameZone(Layout& chart, const ComfortZone& zone, Label name)
{
    if (chart.labels.addOnOneOf(
            Along(zone.edge, name, chart.plane.plot, {0.5, 0.4, 0.6, 0.3, 0.7, 0.2, 0.8})))
        return;
    const QRectF all = zone.area.boundingRect();
    name.hasHalo = true;
    std::vector<Label> places;
    for (const double part : {0.5, 0.35, 0.65, 0.2, 0.8}) {
        name.center = {all.center().x(), all.top() + part * all.height()};
        places.push_back(name);
    }
    chart.labels.addOnOneOf(places);
}

} // namespace

void AddOverlayNames(Layout& chart, const Lettering& letters)
{
    for (const ComfortZone& zone : chart.zones)
        nameZone(chart, zone, letters.label(zone.name));
    for (const HeatRatio& ratio : chart.heatRatios) {
        Label value = letters.label(textOf(ratio));
        value.calculator = ratio.calculator;
        chart.labels.addOnOneOf(Along({ratio.line.p1(), ratio.line.p2()}, value, chart.plane.plot,
                                      {0.9, 0.1, 0.85, 0.15, 0.8, 0.2, 0.75, 0.25, 0.95, 0.05, 0.7, 0.3}));
        chart.labels.avoid({ratio.line.p1(), ratio.line.p2()});
    }
}

void AddMarkNames(Layout& chart, const Lettering& letters)
{
    const std::vector<Mark>& marks = chart.marks;
    for (auto mark = marks.begin(); mark != marks.end(); ++mark) {
        const auto isHere = [&](const Mark& other) {
            return QLineF(mark->place, other.place).length() <= samePlace;
        };
        if (std::any_of(marks.begin(), mark, isHere))
            continue;
        QString names = mark->name;
        for (auto other = mark + 1; other != marks.end(); ++other) {
            if (isHere(*other))
                names += ", " + other->name;
        }
        Label label = letters.label(names);
        label.calculator = mark->calculator;
        label.hasHalo = true;
        chart.labels.addOnOneOf(placesAround(*mark, label));
    }
}

} // namespace chart
