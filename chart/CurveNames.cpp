#include "chart/Names.h"
#include "chart/Texts.h"

#include <QPainterPath>

#include <algorithm>

namespace chart {
namespace {

constexpr double curveGap = 3; // between the rim and the wet bulb figures

std::vector<const Curve*> membersOf(Family family, const std::vector<Curve>& curves)
{
    std::vector<const Curve*> members;
    for (const Curve& curve : curves) {
        if (curve.family == family)
            members.push_back(&curve);
    }
    return members;
}

/// Outside the rim at the curve's start.
std::vector<Label> outsidePlaces(const Curve& curve, const Rim& rim, Label figure)
{
    const QPointF outward = rim.outwardAt(curve.line.front());
    const QPointF along(-outward.y(), outward.x());
    const QPointF start = curve.line.front() + outward * (curveGap + Reach(figure.size, outward));
    std::vector<Label> places;
    for (const double aside : {0.0, -4.0, 4.0, -8.0, 8.0, -12.0, 12.0}) {
        for (const double farther : {0.0, 2.0}) {
            figure.center = start + along * aside + outward * farther;
            places.push_back(figure);
        }
    }
    return places;
}

double lengthOf(const Curve& curve) { return QLineF(curve.line.front(), curve.line.back()).length(); }

/// The places for the names of wet bulb lines. If something is in the way of a name, the line is left out if
/// it is short, or has the name on itself.
class WetBulbPlaces
{
public:
    WetBulbPlaces(const Layout& ofChart, std::vector<Curve> ofLines, const Rim& rim, const Lettering& letters)
        : chart(ofChart)
    {
        for (Curve& line : ofLines) {
            Label figure = letters.label(RoundFigure(line.value), line.family);
            figure.size.rwidth() -= 2;
            std::vector<Label> outside = outsidePlaces(line, rim, figure);
            add(std::move(line), std::move(outside), figure);
        }
    }

    std::vector<Curve> lines;
    std::vector<std::vector<Label>> places;
    int onLines = 0;

private:
    void add(Curve line, std::vector<Label> outside, const Label& figure)
    {
        constexpr double shortLine = 30; // pixels
        const bool isFree = chart.labels.hasPlaceFor(outside);
        if (!isFree && lengthOf(line) < shortLine)
            return;
        onLines += isFree ? 0 : 1;
        places.push_back(isFree ? std::move(outside)
                                : Along(line.line, figure, chart.plane.plot, {0.1, 0.2, 0.3, 0.5, 0.7}));
        lines.push_back(std::move(line));
    }

