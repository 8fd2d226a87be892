#pragma once

#include "shell/chart/ChartLabels.h"
#include "shell/chart/ChartLayout.h"

#include <QFontMetricsF>

#include <vector>

/// Finds places for the figures of the axes, and for the names of the curves and of the states.
class ChartNames
{
public:
    static constexpr double axisGap = 4; ///< between an axis and its figures

    ChartNames(ChartLabels& found, const ChartPlane& of, const QFontMetricsF& font)
        : labels(found), plane(of), metrics(font)
    {}

    void avoidLine(const QPointF& from, const QPointF& to);
    /// Numbers beside the marks; marks on one place share a label.
    void nameMarks(const std::vector<ChartMark>& marks);
    void nameAxes();
    void nameCurves(const std::vector<ChartCurve>& curves);

private:
    ChartLabel label(const QString& text, ChartFamily family) const;
    void nameTick(const ChartCurve& tick);
    void nameMark(const ChartMark& mark, const QString& numbers);
    void nameAtSaturation(const ChartCurve& wetBulb);
    void nameAlong(const ChartCurve& curve, const QString& text, const std::vector<double>& parts);
    void nameWetBulbs(const ChartCurve& saturation);

    ChartLabels& labels;
    const ChartPlane& plane;
    QFontMetricsF metrics;
};
