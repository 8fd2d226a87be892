#pragma once

#include "chart/View.h"

#include <QSizeF>

class QPainter;

namespace chart {

/// Paints a page for the printer: the chart with its title and legend, the date, and the table of the states
/// below. If there are more states than fit, a line says how many are left out.
/// @param size  of the page, in units of 1/96 inch
void PaintPage(QPainter& painter, const QSizeF& size, const View& view);

} // namespace chart
