#include "chart/Names.h"
#include "chart/Texts.h"
#include "core/StatePoint.h"

#include <cmath>

namespace chart {
namespace {

constexpr double edge = 0.5; // pixels

class AxisNames
{
public:
    AxisNames(Layout& ofChart, const Lettering& inLetters)
        : chart(ofChart), plane(ofChart.plane), plot(plane.plot), letters(inLetters)
    {}

    void nameDryBulbs()
    {
        for (const Curve& curve : chart.curves) {
            if (curve.family == Family::DryBulb)
                nameDryBulb(curve);
        }
        const Label title = letters.label("Dry bulb, " + TdbUnit(), Family::DryBulb);
        const double away = AxisGap + letters.height() * 0.7; // from the figures to the middle of the title
        if (plane.isMollier)
            add(title, {plot.left() - chart.frame.tdbWidth - 4 - away, plot.center().y()}, -90);
        else
            add(title, {plot.center().x(), plot.bottom() + figureGap() + letters.height() * 1.6});
    }

    void nameHumidityRatios()
    {
        for (const Curve& curve : chart.curves) {
            if (curve.family == Family::HumidityRatio)
                nameHumidityRatio(curve);
        }
        const Label title = letters.label("Humidity ratio, " + HumidityRatioUnit(), Family::HumidityRatio);
        const double grains = chart.frame.hasGrains ? grainsDepth() : 0;
        if (plane.isMollier)
            add(title, {plot.center().x(), plot.top() - ratioDepth() - grains - letters.height() * 0.6});
        else
            add(title, {plot.right() + ratioDepth() + grains + letters.height() * 0.6, plot.center().y()},
                -90);
    }

    void nameGrains()
    {
        const Axis& w = plane.span.w;
        const Axis grains{w.low * GrainsPerPound, w.high * GrainsPerPound};
        const double pixels = plane.isMollier ? plot.width() : plot.height();
        addScaleLine();
        for (const double grain : grains.multiples(grains.step(pixels, 26)))
            nameGrain(grain);
        const Label unit = letters.label("gr/lb", Family::HumidityRatio);
        if (plane.isMollier)
            add(unit, grainsAt(w.high) + QPointF(unit.size.width() / 2 + 12, -letters.height() * 0.5));
        else
            add(unit, grainsAt(w.high) + QPointF(unit.size.width() / 2 - 2, -letters.height() * 1.2));
    }

private:
    void add(Label label, const QPointF& center, double angle = 0)
    {
        label.center = center;
        label.angle = angle;
        chart.labels.add(label);
    }

    void nameDryBulb(const Curve& tick)
    {
        const Label figure = letters.label(RoundFigure(tick.value), tick.family);
        const QPointF start = tick.line.front();
        if (plane.isMollier && start.x() < plot.left() + edge)
            add(figure, start - QPointF(AxisGap + figure.size.width() / 2, 0));
        if (!plane.isMollier && start.y() > plot.bottom() - edge)
            add(figure, start + QPointF(0, figureGap() + letters.height() / 2));
    }

    void nameHumidityRatio(const Curve& tick)
    {
        const Label figure = letters.label(HumidityRatioFigure(tick.value, plane.wStep()), tick.family);
        const QPointF end = tick.line.back();
        if (plane.isMollier && end.y() < plot.top() + edge)
            add(figure, end - QPointF(0, figureGap() + letters.height() / 2));
        if (!plane.isMollier && end.x() > plot.right() - edge)
            add(figure, end + QPointF(AxisGap + figure.size.width() / 2, 0));
    }

    /// Between the horizontal axis and its figures: the last of them is beside the first of the other axis.
    double figureGap() const { return letters.height() / 2 + 1; }

    /// Of the humidity ratio's figures.
    double ratioDepth() const
    {
        return plane.isMollier ? letters.height() + figureGap() + 1 : chart.frame.ratioWidth + AxisGap;
    }

    double grainsDepth() const
    {
        return plane.isMollier ? letters.height() + Tick + 2 : chart.frame.grainsWidth + Tick + 2;
    }

    QPointF grainsAt(double w) const
    {
        const double part = plane.span.w.part(w);
        if (plane.isMollier)
            return {plot.left() + part * plot.width(), plot.top() - ratioDepth()};
        return {plot.right() + ratioDepth(), plot.bottom() - part * plot.height()};
    }

    void addScaleLine()
    {
        const QPolygonF line{grainsAt(plane.span.w.low), grainsAt(plane.span.w.high)};
        chart.scales.push_back({Family::HumidityRatio, 0, line});
        chart.labels.avoidLine(line);
    }

    void nameGrain(double grain)
    {
        const QPointF outward = plane.isMollier ? QPointF(0, -1) : QPointF(1, 0);
        const QPointF start = grainsAt(grain / GrainsPerPound);
        chart.scales.push_back({Family::HumidityRatio, grain, {start, start + outward * (Tick - 1)}});
        const Label figure = letters.label(RoundFigure(grain), Family::HumidityRatio);
        add(figure, start + outward * (Tick + Reach(figure.size, outward) - 1));
    }

    Layout& chart;
    const Plane& plane;
    const QRectF& plot;
    const Lettering& letters;
};

} // namespace

void AddAxisNames(Layout& chart, const Lettering& letters)
{
    AxisNames names(chart, letters);
    names.nameHumidityRatios();
    names.nameDryBulbs();
    if (chart.frame.hasGrains)
        names.nameGrains();
}

} // namespace chart
