#pragma once

#include "chart/Labels.h"
#include "chart/Plane.h"
#include "chart/Runs.h"

#include <QFontMetricsF>

#include <vector>

namespace chart {

/// The pressure, and the title of each run with its numbered states. The legend is in the empty corner above
/// saturation, with one line for each run. If the corner is too small, it is in a strip above the plot.
class Legend
{
public:
    Legend(const Air& air, const Plane& shown, const std::vector<Run>& runs, const QFontMetricsF& font);

    /// True if the corner of the plot has enough space beside the saturation curve and its labels.
    bool fitsCorner(const Air& air, const Plane& plane) const;
    std::vector<Label> inCorner(const QRectF& plot) const;

    /// Fills the strip line by line and keeps each run on one line.
    std::vector<Label> inStrip(const QRectF& strip) const;
    double stripHeight(double width) const;

private:
    using Line = std::vector<Label>;

    Label entry(const QString& text, std::optional<Calculator> calculator) const;
    Line lineOf(const Run& run, int& number) const;
    QString nameOf(const RunState& state) const;
    double widthOf(const Line& line) const;
    /// Appends the line's labels, placed from topLeft on.
    void place(const Line& line, QPointF topLeft, std::vector<Label>& labels) const;

    Single pressure;
    Plane shownPlane;
    QFontMetricsF metrics;
    double lineHeight = metrics.height() * 1.3;
    std::vector<Line> lines;
};

} // namespace chart
