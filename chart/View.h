#pragma once

#include "chart/Plane.h"

#include <QString>

#include <optional>
#include <vector>

namespace chart {

/// What the user switched on the chart.
struct Switches
{
    bool relativeHumidity = true;
    bool wetBulb = true;
    bool enthalpy = true;
    bool specificVolume = true;
    bool comfort = false;
    bool heatRatio = false;
    bool mollier = false;

    friend bool operator==(const Switches&, const Switches&) = default;
};

/// How the user looks at the chart.
struct View
{
    Switches switches{};
    std::vector<Place> pins{};
    std::optional<Place> crossHair{};
    std::optional<Span> zoom{}; ///< the whole chart without it
    QString title{};            ///< above the chart, if not empty
    bool hasLegend = true;
    bool hasPinTable = true; ///< below the chart, if there are pins

    friend bool operator==(const View&, const View&) = default;
};

} // namespace chart
