#pragma once

#include "chart/Labels.h"
#include "chart/Plane.h"
#include "chart/Runs.h"

#include <QFontMetricsF>

#include <vector>

namespace chart {

/// The pressure, and the title of each run with its numbered states. The legend is in the empty corner above
/// saturation, one line for each run, or in a strip over the plot if the corner is too small.
class Legend
{
public:
    Legend(const Air& air, const Span& shown, const std::vector<Run>& runs, const QFontMetricsF& font);

    /// Whether there is room in the corner of that plot beside the saturation curve and its labels.
    bool fitsCorner(const Air& air, const Plane& plane) const;
    std::vector<Label> inCorner(const QRectF& plot) const;

    /// Fills line by line, and keeps each run on one line.
    std::vector<Label> inStrip(const QRectF& strip) const;
    double stripHeight(double width) const;

private:
    using Line = std::vector<Label>;

    Label entry(const QString& text, std::optional<Calculator> calculator) const;
    Line lineOf(const Run& run, int& number) const;
    QString nameOf(const RunState& state) const;
    double widthOf(const Line& line) const;
    /// Appends the line's labels, placed from that corner on.
    void place(const Line& line, QPointF topLeft, std::vector<Label>& labels) const;

    Single pressure;
    Span span;
    QFontMetricsF metrics;
    double lineHeight = metrics.height() * 1.3;
    std::vector<Line> lines;
};

} // namespace chart
