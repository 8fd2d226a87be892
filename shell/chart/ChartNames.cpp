#include "shell/chart/ChartNames.h"

#include "core/StatePoint.h"
#include "shell/chart/ChartTexts.h"

#include <QLineF>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr double markReach = 6; // from a mark's centre to its edge, with some air
constexpr double curveGap = 3;  // between saturation and the wet bulbs' figures
constexpr double sideAir = 4;   // at the two ends of a name, together
constexpr double onePlace = 3;  // marks no farther apart share a label

/// A place on a curve with the direction it goes there.
struct Station
{
    QPointF place;
    QPointF direction; ///< of length 1
};

/// At a part of the curve's length.
std::optional<Station> stationAt(const QPolygonF& line, double part)
{
    double length = 0;
    for (qsizetype i = 1; i < line.size(); ++i)
        length += QLineF(line.at(i - 1), line.at(i)).length();
    double left = part * length;
    for (qsizetype i = 1; i < line.size(); ++i) {
        const QLineF chord(line.at(i - 1), line.at(i));
        if (chord.length() > 0 && left <= chord.length())
            return Station{chord.pointAt(left / chord.length()), (chord.p2() - chord.p1()) / chord.length()};
        left -= chord.length();
    }
    return std::nullopt;
}

/// To the left of a direction, away from the air below saturation.
QPointF outward(const QPointF& direction) { return {direction.y(), -direction.x()}; }

double degrees(const QPointF& direction)
{
    return std::atan2(direction.y(), direction.x()) * 180 / std::acos(-1.0);
}

QPolygonF squareAround(const QPointF& centre, double reach)
{
    return QRectF(centre - QPointF(reach, reach), QSizeF(2 * reach, 2 * reach));
}

} // namespace

ChartLabel ChartNames::label(const QString& text, ChartFamily family) const
{
    return {.text = text,
            .size = {metrics.horizontalAdvance(text) + sideAir, metrics.height()},
            .family = family};
}

void ChartNames::avoidLine(const QPointF& from, const QPointF& to) { labels.avoid({from, to}); }

void ChartNames::nameMarks(const std::vector<ChartMark>& marks)
{
    for (const ChartMark& mark : marks)
        labels.avoid(squareAround(mark.place, markReach - 2));
    for (auto mark = marks.begin(); mark != marks.end(); ++mark) {
        const auto isHere = [&](const ChartMark& other) {
            return QLineF(mark->place, other.place).length() <= onePlace;
        };
        if (std::any_of(marks.begin(), mark, isHere))
            continue;
        QString numbers = QString::number(mark->number);
        for (auto other = mark + 1; other != marks.end(); ++other) {
            if (isHere(*other))
                numbers += ", " + QString::number(other->number);
        }
        nameMark(*mark, numbers);
    }
}

/// Above it first, then round it, then farther away.
void ChartNames::nameMark(const ChartMark& mark, const QString& numbers)
{
    ChartLabel name = label(numbers, ChartFamily::Saturation);
    name.family.reset();
    name.calculator = mark.calculator;
    const QPointF ways[] = {{0, -1}, {1, -1}, {-1, -1}, {1, 0}, {-1, 0}, {0, 1}, {1, 1}, {-1, 1}};
    std::vector<ChartLabel> candidates;
    for (const double reach : {0.0, 6.0, 14.0}) {
        for (const QPointF& way : ways) {
            const double across = markReach - 1 + reach + name.size.width() / 2;
            const double up = markReach - 3 + reach + name.size.height() / 2;
            name.centre = mark.place + QPointF(way.x() * across, way.y() * up);
            candidates.push_back(name);
        }
    }
    labels.addOnOneOf(candidates);
}

void ChartNames::nameAxes()
{
    const QRectF& plot = plane.plot;
    ChartLabel dryBulb = label("Dry bulb, " + TdbUnit(), ChartFamily::DryBulb);
    dryBulb.centre = {plot.center().x(), plot.bottom() + axisGap + metrics.height() * 1.7};
    labels.add(dryBulb);
    ChartLabel ratio = label("Humidity ratio, " + HumidityRatioUnit(), ChartFamily::HumidityRatio);
    const double figures = metrics.horizontalAdvance(IsMetric() ? "000" : "0.0000");
    ratio.centre = {plot.right() + axisGap + figures + metrics.height() * 0.7, plot.center().y()};
    ratio.angle = -90;
    labels.add(ratio);
}

