#include "chart/Labels.h"

#include <QTransform>

#include <algorithm>

namespace chart {

QPolygonF Label::outline() const
{
    QTransform turn;
    turn.translate(center.x(), center.y());
    turn.rotate(angle);
    const double x = size.width() / 2;
    const double y = size.height() / 2;
    return turn.map(QPolygonF({{-x, -y}, {x, -y}, {x, y}, {-x, y}}));
}

bool Labels::isFree(const QPolygonF& place) const
{
    const auto isTouched = [&](const QPolygonF& other) { return place.intersects(other); };
    return std::all_of(place.begin(), place.end(), [&](const QPointF& c) { return picture.contains(c); }) &&
           std::none_of(avoided.begin(), avoided.end(), isTouched);
}

bool Labels::add(const Label& label)
{
    const QPolygonF place = label.outline();
    if (!isFree(place))
        return false;
    avoid(place);
    labels.push_back(label);
    return true;
}

bool Labels::addOnOneOf(const std::vector<Label>& candidates)
{
    return std::any_of(candidates.begin(), candidates.end(),
                       [this](const Label& label) { return add(label); });
}

} // namespace chart
