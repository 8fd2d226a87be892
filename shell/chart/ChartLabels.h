#pragma once

#include "shell/chart/ChartCurves.h"

#include <QPolygonF>
#include <QString>

#include <optional>
#include <vector>

/// A text on the chart.
struct ChartLabel
{
    QString text;
    QPointF centre{};
    double angle = 0; ///< degrees, clockwise
    QSizeF size;
    std::optional<ChartFamily> family{};     ///< whose curves it names,
    std::optional<std::size_t> calculator{}; ///< or whose states

    /// The four corners of its place.
    QPolygonF outline() const;
};

/// The labels that found a place: none leaves the picture, and none touches another or what it shall avoid.
class ChartLabels
{
public:
    explicit ChartLabels(const QRectF& place) : picture(place) {}

    /// Keeps the label if its place is free.
    bool add(const ChartLabel& label);
    /// Keeps the label on the first of these places that is free, if any is.
    bool addOnOneOf(const std::vector<ChartLabel>& candidates);
    /// Keeps labels off a place; one that has its label already keeps it.
    void avoid(const QPolygonF& place) { avoided.push_back(place); }

    const std::vector<ChartLabel>& all() const { return labels; }

private:
    bool isFree(const QPolygonF& place) const;

    QRectF picture;
    std::vector<QPolygonF> avoided;
    std::vector<ChartLabel> labels;
};

/// Whether two convex outlines have a point in common.
bool Touch(const QPolygonF& left, const QPolygonF& right);
