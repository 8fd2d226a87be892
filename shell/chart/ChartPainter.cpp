#include "shell/chart/ChartPainter.h"

#include "shell/chart/ChartColours.h"
#include "shell/chart/ChartLayout.h"

#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

constexpr double markRadius = 4;

class ChartPainter
{
public:
    ChartPainter(QPainter& aPainter, const ChartLayout& aChart, const QPalette& palette)
        : painter(aPainter), chart(aChart), colours(palette)
    {}

    void paint()
    {
        painter.setFont(chart.font);
        painter.save();
        painter.setClipRect(chart.plane.plot.adjusted(-1, -1, 1, 1));
        painter.fillPath(airArea(), colours.paper());
        for (const ChartCurve& curve : chart.curves)
            paintCurve(curve);
        painter.restore();
        paintFrame();
        paintHalos();
        for (const ChartRun& run : chart.runs)
            paintProcesses(run);
        for (const ChartMark& mark : chart.marks)
            paintMark(mark);
        for (const ChartLabel& label : chart.labels.all())
            paintLabel(label);
    }

private:
    /// What lies below the saturation curve.
    QPainterPath airArea() const
    {
        const QRectF& plot = chart.plane.plot;
        QPolygonF area;
        for (const ChartCurve& curve : chart.curves) {
            if (curve.family == ChartFamily::Saturation)
                area = curve.line;
        }
        if (area.isEmpty())
            area << plot.topLeft();
        area << QPointF(area.back().x(), plot.top()) << plot.topRight() << plot.bottomRight()
             << plot.bottomLeft();
        if (area.back().y() < plot.bottom())
            area.pop_back();
        QPainterPath path;
        path.addPolygon(area);
        path.closeSubpath();
        return path;
    }

    /// The middle of the nearest row or column of the screen's pixels, where a thin line is sharp.
    QPointF sharp(const QPointF& place) const
    {
        const double ratio = painter.device()->devicePixelRatioF();
        const auto middle = [ratio](double x) { return (std::floor(x * ratio) + 0.5) / ratio; };
        return {middle(place.x()), middle(place.y())};
    }

    void paintCurve(const ChartCurve& curve)
    {
        painter.setPen(colours.pen(curve.family));
        const bool isGrid =
            curve.family == ChartFamily::DryBulb || curve.family == ChartFamily::HumidityRatio;
        if (isGrid)
            painter.drawLine(sharp(curve.line.front()), sharp(curve.line.back()));
        else
            painter.drawPolyline(curve.line);
    }

    /// The two axes that carry figures.
    void paintFrame()
    {
        const QRectF& plot = chart.plane.plot;
        painter.setPen(colours.axis());
        painter.drawLine(sharp(plot.bottomLeft()), sharp(plot.bottomRight()));
        painter.drawLine(sharp(plot.bottomRight()), sharp(plot.topRight()));
    }

    /// The lines end before the names that stand on them.
    void paintHalos()
    {
        for (const ChartLabel& label : chart.labels.all()) {
            const bool isInPlot = label.angle != 0 || label.calculator;
            if (isInPlot && chart.plane.plot.contains(label.centre) && isBelowSaturation(label)) {
                QPainterPath path;
                path.addPolygon(label.outline());
                painter.fillPath(path, colours.paper());
            }
        }
    }

    bool isBelowSaturation(const ChartLabel& label) const
    {
        const ChartPlane& plane = chart.plane;
        const auto isBelow = [&](const QPointF& corner) {
            return plane.wAt(corner.y()) < chart.air.saturated(plane.tdbAt(corner.x()));
        };
        const QPolygonF outline = label.outline();
        return std::all_of(outline.begin(), outline.end(), isBelow);
    }

    void paintProcesses(const ChartRun& run)
    {
        painter.save();
        painter.setClipRect(chart.plane.plot);
        for (const ChartProcess& process : run.processes) {
            const QPointF from = chart.placeOf(run.states[process.from]);
            const QPointF to = chart.placeOf(run.states[process.to]);
            painter.setPen(QPen(colours.run(run.calculator), 1.8));
            painter.drawLine(from, to);
            if (process.isDirected)
                paintArrow(from, to, colours.run(run.calculator));
        }
        painter.restore();
    }

    /// Amid the line, where there is room for it between the marks.
    void paintArrow(const QPointF& from, const QPointF& to, const QColor& colour)
    {
        const QLineF line(from, to);
        if (line.length() < 6 * markRadius)
            return;
        const QPointF ahead = (to - from) / line.length();
        const QPointF aside(-ahead.y(), ahead.x());
        const QPointF tip = line.pointAt(0.5) + ahead * 5;
        const QPointF corners[] = {tip, tip - ahead * 10 + aside * 4, tip - ahead * 10 - aside * 4};
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawPolygon(corners, 3);
    }

    /// Hollow, where the state was found at another pressure than the chart's.
    void paintMark(const ChartMark& mark)
    {
        const QColor colour = colours.run(mark.calculator);
        const bool isOfThisPressure = mark.state->pressure == chart.air.pressure();
        painter.setPen(QPen(isOfThisPressure ? colours.paper() : colour, 1.5));
        painter.setBrush(isOfThisPressure ? colour : colours.paper());
        painter.drawEllipse(mark.place, markRadius, markRadius);
    }

    void paintLabel(const ChartLabel& label)
    {
        painter.save();
        painter.setPen(label.calculator ? colours.run(*label.calculator) : colours.text(label.family));
        painter.translate(label.centre);
        painter.rotate(label.angle);
        const QSizeF& size = label.size;
        painter.drawText(QRectF(QPointF(-size.width(), -size.height()) / 2, size), Qt::AlignCenter,
                         label.text);
        painter.restore();
    }

    QPainter& painter;
    const ChartLayout& chart;
    ChartColours colours;
};

} // namespace

void PaintChart(QPainter& painter, const ChartLayout& chart, const QPalette& palette)
{
    ChartPainter(painter, chart, palette).paint();
}
