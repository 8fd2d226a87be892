#include "chart/Reading.h"

#include "core/Relations.h"
#include "core/WetBulbSearch.h"

#include <algorithm>
#include <cmath>

namespace chart {
namespace {

template <class Relation>
std::optional<Single> unlessRefused(const Relation& relation) noexcept
{
    try {
        return relation();
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

/// A search whose bracket has no root ends anywhere, without an error. Around a root the residual changes its
/// sign.
bool isRoot(Single twb, const Reading& air)
{
    const double beside = std::max(0.02, 2e-4 * std::fabs(twb)); // the search ends at 0.01 percent
    return WetBulbResidual(RoundToSingle(twb - beside), air.Tdb, air.P, air.W) <= 0 &&
           WetBulbResidual(RoundToSingle(twb + beside), air.Tdb, air.P, air.W) >= 0;
}

std::optional<Single> wetBulb(const Reading& air)
{
    constexpr double leastSearched = 0.005; // degrees below the dry bulb; the solver's value near saturation
    if (!air.RH)
        return std::nullopt;
    if (air.RH >= 0.999F)
        return RoundToSingle(air.Tdb - leastSearched);
    const Single found = SolveWetBulb(air.Tdb, air.W, air.P);
    return isRoot(found, air) ? std::optional(found) : std::nullopt;
}

Single relativeHumidity(const Reading& air)
{
    const Single pws = SaturationPressure(ToAbsolute(air.Tdb));
    const Single ws = HumidityRatioFromVaporPressure(pws, air.P);
    return RHFromDegreeOfSaturation(DegreeOfSaturation(air.W, ws), pws, air.P);
}

/// The regression is for psi or kPa.
Single dewPoint(const Reading& air)
{
    const Single pw = VaporPressureFromHumidityRatio(air.P, air.W);
    return DewPointFromVaporPressure(IsMetric() ? RoundToSingle(pw / 1000.0) : pw);
}

} // namespace

Reading ReadingAt(const Air& air, const Place& place)
{
    if (!(std::fabs(place.Tdb) < SingleOverflow) || !(std::fabs(place.W) < SingleOverflow))
        return {};
    Reading found{.Tdb = RoundToSingle(place.Tdb), .W = RoundToSingle(place.W), .P = air.pressure()};
    found.RH = unlessRefused([&] { return relativeHumidity(found); });
    found.Twb = unlessRefused([&] { return wetBulb(found); });
    found.td = unlessRefused([&] { return dewPoint(found); });
    if (!IsMetric())
        found.Grains = unlessRefused([&] { return RoundToSingle(7000.0 * found.W); });
    found.h = unlessRefused([&] { return EnthalpyOf(found.Tdb, found.W); });
    found.SpVol = unlessRefused([&] { return SpecificVolumeOf(ToAbsolute(found.Tdb), found.W, found.P); });
    return found;
}

bool IsAir(const Air& air, const Place& place)
{
    return air.isDefined() && place.W >= 0 && place.W <= air.saturated(place.Tdb);
}

} // namespace chart
