#include "chart/Scales.h"

#include <cmath>

namespace chart {
namespace {

double lengthOf(const QPointF& way) { return std::hypot(way.x(), way.y()); }

double squaredDistance(const QPointF& first, const QPointF& last, const QPointF& point)
{
    const QPointF along = last - first;
    const double square = QPointF::dotProduct(along, along);
    const double part = square > 0 ? QPointF::dotProduct(point - first, along) / square : 0;
    const QPointF away = point - (first + along * std::clamp(part, 0.0, 1.0));
    return QPointF::dotProduct(away, away);
}

} // namespace

Rim::Rim(const Plane& plane, const QPolygonF& saturation) : isMollier(plane.isMollier)
{
    constexpr double onEdge = 0.5;
    const QRectF& plot = plane.plot;
    const QPointF cold = plot.bottomLeft();
    const QPointF fog = isMollier ? plot.bottomRight() : plot.topLeft();
    const QPointF moist = plot.topRight();
    if (saturation.isEmpty()) {
        rim = {cold, fog, moist};
        return;
    }
    const QPointF first = saturation.front();
    const QPointF last = saturation.back();
    const bool fromColdEdge = isMollier ? first.y() > cold.y() - onEdge : first.x() < cold.x() + onEdge;
    hasColdEdge = fromColdEdge && first != cold;
    if (hasColdEdge)
        rim << cold;
    rim << saturation;
    const bool toMoistEdge = isMollier ? last.x() > moist.x() - onEdge : last.y() < moist.y() + onEdge;
    if (toMoistEdge && last != moist)
        rim << moist;
}

/// In the psychrometric form, the air is on the right of the rim from cold to moist, in Mollier's on the
/// left.
QPointF Rim::outward(int chord) const
{
    const QPointF along = rim[chord] - rim[chord - 1];
    const QPointF left(along.y(), -along.x());
    const double length = lengthOf(along);
    return length > 0 ? (isMollier ? -left : left) / length : QPointF(0, isMollier ? 1 : -1);
}

Rim Rim::withoutColdEdge() const
{
    Rim rest = *this;
    if (hasColdEdge)
        rest.rim.removeFirst();
    return rest;
}

int Rim::nearestChord(const QPointF& point) const
{
    int nearest = 1;
    double least = std::numeric_limits<double>::infinity();
    for (int chord = 1; chord < rim.size(); ++chord) {
        const double away = squaredDistance(rim[chord - 1], rim[chord], point);
        if (away < least) {
            least = away;
            nearest = chord;
        }
    }
    return nearest;
}

QPointF Rim::outwardAt(const QPointF& point) const { return outward(nearestChord(point)); }

double Rim::distanceTo(const QPointF& point) const
{
    const int chord = nearestChord(point);
    return std::sqrt(squaredDistance(rim[chord - 1], rim[chord], point));
}

std::optional<ScaleMark> MarkOn(const QPolygonF& scale, const Curve& curve, const Rim& rim)
{
    constexpr double farAway = 200;
    const QPointF start = curve.line.front();
    const QPointF back = start - curve.line[1];
    const QPointF way = back / lengthOf(back);
    const QLineF ray(start, start + way * farAway);
    for (int chord = 1; chord < scale.size(); ++chord) {
        QPointF met;
        if (ray.intersects({scale[chord - 1], scale[chord]}, &met) == QLineF::BoundedIntersection)
            return ScaleMark{{met, met + way * Tick}, rim.outwardAt(start)};
    }
    return std::nullopt;
}

double Reach(const QSizeF& label, const QPointF& direction)
{
    return (std::fabs(direction.x()) * label.width() + std::fabs(direction.y()) * label.height()) / 2;
}

} // namespace chart
