#pragma once

#include "chart/Air.h"
#include "chart/Plane.h"
#include "chart/Runs.h"

#include <QLineF>
#include <QPolygonF>
#include <QString>

#include <optional>
#include <vector>

namespace chart {

/// Where people in that clothing feel comfortable: the predicted mean vote of ISO 7730 is between -0.5 and
/// 0.5 at 1.1 met, in still air (0.1 m/s) with radiant temperature as the air's, and the humidity ratio is at
/// most 0.012.
struct ComfortZone
{
    QString name;
    QPolygonF area{}; ///< within the plot and below saturation
    QPolygonF edge{}; ///< the side without the other zone, for the name
};

/// The line through the entering and the leaving air of a coil, to the ends of the air.
struct HeatRatio
{
    Calculator calculator{};
    QLineF line{};
    std::optional<double> value{}; ///< empty if the air's enthalpy does not change
};

/// The zones for winter and summer that are on the plot.
std::vector<ComfortZone> ComfortZones(const Air& air, const Plane& plane, const QPolygonF& airArea);

/// For each coil whose states differ.
std::vector<HeatRatio> HeatRatios(const std::vector<Run>& runs, const Plane& plane,
                                  const QPolygonF& saturation);

/// The sensible part of the enthalpy that the air gains or loses: what dries or moistens the entering air at
/// its own dry bulb is the latent part.
std::optional<double> SensibleHeatRatio(const RunState& entering, const RunState& leaving);

/// The part of a line within a rectangle.
std::optional<QLineF> Within(const QRectF& rectangle, const QLineF& line);

} // namespace chart
