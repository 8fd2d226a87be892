#include "shell/chart/ChartPicture.h"

#include "core/StatePoint.h"
#include "shell/chart/ChartPainter.h"
#include "shell/chart/ChartTexts.h"

#include <QLineF>
#include <QPainter>
#include <QWidget>

namespace {

constexpr double tipReach = 8; // pixels from a mark that still mean it

/// All digits that tell a single from the next.
QString exactly(Single value) { return QString::number(value, 'g', 9); }

QString describe(const ChartAir& air, double tdb, double w)
{
    return TdbText(tdb) + " dry bulb\n" + HumidityRatioText(w) + " humidity ratio\n" +
           RelativeHumidityText(air.relativeHumidity(tdb, w)) + " relative humidity";
}

/// At the pressure that the state was found at.
QString describe(const ChartRun& run, const ChartState& state)
{
    const ChartAir air(state.pressure);
    return QString::fromStdString(run.title + ", " + state.name) + "\n" + describe(air, state.tdb, state.w) +
           "\nat " + PressureText(state.pressure);
}

} // namespace

std::string ChartPicture::version() const
{
    QStringList parts{QString::number(UnitSystem), exactly(BaroPressure)};
    for (const ChartRun& run : LastRuns()) {
        parts << QString::fromStdString(run.title);
        for (const ChartState& state : run.states) {
            parts << QString::fromStdString(state.name) << exactly(state.tdb) << exactly(state.w)
                  << exactly(state.pressure);
        }
    }
    return parts.join(' ').toStdString();
}

void ChartPicture::paint(QPainter& painter, const QSize& size, const QWidget& on)
{
    chart = std::make_unique<ChartLayout>(size, on.font());
    PaintChart(painter, *chart, on.palette());
    chart->curves = {}; // tips need none of them
}

std::string ChartPicture::tipAt(const QPoint& place) const
{
    if (chart == nullptr)
        return {};
    QStringList tips;
    for (const ChartMark& mark : chart->marks) {
        for (const ChartRun& run : chart->runs) {
            if (run.calculator == mark.calculator && QLineF(mark.place, place).length() <= tipReach)
                tips.append(describe(run, *mark.state));
        }
    }
    if (!tips.isEmpty())
        return tips.join("\n\n").toStdString();
    const double tdb = chart->plane.tdbAt(place.x());
    const double w = chart->plane.wAt(place.y());
    const bool isAir =
        chart->air.isDefined() && chart->plane.span.holds(tdb, w) && w <= chart->air.saturated(tdb);
    return isAir ? describe(chart->air, tdb, w).toStdString() : std::string();
}
