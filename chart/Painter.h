#pragma once

class QPainter;
class QPalette;

namespace chart {

struct Layout;

/// Paints a chart in colors for a light or a dark desktop. The background outside the plot is unchanged.
void Paint(QPainter& painter, const Layout& chart, const QPalette& palette);

} // namespace chart
