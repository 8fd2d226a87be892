#pragma once

#include "shell/chart/ChartLabels.h"
#include "shell/chart/ChartPlane.h"
#include "shell/chart/ChartStates.h"

#include <QFontMetricsF>

#include <vector>

/// The legend: the pressure, and each run's title with its numbered states. It stands in the empty corner
/// above saturation, a run a line, where it fits there, else in a strip over the plot.
class ChartLegend
{
public:
    ChartLegend(const ChartAir& air, const ChartSpan& shown, const std::vector<ChartRun>& runs,
                const QFontMetricsF& font);

    /// Whether the corner of that plot holds it beside the saturation curve and its labels.
    bool fitsCorner(const ChartAir& air, const ChartPlane& plane) const;
    std::vector<ChartLabel> inCorner(const QRectF& plot) const;

    /// Filled line by line; a run is not broken.
    std::vector<ChartLabel> inStrip(const QRectF& strip) const;
    double stripHeight(double width) const;

private:
    using Line = std::vector<ChartLabel>;

    ChartLabel entry(const QString& text, std::optional<std::size_t> calculator) const;
    Line lineOf(const ChartRun& run, int& number) const;
    QString nameOf(const ChartState& state) const;
    double widthOf(const Line& line) const;
    std::vector<ChartLabel> placed(const Line& line, QPointF topLeft) const;

    Single pressure;
    ChartSpan span;
    QFontMetricsF metrics;
    std::vector<Line> lines;
};
