#pragma once

#include "chart/Air.h"
#include "chart/Plane.h"

#include <optional>

namespace chart {

/// A step of the cross hair in units: degrees, and ten-thousandths of the humidity ratio. One of the two is
/// 0.
struct Step
{
    int Tdb = 0;
    int W = 0;
};

/// The step of an arrow key, ten units with Shift; nothing for another key. The arrows follow the picture, so
/// in Mollier's form the humidity ratio is across.
std::optional<Step> StepOf(int key, bool isShifted, bool isMollier);

/// The cross hair after a step, on whole units. It stops at saturation and at the edge of the plot. The first
/// step shows it in the middle. Nothing if there is no air in the plot.
std::optional<Place> Moved(const std::optional<Place>& crossHair, const Step& step, const Air& air,
                           const Plane& plane);

} // namespace chart
