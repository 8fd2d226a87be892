#pragma once

#include "core/Single.h"

namespace chart {

/// Moist air at a barometric pressure, by the core's relations and in the current units. Nothing here throws:
/// if a relation refuses an argument, the result is infinity.
class Air
{
public:
    /// @param pressure  psi or Pa
    explicit Air(Single pressure) : P(pressure) {}

    /// Air at the current barometric pressure, or at pressure 0 if that overflows.
    static Air inForce();

    Single pressure() const { return P; }
    /// True if there is any air to draw.
    bool isDefined() const { return P > 0; }

    /// Humidity ratio of saturated air; infinite past boiling.
    double saturated(double tdb) const { return atRelativeHumidity(1, tdb); }
    /// Humidity ratio; infinite past boiling.
    /// @param rh  a fraction
    double atRelativeHumidity(double rh, double tdb) const;
    /// Humidity ratio at a wet bulb; negative if the dry bulb is too far above it.
    double onWetBulb(double twb, double tdb) const;
    double enthalpy(double tdb, double w) const;
    /// The dry bulb at which air with humidity ratio w has that enthalpy.
    double tdbOfEnthalpy(double h, double w) const;
    double specificVolume(double tdb, double w) const;
    /// The dry bulb at which air with humidity ratio w has that specific volume.
    double tdbOfVolume(double volume, double w) const;
    /// A fraction; above 1 past saturation.
    double relativeHumidity(double tdb, double w) const;

private:
    Single P;
};

} // namespace chart
