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
    std::optional<Family> family{};         ///< of the curves that it names, or
    std::optional<Calculator> calculator{}; ///< of the states that it names
    QPointF center{};
    double angle = 0; ///< degrees, clockwise

    /// Its four corners.
    QPolygonF outline() const;
};

/// The labels that found room: all are inside the picture, and none touches another or an avoided area.
class Labels
{
public:
    explicit Labels(const QRectF& ofPicture) : picture(ofPicture) {}

    /// Adds the label if its place is free.
    bool add(const Label& label);
    /// Adds the label at the first of these places that is free, if any.
    bool addOnOneOf(const std::vector<Label>& candidates);
    /// Keeps labels off an area. Labels that are there already stay.
    void avoid(const QPolygonF& area) { avoided.push_back(area); }

    const std::vector<Label>& all() const { return labels; }

private:
    bool isFree(const QPolygonF& place) const;

    QRectF picture;
    std::vector<QPolygonF> avoided;
    std::vector<Label> labels;
};

} // namespace chart
