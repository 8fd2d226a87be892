#pragma once

#include "chart/Air.h"
#include "chart/Plane.h"

#include <optional>

namespace chart {

/// The complete state of the air at a place of the chart, in the current units. An item is empty if its
/// relation refuses the state.
struct Reading
{
    Single Tdb = 0;
    Single W = 0;
    Single P = 0;                ///< psi or Pa
    std::optional<Single> Twb{}; ///< also empty if the search fails, or if the wet bulb is below its bracket
    std::optional<Single> td{};
    std::optional<Single> RH{};     ///< a fraction
    std::optional<Single> Grains{}; ///< in English units only
    std::optional<Single> h{};
    std::optional<Single> SpVol{};

    friend bool operator==(const Reading&, const Reading&) = default;
};

/// Reads the air by the core's relations, as the solver from the humidity ratio does, but writes nothing and
/// never throws.
Reading ReadingAt(const Air& air, const Place& place);

/// True if the place is within the relations and not above saturation.
bool IsAir(const Air& air, const Place& place);

} // namespace chart
