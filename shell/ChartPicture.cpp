#include "shell/ChartPicture.h"

#include "core/MainMod.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <algorithm>

namespace {

/// What the chart spans, in the units in force.
struct Span
{
    Single lowestTdb;
    Single highestTdb;
    int tdbTicks;
    Single highestW;
    int humidityTicks;
    double humidityScale; ///< from W to the figures of the axis
    const char* tdbTitle;
    const char* humidityTitle;
};

constexpr Span english{30, 120, 9, 0.03F, 6, 1.0, "Dry bulb, deg F", "Humidity ratio, lb/lb"};
constexpr Span metric{0, 50, 10, 0.03F, 6, 1000.0, "Dry bulb, deg C", "Humidity ratio, g/kg"};

/// Turns states into places on the picture.
struct Plane
{
    const Span& span;
    QRectF plot;

    QPointF at(Single tdb, Single w) const
    {
        const double across = (tdb - span.lowestTdb) / (span.highestTdb - span.lowestTdb);
        return {plot.left() + across * plot.width(), plot.bottom() - w / span.highestW * plot.height()};
    }
    Single tdbAt(int tick) const
    {
        return span.lowestTdb + (span.highestTdb - span.lowestTdb) * static_cast<Single>(tick) /
                                    static_cast<Single>(span.tdbTicks);
    }
    Single humidityAt(int tick) const
    {
        return span.highestW * static_cast<Single>(tick) / static_cast<Single>(span.humidityTicks);
    }
};

/// Far above the picture: where water boils at the pressure in force.
constexpr Single offTheChart = 1.0F;

Single humidityRatio(Single tdb, Single relativeHumidity)
{
    const Single pressure = IsMetric() ? BaroPressure * 1000 : BaroPressure;
    const Single vapor = VaporPressureFromRH(relativeHumidity, SaturationPressure(ToAbsolute(tdb)));
    if (vapor >= pressure)
        return offTheChart;
    return std::min(HumidityRatioFromVaporPressure(vapor, pressure), offTheChart);
}

QPainterPath curveOf(const Plane& plane, Single relativeHumidity)
{
    constexpr int steps = 120;
    QPainterPath curve;
    for (int step = 0; step <= steps; ++step) {
        const Single tdb = plane.span.lowestTdb +
                           (plane.span.highestTdb - plane.span.lowestTdb) * static_cast<Single>(step) / steps;
        const QPointF point = plane.at(tdb, humidityRatio(tdb, relativeHumidity));
        step == 0 ? curve.moveTo(point) : curve.lineTo(point);
    }
    return curve;
}

/// The part of the picture that air can be in: below the saturation curve.
QPainterPath belowSaturation(const Plane& plane)
{
    QPainterPath area = curveOf(plane, 1.0F);
    area.lineTo(plane.at(plane.span.highestTdb, 1.0F));
    area.lineTo(plane.at(plane.span.highestTdb, 0.0F));
    area.lineTo(plane.at(plane.span.lowestTdb, 0.0F));
    area.closeSubpath();
    QPainterPath whole;
    whole.addRect(plane.plot);
    return area.intersected(whole);
}

void paintScales(QPainter& painter, const Plane& plane)
{
    const int lineHeight = painter.fontMetrics().height();
    for (int tick = 0; tick <= plane.span.tdbTicks; ++tick) {
        const Single tdb = plane.tdbAt(tick);
        const QPointF foot = plane.at(tdb, 0);
        painter.drawText(QRectF(foot.x() - 30, foot.y() + 4, 60, lineHeight), Qt::AlignCenter,
                         QString::number(tdb));
    }
    for (int tick = 0; tick <= plane.span.humidityTicks; ++tick) {
        const Single w = plane.humidityAt(tick);
        const QPointF end = plane.at(plane.span.highestTdb, w);
        painter.drawText(QRectF(end.x() + 6, end.y() - lineHeight / 2.0, 60, lineHeight),
                         Qt::AlignLeft | Qt::AlignVCenter,
                         QString::number(w * plane.span.humidityScale, 'g', 3));
    }
    const QRectF& plot = plane.plot;
    painter.drawText(QRectF(plot.left(), plot.bottom() + 8 + lineHeight, plot.width(), lineHeight),
                     Qt::AlignCenter, plane.span.tdbTitle);
    painter.drawText(QRectF(plot.left(), plot.top() - 1.6 * lineHeight, plot.width() + 60, lineHeight),
                     Qt::AlignRight, plane.span.humidityTitle);
}

void paintGrid(QPainter& painter, const Plane& plane)
{
    for (int tick = 0; tick <= plane.span.tdbTicks; ++tick)
        painter.drawLine(plane.at(plane.tdbAt(tick), 0), plane.at(plane.tdbAt(tick), plane.span.highestW));
    for (int tick = 0; tick <= plane.span.humidityTicks; ++tick)
        painter.drawLine(plane.at(plane.span.lowestTdb, plane.humidityAt(tick)),
                         plane.at(plane.span.highestTdb, plane.humidityAt(tick)));
}

void paintCurves(QPainter& painter, const Plane& plane, const QColor& strong)
{
    QColor quiet = strong;
    quiet.setAlpha(150);
    painter.setPen(QPen(quiet, 1)); // a wider pen takes a slower way, which the program's start would feel
    for (const Single relativeHumidity : {0.2F, 0.4F, 0.6F, 0.8F})
        painter.drawPath(curveOf(plane, relativeHumidity));
}

} // namespace

void paintChart(QPainter& painter, const QRect& place)
{
    const QPalette palette = QGuiApplication::palette();
    const QColor ink = palette.color(QPalette::WindowText);
    QColor grid = ink;
    grid.setAlpha(45);
    const bool isDark = palette.color(QPalette::Base).lightness() < 128;
    const QColor strong = isDark ? QColor(110, 190, 255) : QColor(20, 90, 170);

    const int lineHeight = painter.fontMetrics().height();
    const QRectF plot = QRectF(place).adjusted(24, 2.0 * lineHeight, -60, -2.0 * lineHeight - 12);
    const Plane plane{IsMetric() ? metric : english, plot};

    const QPainterPath air = belowSaturation(plane);
    painter.setClipPath(air);
    painter.fillPath(air, palette.color(QPalette::Base));
    painter.setPen(QPen(grid, 1));
    paintGrid(painter, plane);
    paintCurves(painter, plane, strong);

    painter.setClipRect(plot.adjusted(-2, -2, 2, 2));
    painter.setPen(QPen(strong, 2.6));
    painter.drawPath(curveOf(plane, 1.0F));

    painter.setClipping(false);
    painter.setPen(ink);
    paintScales(painter, plane);
}
