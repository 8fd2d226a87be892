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

QString describe(const Air& air, double tdb, double w)
{
    return TdbText(tdb) + " dry bulb\n" + HumidityRatioText(w) + " humidity ratio\n" +
           RelativeHumidityText(air.relativeHumidity(tdb, w)) + " relative humidity";
}

/// At the state's own pressure.
QString describe(const Mark& mark)
{
    const RunState& state = mark.state;
    return QString(TitleOf(mark.calculator)) + ", " + QString::fromStdString(state.name) + "\n" +
           describe(Air(state.P), state.Tdb, state.W) + "\nat " + PressureText(state.P);
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
    painted.emplace(size, on.font());
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
    const double tdb = painted->plane.tdbAt(place.x());
    const double w = painted->plane.wAt(place.y());
    const bool isAir =
        painted->air.isDefined() && painted->plane.span.holds(tdb, w) && w <= painted->air.saturated(tdb);
    return isAir ? describe(painted->air, tdb, w).toStdString() : std::string();
}

} // namespace chart
