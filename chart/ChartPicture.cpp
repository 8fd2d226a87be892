#include "chart/ChartPicture.h"

#include "chart/Painter.h"
#include "chart/Texts.h"
#include "core/StatePoint.h"

#include <QLineF>
#include <QPainter>
#include <QWidget>

namespace chart {
namespace {

constexpr double tipReach = 8; // distance from a mark, in pixels

/// With all digits of the single.
QString exactly(Single value) { return QString::number(value, 'g', 9); }

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
    const QString title =
        mark.calculator ? TitleOf(*mark.calculator) + (", " + QString::fromStdString(state.name)) : mark.name;
    return title + "\n" + describe(Air(state.P), {state.Tdb, state.W}) + "\nat " + PressureText(state.P);
}

} // namespace

std::string ChartPicture::version() const
{
    QStringList parts{QString::number(UnitSystem), exactly(BaroPressure)};
    for (const Run& run : ShownRuns()) {
        parts << TitleOf(run.calculator);
        for (const RunState& state : run.states)
            parts << QString::fromStdString(state.name) << exactly(state.Tdb) << exactly(state.W)
                  << exactly(state.P);
    }
    return parts.join(' ').toStdString();
}

void ChartPicture::paint(QPainter& painter, const QSize& size, const QWidget& on)
{
    painted.emplace(size, on.font(), view);
    Paint(painter, *painted, on.palette());
    painted->curves.clear(); // not needed for tips
}

std::string ChartPicture::tipAt(const QPoint& place) const
{
    if (!painted)
        return {};
    QStringList tips;
    for (const Mark& mark : painted->marks) {
        if (QLineF(mark.place, place).length() <= tipReach)
            tips.append(describe(mark));
    }
    if (!tips.isEmpty())
        return tips.join("\n\n").toStdString();
    const Place pointed = painted->plane.placeAt(place);
    const bool isShown = painted->plane.plot.contains(place) && IsAir(painted->air, pointed);
    return isShown ? describe(painted->air, pointed).toStdString() : std::string();
}

} // namespace chart
