#pragma once

class QPainter;
class QPalette;

namespace chart {

struct Layout;

/// Paints a chart in colors for a light or a dark desktop. Outside of the plot the ground stays as it is.
void Paint(QPainter& painter, const Layout& chart, const QPalette& palette);

} // namespace chart
