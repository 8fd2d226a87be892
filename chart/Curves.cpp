#include "chart/Curves.h"

#include "chart/Tracing.h"

#include <array>
#include <limits>

namespace chart {
namespace {

// Chords that stay within 0.1 px of their curve, in pixels.
constexpr double shortestChord = 6;
constexpr double chordOfNearlyStraightOnes = 40;
constexpr double straight = std::numeric_limits<double>::infinity();

constexpr double sameRatio = 1e-9;         // lb/lb
constexpr std::size_t mostOfAFamily = 400; // a limit for pressures that no calculator accepts

/// Keeps the curves that are in the plot.
template <class LineOf>
std::vector<Curve> family(Family name, const std::vector<double>& values, const LineOf& lineOf)
{
    std::vector<Curve> curves;
    if (values.size() > mostOfAFamily)
        return curves;
    for (const double value : values) {
        QPolygonF line = lineOf(value);
        if (!line.isEmpty())
            curves.push_back({name, value, std::move(line)});
    }
    return curves;
}

/// The dry bulbs of all places in the plot.
Axis dryBulbsOf(const Plane& plane)
{
    const QRectF& plot = plane.plot;
    const std::array corners{plot.topLeft(), plot.topRight(), plot.bottomLeft(), plot.bottomRight()};
    Axis found{straight, -straight};
    for (const QPointF& corner : corners) {
        const double tdb = plane.placeAt(corner).Tdb;
        found = {std::min(found.low, tdb), std::max(found.high, tdb)};
    }
    return found;
}

} // namespace

double SaturatedTdb(const Air& air, const Axis& tdb, double w)
{
    return ZeroOf([&](double t) { return air.saturated(t) - w; }, tdb.low, tdb.high, sameRatio);
}

QPolygonF AirArea(const Air& air, const Plane& plane, const QPolygonF& saturation)
{
    const QRectF& plot = plane.plot;
    QPolygonF area = saturation;
    const std::array around =
        plane.isMollier ? std::array{plot.bottomRight(), plot.topRight(), plot.topLeft(), plot.bottomLeft()}
                        : std::array{plot.topLeft(), plot.topRight(), plot.bottomRight(), plot.bottomLeft()};
    for (const QPointF& corner : around) {
        const Place place = plane.placeAt(corner);
        if (place.W < air.saturated(place.Tdb))
            area << corner;
    }
    return area;
}

Tracer::Tracer(const Air& ofChart, const Plane& onPlane)
    : air(ofChart), plane(onPlane), tdb(dryBulbsOf(onPlane)), w(onPlane.span.w)
{}

/// Larger plots bend less in a pixel.
double Tracer::bentChord() const
{
    return std::max(shortestChord, std::sqrt(0.1 * std::min(plane.plot.width(), plane.plot.height())));
}

/// How much a value changes across and up, away from a corner of the plot.
template <class ValueAt>
QPointF Tracer::changePerPixel(const QPointF& corner, const ValueAt& valueAt) const
{
    constexpr double near = 0.1; // part of the plot
    const QPointF inwards = (plane.plot.center() - corner) * 2 * near;
    const auto value = [&](const QPointF& away) { return valueAt(plane.placeAt(corner + away)); };
    const double here = value({0, 0});
    return {(value({inwards.x(), 0}) - here) / inwards.x(), (value({0, inwards.y()}) - here) / inwards.y()};
}

/// The round step of a family whose lines are that far apart.
template <class ValueAt>
double Tracer::stepOf(double leastApart, const ValueAt& valueAt) const
{
    const QPointF change = changePerPixel(plane.plot.bottomLeft(), valueAt);
    return Axis{0, std::hypot(change.x(), change.y())}.step(1, leastApart);
}

std::vector<Curve> Tracer::dryBulbs() const
{
    return family(Family::DryBulb, tdb.multiples(plane.tdbStep()), [this](double t) {
        const double top = air.isDefined() ? std::min(air.saturated(t), w.high) : w.high;
        return Traced(plane.plot, {w.low, top}, straight, [&](double ratio) { return plane.at(t, ratio); });
    });
}

std::vector<Curve> Tracer::humidityRatios() const
{
    return family(Family::HumidityRatio, w.multiples(plane.wStep()), [this](double ratio) {
        const double start = air.isDefined() ? SaturatedTdb(air, tdb, ratio) : tdb.low;
        return Traced(plane.plot, {start, tdb.high}, straight, [&](double t) { return plane.at(t, ratio); });
    });
}

QPolygonF Tracer::humidity(double percent) const
{
    const auto place = [&](double t) { return plane.at(t, air.atRelativeHumidity(percent / 100, t)); };
    return Traced(plane.plot, tdb, bentChord(), place);
}

std::vector<Curve> Tracer::relativeHumidities() const
{
    const QRectF& plot = plane.plot;
    const auto at = [this](const Place& place) {
        return std::clamp(100 * air.relativeHumidity(place.Tdb, place.W), 0.0, 100.0);
    };
    const double moist = at(plane.placeAt(plane.isMollier ? plot.bottomRight() : plot.topLeft()));
    const double dry = at(plane.placeAt(plane.isMollier ? plot.topLeft() : plot.bottomRight()));
    const double parts = std::min(plot.height(), plot.width()) < 240 ? 5 : 10;
    const double step = std::max(1.0, Axis{dry, moist}.step(parts, 0.99));
    return family(Family::RelativeHumidity, Axis{step, 100 - step}.multiples(step),
                  [this](double percent) { return humidity(percent); });
}

std::vector<Curve> Tracer::saturation() const
{
    return family(Family::Saturation, {100}, [this](double percent) { return humidity(percent); });
}

/// The wet bulb of a place below or above saturation, roughly.
double Tracer::wetBulbAt(const Place& place) const
{
    constexpr double below = 150; // degrees
    return ZeroOf([&](double twb) { return air.onWetBulb(twb, place.Tdb) - place.W; }, place.Tdb - below,
                  place.Tdb, sameRatio);
}

QPolygonF Tracer::wetBulb(double twb) const
{
    const double start = std::max(twb, tdb.low);
    if (start >= tdb.high || !std::isfinite(air.onWetBulb(twb, start)))
        return {};
    const auto place = [&](double t) { return plane.at(t, air.onWetBulb(twb, t)); };
    return Traced(plane.plot, {start, tdb.high}, chordOfNearlyStraightOnes, place);
}

/// Along the axis of the dry bulb, the lines are closest in cold air; across the lines, in hot and dry air.
double Tracer::wetBulbStep(double leastApart) const
{
    const QRectF& plot = plane.plot;
    const auto valueAt = [this](const Place& place) { return wetBulbAt(place); };
    const QPointF cold = changePerPixel(plot.bottomLeft(), valueAt);
    const QPointF hot = changePerPixel(plane.isMollier ? plot.topLeft() : plot.bottomRight(), valueAt);
    const double most =
        std::max(std::fabs(plane.isMollier ? cold.y() : cold.x()), std::hypot(hot.x(), hot.y()));
    return Axis{0, most}.step(1, leastApart);
}

std::vector<Curve> Tracer::wetBulbs(double step) const
{
    const Axis all{wetBulbAt({tdb.low, w.low}), wetBulbAt({tdb.high, w.high})};
    return family(Family::WetBulb, all.multiples(step), [this](double twb) { return wetBulb(twb); });
}

QPolygonF Tracer::enthalpy(double h) const
{
    const auto dryBulb = [&](double ratio) { return air.tdbOfEnthalpy(h, ratio); };
    const auto fog = [&](double ratio) { return ratio - air.saturated(dryBulb(ratio)); };
    const double top = ZeroOf(fog, w.low, w.high, sameRatio);
    const auto place = [&](double dryness) { return plane.at(dryBulb(-dryness), -dryness); };
    return Traced(plane.plot, {-top, -w.low}, chordOfNearlyStraightOnes, place);
}

std::vector<Curve> Tracer::enthalpies() const
{
    const double step = stepOf(36, [this](const Place& place) { return air.enthalpy(place.Tdb, place.W); });
    const Axis all{air.enthalpy(tdb.low, w.low), air.enthalpy(tdb.high, w.high)};
    return family(Family::Enthalpy, all.multiples(step), [this](double h) { return enthalpy(h); });
}

QPolygonF Tracer::volume(double v) const
{
    const auto dryBulb = [&](double ratio) { return air.tdbOfVolume(v, ratio); };
    const auto fog = [&](double ratio) { return ratio - air.saturated(dryBulb(ratio)); };
    const double top = ZeroOf(fog, w.low, w.high, sameRatio);
    const auto place = [&](double dryness) { return plane.at(dryBulb(-dryness), -dryness); };
    return Traced(plane.plot, {-top, -w.low}, chordOfNearlyStraightOnes, place);
}

std::vector<Curve> Tracer::volumes() const
{
    const Axis all{air.specificVolume(tdb.low, w.low), air.specificVolume(tdb.high, w.high)};
    if (!(all.length() > 0) || !std::isfinite(all.length()))
        return {};
    const double step =
        stepOf(60, [this](const Place& place) { return air.specificVolume(place.Tdb, place.W); });
    return family(Family::SpecificVolume, all.multiples(step), [this](double v) { return volume(v); });
}

} // namespace chart
