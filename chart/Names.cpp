#include "chart/Names.h"

#include "chart/Texts.h"
#include "core/StatePoint.h"

#include <QLineF>
#include <QPainterPath>

#include <algorithm>

namespace chart {
namespace {

constexpr double markReach = 6; // from the center of a mark to its label
constexpr double curveGap = 3;  // between saturation and the wet bulb figures
constexpr double padding = 4;   // of a label, left and right together
constexpr double samePlace = 3; // marks at most this far apart share a label

QPainterPath pathOf(const Curve& curve)
{
    QPainterPath path;
    path.addPolygon(curve.line);
    return path;
}

QPolygonF squareAround(const QPointF& center, double reach)
{
    return QRectF(center - QPointF(reach, reach), QSizeF(2 * reach, 2 * reach));
}

std::vector<const Curve*> membersOf(Family family, const std::vector<Curve>& curves)
{
    std::vector<const Curve*> members;
    for (const Curve& curve : curves) {
        if (curve.family == family)
            members.push_back(&curve);
    }
    return members;
}

class Names
{
public:
    Names(Layout& ofChart, const QFontMetricsF& font)
        : chart(ofChart), plane(ofChart.plane), labels(ofChart.labels), metrics(font)
    {}

    /// Marks at the same place share a label.
    void nameMarks()
    {
        const std::vector<Mark>& marks = chart.marks;
        for (const Mark& mark : marks)
            labels.avoid(squareAround(mark.place, markReach - 2));
        for (auto mark = marks.begin(); mark != marks.end(); ++mark) {
            const auto isHere = [&](const Mark& other) {
                return QLineF(mark->place, other.place).length() <= samePlace;
            };
            if (std::any_of(marks.begin(), mark, isHere))
                continue;
            QString numbers = mark->name;
            for (auto other = mark + 1; other != marks.end(); ++other) {
                if (isHere(*other))
                    numbers += ", " + other->name;
            }
            nameMark(*mark, numbers);
        }
    }

    void nameAxes()
    {
        const QRectF& plot = plane.plot;
        Label dryBulb = label("Dry bulb, " + TdbUnit(), Family::DryBulb);
        dryBulb.center = {plot.center().x(), plot.bottom() + axisGap + metrics.height() * 1.7};
        labels.add(dryBulb);
        Label ratio = label("Humidity ratio, " + HumidityRatioUnit(), Family::HumidityRatio);
        const double figures = metrics.horizontalAdvance(IsMetric() ? "000" : "0.0000");
        ratio.center = {plot.right() + axisGap + figures + metrics.height() * 0.7, plot.center().y()};
        ratio.angle = -90;
        labels.add(ratio);
    }

    void nameCurves()
    {
        const std::vector<Curve>& curves = chart.curves;
        for (const Curve* tick : membersOf(Family::DryBulb, curves))
            nameDryBulb(*tick);
        for (const Curve* tick : membersOf(Family::HumidityRatio, curves))
            nameHumidityRatio(*tick);
        for (const Curve* curve : membersOf(Family::WetBulb, curves))
            nameWetBulb(*curve);
        for (const Curve* curve : membersOf(Family::Saturation, curves))
            nameWetBulbs(*curve);
        const auto humidities = membersOf(Family::RelativeHumidity, curves);
        for (const Curve* curve : humidities) {
            const QString words = curve == humidities.front() ? " % relative humidity" : " %";
            nameAlong(*curve, RoundFigure(curve->value) + words, {0.8, 0.72, 0.88, 0.64, 0.56, 0.48, 0.4});
        }
        const auto volumes = membersOf(Family::SpecificVolume, curves);
        for (const Curve* curve : volumes) {
            const QString words = curve == volumes[volumes.size() / 2] ? " " + SpecificVolumeUnit() : "";
            nameAlong(*curve, RoundFigure(curve->value) + words, {0.82, 0.74, 0.9, 0.66, 0.58, 0.5, 0.42});
        }
    }

private:
    Label label(const QString& text, std::optional<Family> family = {}) const
    {
        return {.text = text,
                .size = {metrics.horizontalAdvance(text) + padding, metrics.height()},
                .family = family};
    }

