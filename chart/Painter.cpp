#include "chart/Painter.h"

#include "chart/Layout.h"
#include "chart/Theme.h"

#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace chart {
namespace {

constexpr double markRadius = 4;

class Painter
{
public:
    Painter(QPainter& on, const Layout& laidOut, const QPalette& palette)
        : painter(on), chart(laidOut), theme(palette)
    {}

    void paint()
    {
        painter.setFont(chart.font);
        painter.save();
        painter.setClipRect(chart.plane.plot.adjusted(-1, -1, 1, 1));
        painter.fillPath(airArea(), theme.paper());
        for (const Curve& curve : chart.curves)
            paintCurve(curve);
        painter.restore();
        paintFrame();
        paintHalos();
        for (const Run& run : chart.runs) {
            if (run.isJoined)
                paintProcess(run);
        }
        for (const Mark& mark : chart.marks)
            paintMark(mark);
        for (const Label& label : chart.labels.all())
            paintLabel(label);
    }

private:
    /// The area below the saturation curve.
    QPainterPath airArea() const
    {
        const QRectF& plot = chart.plane.plot;
        QPolygonF area;
        for (const Curve& curve : chart.curves) {
            if (curve.family == Family::Saturation)
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

    /// The center of the device pixel at that place, where thin lines are sharp.
    QPointF sharp(const QPointF& place) const
    {
        const double ratio = painter.device()->devicePixelRatioF();
        const auto middle = [ratio](double x) { return (std::floor(x * ratio) + 0.5) / ratio; };
        return {middle(place.x()), middle(place.y())};
    }

    void paintCurve(const Curve& curve)
    {
        painter.setPen(theme.pen(curve.family));
        const bool isGrid = curve.family == Family::DryBulb || curve.family == Family::HumidityRatio;
        if (isGrid)
            painter.drawLine(sharp(curve.line.front()), sharp(curve.line.back()));
        else
            painter.drawPolyline(curve.line);
    }

    /// The two axes with figures.
    void paintFrame()
    {
        const QRectF& plot = chart.plane.plot;
        painter.setPen(theme.axis());
        painter.drawLine(sharp(plot.bottomLeft()), sharp(plot.bottomRight()));
        painter.drawLine(sharp(plot.bottomRight()), sharp(plot.topRight()));
    }

    /// Clears the lines behind the names on them.
    void paintHalos()
    {
        for (const Label& label : chart.labels.all()) {
            const bool isInPlot = label.angle != 0 || label.calculator;
            if (isInPlot && chart.plane.plot.contains(label.center) && isBelowSaturation(label)) {
                QPainterPath path;
                path.addPolygon(label.outline());
                painter.fillPath(path, theme.paper());
            }
        }
    }

    bool isBelowSaturation(const Label& label) const
    {
        const Plane& plane = chart.plane;
        const auto isBelow = [&](const QPointF& corner) {
            const Place place = plane.placeAt(corner);
            return place.W < chart.air.saturated(place.Tdb);
        };
        const QPolygonF outline = label.outline();
        return std::all_of(outline.begin(), outline.end(), isBelow);
    }

    void paintProcess(const Run& run)
    {
        const QPointF from = chart.placeOf(run.states[0]);
        const QPointF to = chart.placeOf(run.states[1]);
        const QColor color = theme.run(run.calculator);
        painter.save();
        painter.setClipRect(chart.plane.plot);
        painter.setPen(QPen(color, 1.8));
        painter.drawLine(from, to);
        if (run.isDirected())
            paintArrow(from, to, color);
        painter.restore();
    }

    /// At the middle of the line, if there is enough space between the marks.
    void paintArrow(const QPointF& from, const QPointF& to, const QColor& color)
    {
        const QLineF line(from, to);
        if (line.length() < 6 * markRadius)
            return;
        const QPointF ahead = (to - from) / line.length();
        const QPointF aside(-ahead.y(), ahead.x());
        const QPointF tip = line.pointAt(0.5) + ahead * 5;
        const QPointF corners[] = {tip, tip - ahead * 10 + aside * 4, tip - ahead * 10 - aside * 4};
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawPolygon(corners, 3);
    }

    /// Hollow if the state's pressure differs from the chart's.
    void paintMark(const Mark& mark)
    {
        const QColor color = mark.calculator ? theme.run(*mark.calculator) : theme.text({});
        const bool isOfThisPressure = mark.state.P == chart.air.pressure();
        painter.setPen(QPen(isOfThisPressure ? theme.paper() : color, 1.5));
        painter.setBrush(isOfThisPressure ? color : theme.paper());
        painter.drawEllipse(mark.place, markRadius, markRadius);
    }

    void paintLabel(const Label& label)
    {
        painter.save();
        painter.setPen(label.calculator ? theme.run(*label.calculator) : theme.text(label.family));
        painter.translate(label.center);
        painter.rotate(label.angle);
        const QSizeF& size = label.size;
        painter.drawText(QRectF(QPointF(-size.width(), -size.height()) / 2, size), Qt::AlignCenter,
                         label.text);
        painter.restore();
    }

    QPainter& painter;
    const Layout& chart;
    Theme theme;
};

} // namespace

void Paint(QPainter& painter, const Layout& chart, const QPalette& palette)
{
    Painter(painter, chart, palette).paint();
}

} // namespace chart