    const Layout& chart;
};

/// Along the scale, beyond its figures.
std::vector<Label> titlesOf(const QPolygonF& scale, Label title, const QSizeF& figure, bool isMollier)
{
    QPainterPath path;
    path.addPolygon(scale);
    std::vector<Label> places;
    for (const double part : {0.55, 0.5, 0.6, 0.45, 0.65, 0.4, 0.7, 0.3, 0.8, 0.2, 0.9}) {
        const double angle = path.angleAtPercent(part);
        title.angle = -angle;
        const QPointF outward = QLineF::fromPolar(1, angle + (isMollier ? -90 : 90)).p2();
        const double away = Tick + 2 * Reach(figure, outward) + title.size.height() / 2;
        title.center = path.pointAtPercent(part) + outward * away;
        places.push_back(title);
    }
    return places;
}

void nameFamily(Layout& chart, Family family, const Lettering& letters, const QString& unit,
                std::size_t (*withUnit)(std::size_t), std::initializer_list<double> parts)
{
    const std::vector<const Curve*> members = membersOf(family, chart.curves);
    for (const Curve* curve : members) {
        const bool isNamed = curve == members[withUnit(members.size())];
        const QString percent = family == Family::RelativeHumidity ? " %" : "";
        const QString text = RoundFigure(curve->value) + percent + (isNamed ? unit : QString());
        chart.labels.addOnOneOf(Along(curve->line, letters.label(text, family), chart.plane.plot, parts));
    }
}

/// On one of the lines, preferably a long one.
void nameWetBulbs(Layout& chart, const Lettering& letters)
{
    const Label title = letters.label("Wet bulb, " + TdbUnit(), Family::WetBulb);
    std::vector<const Curve*> members = membersOf(Family::WetBulb, chart.curves);
    std::stable_sort(members.begin(), members.end(), [](const Curve* one, const Curve* other) {
        return one->line.boundingRect().height() > other->line.boundingRect().height();
    });
    for (const Curve* curve : members) {
        if (chart.labels.addOnOneOf(Along(curve->line, title, chart.plane.plot, {0.5, 0.4, 0.6, 0.3, 0.7})))
            return;
    }
}

} // namespace

std::vector<Label> Along(const QPolygonF& line, Label label, const QRectF& plot,
                         std::initializer_list<double> parts)
{
    QPainterPath path;
    path.addPolygon(line);
    label.hasHalo = true;
    std::vector<Label> places;
    for (const double part : parts) {
        label.center = path.pointAtPercent(part);
        const double angle = path.angleAtPercent(part);
        label.angle = angle > 90 && angle < 270 ? 180 - angle : -angle; // never upside down
        if (plot.contains(label.outline().boundingRect()))
            places.push_back(label);
    }
    return places;
}

std::vector<Curve> NamedWetBulbs(Layout& chart, const Tracer& tracer, const Rim& rim,
                                 const Lettering& letters)
{
    constexpr double leastApart = 20; // pixels
    constexpr int mostSteps = 4;
    constexpr int mostOnLines = 2;
    double step = tracer.wetBulbStep(leastApart);
    std::vector<Curve> closest = tracer.wetBulbs(step);
    for (int count = 0; count < mostSteps; ++count) {
        WetBulbPlaces places(chart, count == 0 ? closest : tracer.wetBulbs(step), rim, letters);
        if (places.onLines <= mostOnLines && chart.labels.addOneOfEach(places.places))
            return std::move(places.lines);
        step = Axis{0, step}.step(1, 1.5);
    }
    return closest;
}

void AddEnthalpyScale(Layout& chart, const std::vector<Curve>& enthalpies, const Rim& rim,
                      const Lettering& letters)
{
    const QPolygonF scale =
        (chart.frame.hasColdScale ? rim : rim.withoutColdEdge()).outside([&](const QPointF& outward) {
            return ScaleDistance(outward, letters, chart.frame);
        });
    chart.scales.push_back({Family::Enthalpy, 0, scale});
    chart.labels.avoidLine(scale);
    for (const Curve& curve : enthalpies) {
        const std::optional<ScaleMark> mark = MarkOn(scale, curve, rim);
        if (!mark) {
            chart.labels.addOnOneOf(Along(curve.line, letters.label(RoundFigure(curve.value), curve.family),
                                          chart.plane.plot, {0.15, 0.25, 0.35}));
            continue;
        }
        chart.scales.push_back({Family::Enthalpy, curve.value, {mark->tick.p1(), mark->tick.p2()}});
        Label figure = letters.label(RoundFigure(curve.value), Family::Enthalpy);
        figure.size.rwidth() -= 2;
        figure.center = mark->tick.p2() + mark->outward * (1 + Reach(figure.size, mark->outward));
        chart.labels.add(figure);
    }
    const Label title = letters.label("Enthalpy, " + EnthalpyUnit(), Family::Enthalpy);
    const QSizeF figure = letters.label("000").size;
    chart.labels.addOnOneOf(titlesOf(scale, title, figure, chart.plane.isMollier));
}

void AddCurveNames(Layout& chart, const Lettering& letters)
{
    const auto first = [](std::size_t) -> std::size_t { return 0; };
    const auto middle = [](std::size_t count) { return count / 2; };
    nameWetBulbs(chart, letters);
    nameFamily(chart, Family::RelativeHumidity, letters, " relative humidity", first,
               {0.8, 0.72, 0.88, 0.64, 0.56, 0.48, 0.4});
    nameFamily(chart, Family::SpecificVolume, letters, " " + SpecificVolumeUnit(), middle,
               {0.82, 0.74, 0.9, 0.66, 0.58, 0.5, 0.42});
}

} // namespace chart
