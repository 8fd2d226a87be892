#include "chart/Labels.h"

#include "chart/Plane.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace chart {
namespace {

/// The shadow of a polygon on a direction.
Axis shadow(const QPolygonF& polygon, const QPointF& direction)
{
    const double first = QPointF::dotProduct(polygon.front(), direction);
    Axis found{first, first};
    for (const QPointF& corner : polygon) {
        const double along = QPointF::dotProduct(corner, direction);
        found = {std::min(found.low, along), std::max(found.high, along)};
    }
    return found;
}

/// True if a line along one side of `one` has the two on different sides.
bool isSeparated(const QPolygonF& one, const QPolygonF& other)
{
    for (int side = 0; side < one.size(); ++side) {
        const QPointF along = one[(side + 1) % one.size()] - one[side];
        if (along.isNull())
            continue; // a segment between equal points
        const QPointF across(-along.y(), along.x());
        const Axis here = shadow(one, across);
        const Axis there = shadow(other, across);
        const double margin = 1e-3 * (std::fabs(across.x()) + std::fabs(across.y())); // so that none touch
        if (here.high + margin < there.low || there.high + margin < here.low)
            return true;
    }
    return false;
}

/// Rectangles without area count, too.
bool overlap(const QRectF& one, const QRectF& other)
{
    return one.left() <= other.right() && other.left() <= one.right() && one.top() <= other.bottom() &&
           other.top() <= one.bottom();
}

} // namespace

QPolygonF Label::outline() const
{
    const double x = size.width() / 2;
    const double y = size.height() / 2;
    const QPolygonF corners({{-x, -y}, {x, -y}, {x, y}, {-x, y}});
    if (angle == 0)
        return corners.translated(center);
    QTransform turn;
    turn.translate(center.x(), center.y());
    turn.rotate(angle);
    return turn.map(corners);
}

bool Labels::isFree(const Obstacle& place) const
{
    const auto isTouched = [&](const Obstacle& other) {
        return overlap(place.bounds, other.bounds) && !isSeparated(place.corners, other.corners) &&
               !isSeparated(other.corners, place.corners);
    };
    return picture.contains(place.bounds) && std::none_of(avoided.begin(), avoided.end(), isTouched);
}

Labels::Obstacle Labels::placeOf(const Label& label)
{
    const QPolygonF outline = label.outline();
    return {outline, outline.boundingRect()};
}

bool Labels::hasPlaceFor(const std::vector<Label>& candidates) const
{
    return std::any_of(candidates.begin(), candidates.end(),
                       [this](const Label& label) { return isFree(placeOf(label)); });
}

bool Labels::add(const Label& label)
{
    Obstacle place = placeOf(label);
    if (!isFree(place))
        return false;
    avoided.push_back(std::move(place));
    labels.push_back(label);
    return true;
}

bool Labels::addOnOneOf(const std::vector<Label>& candidates)
{
    return std::any_of(candidates.begin(), candidates.end(),
                       [this](const Label& label) { return add(label); });
}

bool Labels::addOneOfEach(const std::vector<std::vector<Label>>& lists)
{
    const auto avoidedBefore = avoided.begin() - avoided.end();
    const auto labelsBefore = labels.begin() - labels.end();
    if (std::all_of(lists.begin(), lists.end(), [this](const auto& list) { return addOnOneOf(list); }))
        return true;
    avoided.erase(avoided.begin() - avoidedBefore, avoided.end());
    labels.erase(labels.begin() - labelsBefore, labels.end());
    return false;
}

void Labels::avoid(const QPolygonF& area) { avoided.push_back({area, area.boundingRect()}); }

void Labels::avoidLine(const QPolygonF& line)
{
    for (int corner = 1; corner < line.size(); ++corner)
        avoid({line[corner - 1], line[corner]});
}

} // namespace chart
