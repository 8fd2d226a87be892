#pragma once

#include "chart/Curves.h"
#include "core/LastRuns.h"

#include <QPolygonF>
#include <QString>

#include <optional>
#include <vector>

namespace chart {

/// A text on the chart.
struct Label
{
    QString text;
    QSizeF size;
    std::optional<Family> family{};         ///< the curves that it names, or
    std::optional<Calculator> calculator{}; ///< the calculator whose states it names
    QPointF center{};
    double angle = 0; ///< degrees, clockwise

    /// Its four corners.
    QPolygonF outline() const;
};

/// The placed labels. All are inside the picture, and none touches another label or an avoided area.
class Labels
{
public:
    explicit Labels(const QRectF& ofPicture) : picture(ofPicture) {}

    /// Adds the label if its place is free.
    bool add(const Label& label);
    /// Adds the first candidate whose place is free, if any.
    bool addOnOneOf(const std::vector<Label>& candidates);
    /// Keeps later labels off an area. Labels already there stay.
    void avoid(const QPolygonF& area) { avoided.push_back(area); }

    const std::vector<Label>& all() const { return labels; }

private:
    bool isFree(const QPolygonF& place) const;

    QRectF picture;
    std::vector<QPolygonF> avoided;
    std::vector<Label> labels;
};

} // namespace chart
