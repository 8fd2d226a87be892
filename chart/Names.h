#pragma once

#include "chart/Layout.h"

#include <QFontMetricsF>

namespace chart {

constexpr double axisGap = 4; ///< between an axis and its figures

/// Numbers the marks, and adds the figures of the axes and the names of the curves.
void AddNames(Layout& chart, const QFontMetricsF& metrics);

} // namespace chart
