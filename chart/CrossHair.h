#pragma once

#include "chart/Layout.h"
#include "chart/Lettering.h"

namespace chart {

/// Adds the cross hair of the view, if it is in the plot, with a panel that has its reading.
void AddCrossHair(Layout& chart, const Lettering& letters);

} // namespace chart