    /// Tries above the mark, then around it, then farther away.
    void nameMark(const Mark& mark, const QString& numbers)
    {
        Label name = label(numbers);
        name.calculator = mark.calculator;
        const QPointF ways[] = {{0, -1}, {1, -1}, {-1, -1}, {1, 0}, {-1, 0}, {0, 1}, {1, 1}, {-1, 1}};
        std::vector<Label> candidates;
        for (const double reach : {0.0, 6.0, 14.0}) {
            for (const QPointF& way : ways) {
                const double across = markReach - 1 + reach + name.size.width() / 2;
                const double up = markReach - 3 + reach + name.size.height() / 2;
                name.center = mark.place + QPointF(way.x() * across, way.y() * up);
                candidates.push_back(name);
            }
        }
        labels.addOnOneOf(candidates);
    }

    void nameDryBulb(const Curve& tick)
    {
        Label figure = label(RoundFigure(tick.value), tick.family);
        figure.center = tick.line.front() + QPointF(0, axisGap + metrics.height() / 2);
        labels.add(figure);
    }

    void nameHumidityRatio(const Curve& tick)
    {
        Label figure = label(HumidityRatioFigure(tick.value, plane.wStep()), tick.family);
        figure.center = tick.line.back() + QPointF(axisGap + figure.size.width() / 2, 0);
        labels.add(figure);
    }

    /// At the curve's end outside saturation, or above the plot if the curve enters there.
    void nameWetBulb(const Curve& curve)
    {
        Label figure = label(RoundFigure(curve.value), curve.family);
        const QPointF end = curve.line.front();
        const double across = curveGap + figure.size.width() / 2;
        const double up = curveGap + figure.size.height() / 2;
        const bool isOnTop = end.y() < plane.plot.top() + 0.5;
        figure.center = end - (isOnTop ? QPointF(0, up) : QPointF(across * 0.9, up * 0.6));
        labels.add(figure);
    }

    /// The title of the family, along saturation.
    void nameWetBulbs(const Curve& saturation)
    {
        const QPainterPath path = pathOf(saturation);
        Label title = label("Wet bulb, " + TdbUnit(), Family::WetBulb);
        std::vector<Label> candidates;
        const double away = curveGap * 3 + metrics.horizontalAdvance("00") + metrics.height() / 2;
        for (const double part : {0.55, 0.5, 0.6, 0.45, 0.65, 0.4, 0.7}) {
            const double angle = path.angleAtPercent(part);
            title.angle = -angle;
            title.center = path.pointAtPercent(part) + QLineF::fromPolar(away, angle + 90).p2();
            candidates.push_back(title);
        }
        labels.addOnOneOf(candidates);
    }

    /// Places the label on the curve, at the first of these fractions of its length where the label is inside
    /// the plot.
    void nameAlong(const Curve& curve, const QString& text, const std::vector<double>& parts)
    {
        const QPainterPath path = pathOf(curve);
        Label name = label(text, curve.family);
        std::vector<Label> candidates;
        for (const double part : parts) {
            name.center = path.pointAtPercent(part);
            name.angle = -path.angleAtPercent(part);
            if (plane.plot.contains(name.outline().boundingRect()))
                candidates.push_back(name);
        }
        labels.addOnOneOf(candidates);
    }

    Layout& chart;
    const Plane& plane;
    Labels& labels;
    QFontMetricsF metrics;
};

} // namespace

void AddNames(Layout& chart, const QFontMetricsF& metrics)
{
    Names names(chart, metrics);
    names.nameMarks();
    names.nameAxes();
    names.nameCurves();
}

} // namespace chart
