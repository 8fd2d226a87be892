#pragma once

#include "chart/Layout.h"

#include <QPoint>
#include <QString>

#include <optional>

namespace chart {

constexpr double MarkReach = 8; ///< of a mark for the pointer, in pixels

/// The states that have a mark at this point of the picture, or the air there; empty if there is none.
/// @param exact  the air, if it is known better than to a pixel
QString TipAt(const Layout& chart, const QPoint& point, const std::optional<Place>& exact);

/// Changes with everything that the chart of a view shows.
QString VersionOf(const View& view);

} // namespace chart
