#pragma once

#include "chart/Curves.h"
#include "core/LastRuns.h"

#include <QColor>
#include <QPalette>
#include <QPen>

#include <optional>

namespace chart {

/// The colors of the chart on a light or a dark desktop.
class Theme
{
public:
    explicit Theme(const QPalette& desktop);

    QColor paper() const { return palette.color(QPalette::Base); }
    QColor axis() const;
    /// The families that are nearly parallel differ in style, for print in grey.
    QPen pen(Family family) const;
    /// For the line and ticks of a family's scale.
    QPen scale(Family family) const;
    QColor zone() const;
    QPen zonePen() const;
    /// For the names of a family, or for other text if there is no family.
    QColor text(const std::optional<Family>& family) const;
    /// For the states and the process line of a calculator.
    QColor run(Calculator calculator) const;

private:
    QPalette palette;
    bool isDark;
    bool isStrong; // on a desktop with high contrast
};

} // namespace chart
