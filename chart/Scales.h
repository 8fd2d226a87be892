#pragma once

#include "chart/Frame.h"

#include <QLineF>

#include <optional>

namespace chart {

/// The edge of the air where the oblique lines end: the cold edge of the plot, saturation, and the moist
/// edge.
class Rim
{
public:
    Rim(const Plane& plane, const QPolygonF& saturation);

    const QPolygonF& line() const { return rim; }
    Rim withoutColdEdge() const;
    double distanceTo(const QPointF& point) const;
    /// The direction away from the air at a point of the rim.
    QPointF outwardAt(const QPointF& point) const;
    /// A line outside the rim, at a distance that depends on the direction.
    template <class DistanceOf>
    QPolygonF outside(const DistanceOf& distanceOf) const
    {
        QPolygonF moved;
        for (int chord = 1; chord < rim.size(); ++chord) {
            const QPointF away = outward(chord);
            moved << rim[chord - 1] + away * distanceOf(away) << rim[chord] + away * distanceOf(away);
        }
        return moved;
    }

private:
    QPointF outward(int chord) const;
    int nearestChord(const QPointF& point) const;

    QPolygonF rim; ///< from cold to moist
    bool isMollier;
    bool hasColdEdge = false;
};

/// A place on a scale, and the direction of its figure.
struct ScaleMark
{
    QLineF tick;
    QPointF outward;
};

/// Where the extension of a curve beyond its start meets a scale.
std::optional<ScaleMark> MarkOn(const QPolygonF& scale, const Curve& curve, const Rim& rim);

/// The distance from a point in that direction to the center of a label that begins at the point.
double Reach(const QSizeF& label, const QPointF& direction);

} // namespace chart
