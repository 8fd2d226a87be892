#pragma once

#include "chart/Layout.h"
#include "chart/Lettering.h"
#include "chart/Scales.h"

#include <vector>

namespace chart {

/// The pressure, and the title of each run with its numbered states. The legend is in the empty corner above
/// saturation, with one line for each run. If the corner is too small, it is in a strip above the plot.
class Legend
{
public:
    Legend(const Layout& chart, const Lettering& letters);

    /// The labels in the corner, or none if one of them would be nearer to the rim of the air than `least`.
    std::vector<Label> inCorner(const Rim& rim, double least) const;

    /// Fills the strip line by line and keeps each run on one line.
    std::vector<Label> inStrip(const QRectF& strip) const;
    double stripHeight(double width) const;

private:
    using Line = std::vector<Label>;

    Label entry(const QString& text, std::optional<Calculator> calculator) const;
    Line lineOf(const Run& run, int& number) const;
    QString nameOf(const RunState& state) const;
    double widthOf(const Line& line) const;
    QPointF cornerStart(std::size_t index) const;
    /// Appends the line's labels, placed from topLeft on.
    void append(const Line& line, QPointF topLeft, std::vector<Label>& labels) const;

    const Air& air;
    const Plane& plane;
    bool isWhole; // not zoomed
    const Lettering& letters;
    double lineHeight;
    std::vector<Line> lines;
};

} // namespace chart