void ChartNames::nameTick(const ChartCurve& tick)
{
    if (tick.family == ChartFamily::DryBulb) {
        ChartLabel figure = label(RoundFigure(tick.value), tick.family);
        figure.centre = tick.line.front() + QPointF(0, axisGap + metrics.height() / 2);
        labels.add(figure);
    } else {
        ChartLabel figure = label(HumidityRatioFigure(tick.value, plane.wStep()), tick.family);
        figure.centre = tick.line.back() + QPointF(axisGap + figure.size.width() / 2, 0);
        labels.add(figure);
    }
}

/// Outside the saturation curve, at the end of the line; over the plot where the line comes in from above.
void ChartNames::nameAtSaturation(const ChartCurve& wetBulb)
{
    ChartLabel figure = label(RoundFigure(wetBulb.value), wetBulb.family);
    const QPointF end = wetBulb.line.front();
    const double across = curveGap + figure.size.width() / 2;
    const double up = curveGap + figure.size.height() / 2;
    const bool isOnTop = end.y() < plane.plot.top() + 0.5;
    figure.centre = end - (isOnTop ? QPointF(0, up) : QPointF(across * 0.9, up * 0.6));
    labels.add(figure);
}

void ChartNames::nameWetBulbs(const ChartCurve& saturation)
{
    ChartLabel title = label("Wet bulb, " + TdbUnit(), ChartFamily::WetBulb);
    std::vector<ChartLabel> candidates;
    const double away = curveGap * 3 + metrics.horizontalAdvance("00") + metrics.height() / 2;
    for (const double part : {0.55, 0.5, 0.6, 0.45, 0.65, 0.4, 0.7}) {
        if (const auto station = stationAt(saturation.line, part)) {
            title.angle = degrees(station->direction);
            title.centre = station->place + outward(station->direction) * away;
            candidates.push_back(title);
        }
    }
    labels.addOnOneOf(candidates);
}

/// Along the curve, on the first of these parts of its length where the label stands in the plot.
void ChartNames::nameAlong(const ChartCurve& curve, const QString& text, const std::vector<double>& parts)
{
    ChartLabel name = label(text, curve.family);
    std::vector<ChartLabel> candidates;
    for (const double part : parts) {
        if (const auto station = stationAt(curve.line, part)) {
            name.centre = station->place;
            name.angle = degrees(station->direction);
            const QRectF taken = name.outline().boundingRect();
            if (plane.plot.contains(taken))
                candidates.push_back(name);
        }
    }
    labels.addOnOneOf(candidates);
}

void ChartNames::nameCurves(const std::vector<ChartCurve>& curves)
{
    const auto each = [&](ChartFamily family, const auto& task) {
        std::vector<const ChartCurve*> members;
        for (const ChartCurve& curve : curves) {
            if (curve.family == family)
                members.push_back(&curve);
        }
        for (std::size_t i = 0; i < members.size(); ++i)
            task(*members[i], i, members.size());
    };
    const auto tick = [&](const ChartCurve& curve, std::size_t, std::size_t) { nameTick(curve); };
    each(ChartFamily::DryBulb, tick);
    each(ChartFamily::HumidityRatio, tick);
    each(ChartFamily::WetBulb,
         [&](const ChartCurve& curve, std::size_t, std::size_t) { nameAtSaturation(curve); });
    each(ChartFamily::Saturation,
         [&](const ChartCurve& curve, std::size_t, std::size_t) { nameWetBulbs(curve); });
    each(ChartFamily::RelativeHumidity, [&](const ChartCurve& curve, std::size_t i, std::size_t) {
        const QString words = i == 0 ? " % relative humidity" : " %";
        nameAlong(curve, RoundFigure(curve.value) + words, {0.8, 0.72, 0.88, 0.64, 0.56, 0.48, 0.4});
    });
    each(ChartFamily::SpecificVolume, [&](const ChartCurve& curve, std::size_t i, std::size_t count) {
        const QString words = i == count / 2 ? " " + SpecificVolumeUnit() : "";
        nameAlong(curve, RoundFigure(curve.value) + words, {0.82, 0.74, 0.9, 0.66, 0.58, 0.5, 0.42});
    });
}
