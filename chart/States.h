#pragma once

#include "chart/Plane.h"
#include "platform/forms/Table.h"

#include <vector>

namespace chart {

/// All states of the last runs and the pins, with all their properties in the current units and the locale's
/// numbers. They are numbered as on the chart.
forms::TableContents StateTable(const std::vector<Place>& pins);

/// The units, the pressure, and the altitude at which the standard atmosphere has it.
QString ChartTitle();

} // namespace chart
