#pragma once

#include "core/Single.h"

/// Moist air as the chart reads it: the core's relations in the units in force, at one barometric pressure.
/// Nothing here fails: what a relation refuses, or what lies past boiling, is an infinite humidity ratio.
class ChartAir
{
public:
    /// @param pressure  psi or Pa
    explicit ChartAir(Single pressure) : P(pressure) {}

    /// At the barometric pressure in force; one that no relation can take counts as 0.
    static ChartAir inForce();

    Single pressure() const { return P; }
    /// Whether there is any air to draw.
    bool isDefined() const { return P > 0; }

    /// Humidity ratio of saturated air.
    double saturated(double tdb) const { return atRelativeHumidity(1, tdb); }
    /// @param rh  a fraction
    double atRelativeHumidity(double rh, double tdb) const;
    /// Humidity ratio of air of that wet bulb; negative where it can't lie so far below the dry bulb.
    double onWetBulb(double twb, double tdb) const;
    double specificVolume(double tdb, double w) const;
    /// The dry bulb at which air of that humidity ratio has that specific volume.
    double tdbOfVolume(double volume, double w) const;
    /// A fraction; above 1 past saturation.
    double relativeHumidity(double tdb, double w) const;

private:
    Single P;
};
