#pragma once

#include "chart/Air.h"
#include "chart/Plane.h"

#include <QPolygonF>

#include <vector>

namespace chart {

enum class Family
{
    DryBulb,
    HumidityRatio,
    SpecificVolume,
    Enthalpy,
    WetBulb,
    RelativeHumidity,
    Saturation,
};

/// A curve of constant value as points of the picture, within the plot. A dry bulb starts and a humidity
/// ratio ends at its axis; the oblique families start at saturation or at the edge that they enter by.
struct Curve
{
    Family family{};
    double value = 0; ///< percent for relative humidity, otherwise in the units of the chart
    QPolygonF line;
};

/// Traces the families of a chart within its plot. Curves too short to see are left out.
class Tracer
{
public:
    Tracer(const Air& ofChart, const Plane& onPlane);

    std::vector<Curve> dryBulbs() const;
    std::vector<Curve> humidityRatios() const;
    std::vector<Curve> volumes() const;
    std::vector<Curve> enthalpies() const;
    std::vector<Curve> wetBulbs(double step) const;
    /// The step at which the closest wet bulb lines are at least that many pixels apart.
    double wetBulbStep(double leastApart) const;
    std::vector<Curve> relativeHumidities() const;
    std::vector<Curve> saturation() const;

private:
    template <class ValueAt>
    QPointF changePerPixel(const QPointF& corner, const ValueAt& valueAt) const;
    template <class ValueAt>
    double stepOf(double leastApart, const ValueAt& valueAt) const;
    double bentChord() const;
    QPolygonF humidity(double percent) const;
    QPolygonF wetBulb(double twb) const;
    QPolygonF enthalpy(double h) const;
    QPolygonF volume(double v) const;
    double wetBulbAt(const Place& place) const;

    const Air& air;
    const Plane& plane;
    Axis tdb; ///< of all places in the plot
    Axis w;
};

/// The dry bulb within an axis at which air with humidity ratio w is saturated; the high end if there is
/// none.
double SaturatedTdb(const Air& air, const Axis& tdb, double w);

/// The part of the plot below saturation.
QPolygonF AirArea(const Air& air, const Plane& plane, const QPolygonF& saturation);

} // namespace chart
