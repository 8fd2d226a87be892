#include "chart/Steps.h"

#include "chart/Reading.h"

#include <Qt>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace chart {
namespace {

constexpr double unitOfW = 0.0001;

Place onWholeUnits(const Place& place)
{
    return {std::round(place.Tdb), std::round(place.W / unitOfW) * unitOfW};
}

bool canBeAt(const Place& place, const Air& air, const Plane& plane)
{
    return plane.holds(place) && IsAir(air, place);
}

/// The middle of the plot, or below it half of saturation.
std::optional<Place> start(const Air& air, const Plane& plane)
{
    Place place = onWholeUnits(plane.placeAt(plane.plot.center()));
    if (!canBeAt(place, air, plane))
        place = onWholeUnits({place.Tdb, air.saturated(place.Tdb) / 2});
    return canBeAt(place, air, plane) ? std::optional(place) : std::nullopt;
}

int signOf(int number) { return number > 0 ? 1 : number < 0 ? -1 : 0; }

} // namespace

std::optional<Step> StepOf(int key, bool isShifted, bool isMollier)
{
    const int units = isShifted ? 10 : 1;
    const int across = key == Qt::Key_Right ? units : key == Qt::Key_Left ? -units : 0;
    const int up = key == Qt::Key_Up ? units : key == Qt::Key_Down ? -units : 0;
    if (across == 0 && up == 0)
        return std::nullopt;
    return isMollier ? Step{.Tdb = up, .W = across} : Step{.Tdb = across, .W = up};
}

std::optional<Place> Moved(const std::optional<Place>& crossHair, const Step& step, const Air& air,
                           const Plane& plane)
{
    if (!crossHair || !canBeAt(*crossHair, air, plane))
        return start(air, plane);
    Place place = *crossHair;
    const int units = std::max(std::abs(step.Tdb), std::abs(step.W));
    for (int unit = 0; unit < units; ++unit) {
        const Place next = onWholeUnits({place.Tdb + signOf(step.Tdb), place.W + signOf(step.W) * unitOfW});
        if (!canBeAt(next, air, plane))
            break;
        place = next;
    }
    return place;
}

} // namespace chart
