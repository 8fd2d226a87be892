#include "chart/Painter.h"

#include "chart/Layout.h"
#include "chart/Lettering.h"
#include "chart/Theme.h"

#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace chart {
namespace {

constexpr double markRadius = 4;

/// Paints without smooth edges, which is several times faster, where nobody sees them: on upright lines and
/// on areas whose edges have a line or the color of their ground.
class Rough
{
public:
    explicit Rough(QPainter& on) : painter(on), wasSmooth(on.testRenderHint(QPainter::Antialiasing))
    {
        painter.setRenderHint(QPainter::Antialiasing, false);
    }
    ~Rough() { painter.setRenderHint(QPainter::Antialiasing, wasSmooth); }
    Rough(const Rough&) = delete;
    Rough& operator=(const Rough&) = delete;

private:
    QPainter& painter;
    bool wasSmooth;
};

class Painter
{
public:
    Painter(QPainter& on, const Layout& laidOut, const QPalette& palette)
        : painter(on), chart(laidOut), theme(palette)
    {}

    void paint()
    {
        painter.setFont(chart.font);
        paintPaper();
        paintZones();
        for (const Curve& curve : chart.curves)
            paintCurve(curve);
        paintFrame();
        paintScales();
        for (const HeatRatio& ratio : chart.heatRatios)
            paintHeatRatio(ratio);
        paintHalos();
        for (const Process& process : chart.processes)
            paintProcess(process);
        for (const Mark& mark : chart.marks)
            paintMark(mark);
        for (const Label& label : chart.labels.all())
            paintLabel(label);
        paintCrossHair();
    }

private:
    /// The center of the device pixel at that place, where thin lines are sharp.
    QPointF sharp(const QPointF& place) const
    {
        const double ratio = painter.device()->devicePixelRatioF();
        const auto middle = [ratio](double x) { return (std::floor(x * ratio) + 0.5) / ratio; };
        return {middle(place.x()), middle(place.y())};
    }

    /// One path for each curve.
    void paintCurve(const Curve& curve)
    {
        const bool isGrid = curve.family == Family::DryBulb || curve.family == Family::HumidityRatio;
        const bool isUpright = curve.line.front().x() == curve.line.back().x() ||
                               curve.line.front().y() == curve.line.back().y();
        QPainterPath path;
        if (isGrid && isUpright) {
            const Rough rough(painter);
            path.addPolygon(QPolygonF{sharp(curve.line.front()), sharp(curve.line.back())});
            painter.strokePath(path, theme.pen(curve.family));
            return;
        }
        path.addPolygon(curve.line);
        painter.strokePath(path, theme.pen(curve.family));
    }

    /// The two axes with figures.
    void paintFrame()
    {
        const QRectF& plot = chart.plane.plot;
        const bool isMollier = chart.plane.isMollier;
        QPainterPath path;
        path.addPolygon(QPolygonF{sharp(plot.bottomLeft()),
                                  sharp(isMollier ? plot.topLeft() : plot.bottomRight()),
                                  sharp(plot.topRight())});
        painter.strokePath(path, theme.axis());
    }

    void paintScales()
    {
        QPainterPath ratios;
        QPainterPath enthalpies;
        for (const Curve& scale : chart.scales)
            (scale.family == Family::Enthalpy ? enthalpies : ratios).addPolygon(scale.line);
        painter.strokePath(ratios, theme.axis());
        painter.strokePath(enthalpies, theme.scale(Family::Enthalpy));
    }

    void paintPaper()
    {
        const Rough rough(painter);
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme.paper());
        painter.drawPolygon(chart.airArea);
    }

    void paintZones()
    {
        for (const ComfortZone& zone : chart.zones) {
            painter.setPen(theme.zonePen());
            painter.setBrush(theme.zone());
            painter.drawPolygon(zone.area);
        }
    }

    /// Clears the lines behind the names on them.
    void paintHalos()
    {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme.paper());
        const Rough rough(painter);
        for (const Label& label : chart.labels.all()) {
            if (label.hasHalo && isBelowSaturation(label))
                painter.drawPolygon(label.outline());
        }
    }

    bool isBelowSaturation(const Label& label) const
    {
        const QPolygonF outline = label.outline();
        return std::all_of(outline.begin(), outline.end(), [&](const QPointF& corner) {
            const Place place = chart.plane.placeAt(corner);
            return chart.plane.plot.contains(corner) && place.W < chart.air.saturated(place.Tdb);
        });
    }

    void paintHeatRatio(const HeatRatio& ratio)
    {
        painter.setPen(QPen(theme.run(ratio.calculator), 1, Qt::DashLine));
        painter.drawLine(ratio.line);
    }

    void paintProcess(const Process& process)
    {
        const QColor color = theme.run(process.calculator);
        painter.setPen(QPen(color, 1.8));
        painter.drawLine(process.line);
        if (process.isDirected)
            paintArrow(process.line.p1(), process.line.p2(), color);
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

    /// A disc, or a diamond for a pin. Hollow if the state's pressure differs from the chart's.
    void paintMark(const Mark& mark)
    {
        const QColor color = mark.calculator ? theme.run(*mark.calculator) : theme.text({});
        const bool isOfThisPressure = mark.state.P == chart.air.pressure();
        painter.setPen(QPen(isOfThisPressure ? theme.paper() : color, 1.5));
        painter.setBrush(isOfThisPressure ? color : theme.paper());
        if (mark.calculator) {
            painter.drawEllipse(mark.place, markRadius, markRadius);
            return;
        }
        const QPointF across(markRadius + 1, 0);
        const QPointF up(0, markRadius + 1);
        const QPointF corners[] = {mark.place - across, mark.place - up, mark.place + across,
                                   mark.place + up};
        painter.drawPolygon(corners, 4);
    }

    void paintLabel(const Label& label)
    {
        painter.setPen(label.calculator ? theme.run(*label.calculator) : theme.text(label.family));
        const QFontMetricsF metrics(label.isTitle ? FontOfTitle(chart.font) : chart.font);
        const QPointF start(-label.textWidth / 2, (metrics.ascent() - metrics.descent()) / 2);
        if (label.isTitle)
            painter.setFont(FontOfTitle(chart.font));
        if (label.angle == 0) {
            painter.drawText(label.center + start, label.text);
        } else {
            const QTransform before = painter.transform();
            painter.translate(label.center);
            painter.rotate(label.angle);
            painter.drawText(start, label.text);
            painter.setTransform(before);
        }
        if (label.isTitle)
            painter.setFont(chart.font);
    }

    void paintCrossHair()
    {
        if (chart.crossHairReading.empty())
            return;
        painter.setPen(theme.axis());
        for (const QLineF& line : chart.crossHair)
            painter.drawLine(line);
        painter.setBrush(theme.paper());
        painter.drawRect(chart.crossHairPanel);
        for (const Label& label : chart.crossHairReading)
            paintLabel(label);
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
