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
    QSizeF size{};
    std::optional<Family> family{};         ///< the curves that it names, or
    std::optional<Calculator> calculator{}; ///< the calculator whose states it names
    QPointF center{};
    double angle = 0;     ///< degrees, clockwise
    bool hasHalo = false; ///< the lines behind it are cleared
    bool isTitle = false; ///< in large letters
    double textWidth = 0;

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
    /// True if one of the candidates has a free place.
    bool hasPlaceFor(const std::vector<Label>& candidates) const;
    /// Adds one candidate of every list, or nothing if one of the lists has no free place.
    bool addOneOfEach(const std::vector<std::vector<Label>>& lists);
    /// Keeps later labels off a convex area or a segment. Labels already there stay.
    void avoid(const QPolygonF& area);
    /// Keeps later labels off every chord of a line.
    void avoidLine(const QPolygonF& line);

    const std::vector<Label>& all() const { return labels; }

private:
    struct Obstacle
    {
        QPolygonF corners;
        QRectF bounds;
    };

    static Obstacle placeOf(const Label& label);
    bool isFree(const Obstacle& place) const;

    QRectF picture;
    std::vector<Obstacle> avoided;
    std::vector<Label> labels;
};

} // namespace chart
