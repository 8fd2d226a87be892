#pragma once

#include <QPointF>
#include <QRectF>

#include <vector>

namespace chart {

/// Air at the chart's pressure, in the current units.
struct Place
{
    double Tdb = 0; ///< dry bulb, deg F or deg C
    double W = 0;   ///< humidity ratio, lb/lb or kg/kg

    friend bool operator==(const Place&, const Place&) = default;
};

/// A range of values.
struct Axis
{
    double low = 0;
    double high = 0;

    double length() const { return high - low; }
    /// 0 at the low end, 1 at the high end.
    double part(double value) const { return (value - low) / length(); }
    double at(double part) const { return low + part * length(); }
    bool holds(double value) const { return value >= low && value <= high; }

    /// The smallest step of 1, 2 or 5 times a power of ten whose multiples are at least leastApart pixels
    /// apart on an axis of this length in pixels.
    double step(double pixels, double leastApart) const;
    std::vector<double> multiples(double step) const;

    friend bool operator==(const Axis&, const Axis&) = default;
};

/// The range of the chart: dry bulb in deg F or deg C, humidity ratio in lb/lb or kg/kg. In Mollier's form,
/// `tdb` is the range at a humidity ratio of 0, because the isotherms rise to the right.
struct Span
{
    Axis tdb{};
    Axis w{};

    /// The usual span for the current units, widened to include these places. Places far outside it are
    /// ignored.
    static Span around(const std::vector<Place>& places);
    /// The widest span for the current units.
    static Span widest();
    /// This span within the widest one, and not smaller than the relations can resolve.
    Span clamped() const;

    friend bool operator==(const Span&, const Span&) = default;
};

/// Converts states to points of the picture and back.
struct Plane
{
    Span span{};
    QRectF plot{};
    /// Humidity ratio across, and up the sensible part of the enthalpy over the specific heat of dry air:
    /// lines of constant enthalpy are straight, isotherms too, and that of 0 degrees is horizontal.
    bool isMollier = false;

    QPointF at(double tdb, double w) const;
    QPointF at(const Place& place) const { return at(place.Tdb, place.W); }
    /// The inverse of `at`, also outside the plot.
    Place placeAt(const QPointF& point) const;
    /// True if the place is in the plot.
    bool holds(const Place& place) const;

    /// The span after zooming in (factor above 1) or out, with this point of the picture at rest, if the
    /// widest span allows.
    Span zoomed(const QPointF& about, double factor) const;
    /// The span after dragging the chart by this distance in pixels.
    Span moved(const QPointF& by) const;

    /// The step between the ticks of an axis.
    double tdbStep() const;
    double wStep() const;
};

/// The value on the axis of the dry bulb at which the chart has this state.
double Ordinate(double tdb, double w, bool isMollier);

} // namespace chart
