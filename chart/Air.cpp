#include "chart/Air.h"

#include "core/Relations.h"
#include "core/StatePoint.h"

#include <limits>

namespace chart {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();

Single single(double value) { return RoundToSingle(value); }

/// The result of the equation; infinity if a relation refuses its argument.
template <class Equation>
double orInfinite(const Equation& equation)
{
    try {
        return equation();
    } catch (const RunTimeError&) {
        return infinite;
    }
}

} // namespace

Air Air::inForce()
{
    const double pressure = IsMetric() ? BaroPressure * 1000.0 : BaroPressure;
    return Air(pressure < SingleOverflow ? single(pressure) : 0);
}

double Air::atRelativeHumidity(double rh, double tdb) const
{
    return orInfinite([&] {
        const Single pws = SaturationPressure(ToAbsolute(single(tdb)));
        const Single pw = VaporPressureFromRH(single(rh), pws);
        return pw < P ? HumidityRatioFromVaporPressure(pw, P) : infinite;
    });
}

double Air::onWetBulb(double twb, double tdb) const
{
    return orInfinite([&] {
        const double wsWet = saturated(twb);
        return wsWet < infinite ? HumidityRatioFromWetBulb(single(twb), single(tdb), single(wsWet))
                                : infinite;
    });
}

double Air::enthalpy(double tdb, double w) const
{
    return orInfinite([&] { return EnthalpyOf(single(tdb), single(w)); });
}

double Air::tdbOfEnthalpy(double h, double w) const
{
    return orInfinite([&] { return DryBulbFromEnthalpy(single(h), single(w)); });
}

double Air::specificVolume(double tdb, double w) const
{
    return orInfinite([&] { return SpecificVolumeOf(ToAbsolute(single(tdb)), single(w), P); });
}

double Air::tdbOfVolume(double volume, double w) const
{
    return orInfinite([&] {
        constexpr Single anyTemperature = 500;
        const double volumePerDegree = SpecificVolumeOf(anyTemperature, single(w), P) / anyTemperature;
        return volume / volumePerDegree - ToAbsolute(0);
    });
}

double Air::relativeHumidity(double tdb, double w) const
{
    return orInfinite([&] {
        const Single pws = SaturationPressure(ToAbsolute(single(tdb)));
        return VaporPressureFromHumidityRatio(P, single(w)) / static_cast<double>(pws);
    });
}

} // namespace chart
