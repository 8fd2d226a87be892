#pragma once

#include "chart/Labels.h"
#include "chart/Layout.h"

#include <QFontMetricsF>

#include <vector>

namespace chart {

/// Places the figures of the axes and the names of the curves and states.
class Names
{
public:
    static constexpr double axisGap = 4; ///< between an axis and its figures

    Names(Labels& found, const Plane& ofChart, const QFontMetricsF& font)
        : labels(found), plane(ofChart), metrics(font)
    {}

    /// Numbers the marks. Marks at the same place share a label.
    void nameMarks(const std::vector<Mark>& marks);
    void nameAxes();
    void nameCurves(const std::vector<Curve>& curves);

private:
    Label label(const QString& text, std::optional<Family> family = {}) const;
    void nameMark(const Mark& mark, const QString& numbers);
    void nameDryBulb(const Curve& tick);
    void nameHumidityRatio(const Curve& tick);
    void nameWetBulb(const Curve& curve);
    void nameWetBulbs(const Curve& saturation);
    void nameAlong(const Curve& curve, const QString& text, const std::vector<double>& parts);

    Labels& labels;
    const Plane& plane;
    QFontMetricsF metrics;
};

} // namespace chart
