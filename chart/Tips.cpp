#include "chart/Tips.h"

#include "chart/Choices.h"
#include "chart/Texts.h"
#include "core/StatePoint.h"

#include <QLineF>
#include <QStringList>

namespace chart {
namespace {

QString exactly(double value) { return QString::number(value, 'g', 17); }

QString exactly(const View& view)
{
    QStringList parts;
    for (const SwitchRow& row : switchRows)
        parts << (view.switches.*row.isOn ? "1" : "0");
    std::vector<Place> places = view.pins;
    parts << QString::number(places.size());
    if (view.crossHair)
        places.push_back(*view.crossHair);
    if (view.zoom)
        places.insert(places.end(),
                      {{view.zoom->tdb.low, view.zoom->tdb.high}, {view.zoom->w.low, view.zoom->w.high}});
    for (const Place& place : places)
        parts << exactly(place.Tdb) << exactly(place.W);
    return parts.join(' ');
}

QString describe(const Air& air, const Place& place)
{
    QStringList lines;
    for (const Figure& figure : FiguresOf(ReadingAt(air, place)))
        lines << figure.value + " " + figure.unit + " " + figure.name.toLower();
    return lines.join('\n');
}

/// At the state's own pressure.
QString describe(const Mark& mark)
{
    const RunState& state = mark.state;
    const QString title = mark.calculator
                              ? TitleOf(*mark.calculator) + (", " + QString::fromStdString(state.name))
                              : "Pin " + mark.name;
    return title + "\n" + describe(Air(state.P), {state.Tdb, state.W}) + "\nat " + PressureText(state.P);
}

} // namespace

QString TipAt(const Layout& chart, const QPoint& point, const std::optional<Place>& exact)
{
    QStringList tips;
    for (const Mark& mark : chart.marks) {
        if (QLineF(mark.place, point).length() <= MarkReach)
            tips.append(describe(mark));
    }
    if (!tips.isEmpty())
        return tips.join("\n\n");
    const Place pointed = exact ? *exact : chart.plane.placeAt(point);
    const bool isShown = chart.plane.plot.contains(point) && IsAir(chart.air, pointed);
    return isShown ? describe(chart.air, pointed) : QString();
}

QString VersionOf(const View& view)
{
    QStringList parts{QString::number(UnitSystem), exactly(BaroPressure), exactly(view)};
    for (const Run& run : ShownRuns()) {
        parts << TitleOf(run.calculator);
        for (const RunState& state : run.states)
            parts << QString::fromStdString(state.name) << exactly(state.Tdb) << exactly(state.W)
                  << exactly(state.P);
    }
    return parts.join(' ');
}

} // namespace chart
