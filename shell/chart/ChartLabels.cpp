#include "shell/chart/ChartLabels.h"

#include <QTransform>

#include <algorithm>
#include <limits>

namespace {

struct Shadow
{
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();
};

Shadow shadowOn(const QPointF& axis, const QPolygonF& shape)
{
    Shadow shadow;
    for (const QPointF& corner : shape) {
        const double place = QPointF::dotProduct(axis, corner);
        shadow.low = std::min(shadow.low, place);
        shadow.high = std::max(shadow.high, place);
    }
    return shadow;
}

/// Whether a line along one side of the shape parts the two.
bool isPartedBySides(const QPolygonF& shape, const QPolygonF& another)
{
    for (qsizetype corner = 0; corner < shape.size(); ++corner) {
        const QPointF side = shape.at((corner + 1) % shape.size()) - shape.at(corner);
        const QPointF across(-side.y(), side.x());
        const Shadow mine = shadowOn(across, shape);
        const Shadow its = shadowOn(across, another);
        if (mine.high < its.low || its.high < mine.low)
            return true;
    }
    return false;
}

} // namespace

bool Touch(const QPolygonF& left, const QPolygonF& right)
{
    return !isPartedBySides(left, right) && !isPartedBySides(right, left);
}

QPolygonF ChartLabel::outline() const
{
    QTransform turn;
    turn.translate(centre.x(), centre.y());
    turn.rotate(angle);
    const double x = size.width() / 2;
    const double y = size.height() / 2;
    return turn.map(QPolygonF({{-x, -y}, {x, -y}, {x, y}, {-x, y}}));
}

bool ChartLabels::isFree(const QPolygonF& place) const
{
    const auto isTouched = [&](const QPolygonF& other) { return Touch(place, other); };
    return std::all_of(place.begin(), place.end(), [&](const QPointF& c) { return picture.contains(c); }) &&
           std::none_of(avoided.begin(), avoided.end(), isTouched);
}

bool ChartLabels::add(const ChartLabel& label)
{
    const QPolygonF place = label.outline();
    if (!isFree(place))
        return false;
    avoid(place);
    labels.push_back(label);
    return true;
}

bool ChartLabels::addOnOneOf(const std::vector<ChartLabel>& candidates)
{
    return std::any_of(candidates.begin(), candidates.end(),
                       [this](const ChartLabel& label) { return add(label); });
}
