#include "chart/Curves.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace chart {
namespace {

// Longest chords that stay within 0.1 px of their curve, in pixels.
constexpr double chordOfBentCurves = 6;
constexpr double chordOfNearlyStraightOnes = 40;
constexpr std::size_t mostOfAFamily = 60; // a limit for pressures that no calculator accepts

/// The first x between `low` and `high` for which the predicate is true; `high` if there is none.
/// Bisection: the predicate must stay true above that x.
template <class Predicate>
double firstWhere(double low, double high, const Predicate& holds)
{
    constexpr int halvings = 40;
    for (int count = 0; count < halvings; ++count) {
        const double middle = (low + high) / 2;
        (holds(middle) ? high : low) = middle;
    }
    return high;
}

/// The curve over an interval, in chords of about the given length.
template <class PlaceAt>
QPolygonF sampled(double low, double high, double chord, const PlaceAt& placeAt)
{
    const double length = QLineF(placeAt(low), placeAt(high)).length();
    const int parts = std::max(2, static_cast<int>(std::ceil(length / chord)));
    QPolygonF line;
    for (int part = 0; part <= parts; ++part)
        line << placeAt(low + (high - low) * part / parts);
    return line;
}

class Tracer
{
public:
    Tracer(const Air& anAir, const Plane& aPlane)
        : air(anAir), plane(aPlane), tdb(aPlane.span.tdb), w(aPlane.span.w)
    {}

    void traceAll()
    {
        traceGrid();
        if (!air.isDefined())
            return;
        traceVolumes();
        traceWetBulbs();
        const int step = plane.plot.height() < 240 ? 20 : 10;
        for (int percent = step; percent < 100; percent += step)
            traceHumidity(Family::RelativeHumidity, percent);
        traceHumidity(Family::Saturation, 100);
    }

    std::vector<Curve> curves;

private:
    void keep(Family family, double value, QPolygonF line)
    {
        curves.push_back({family, value, std::move(line)});
    }

    /// The lines at the ticks. They end at saturation.
    void traceGrid()
    {
        for (const double t : tdb.multiples(plane.tdbStep())) {
            const double top = air.isDefined() ? std::min(air.saturated(t), w.high) : w.high;
            keep(Family::DryBulb, t, {plane.at(t, 0), plane.at(t, top)});
        }
        for (const double ratio : w.multiples(plane.wStep())) {
            const double left = air.isDefined() ? SaturatedTdb(air, tdb, ratio) : tdb.low;
            keep(Family::HumidityRatio, ratio, {plane.at(left, ratio), plane.at(tdb.high, ratio)});
        }
    }

    void traceHumidity(Family family, double percent)
    {
        const auto ratio = [&](double t) { return air.atRelativeHumidity(percent / 100, t); };
        if (ratio(tdb.low) >= w.high)
            return; // the whole curve is above the plot
        const double end = firstWhere(tdb.low, tdb.high, [&](double t) { return ratio(t) > w.high; });
        const auto place = [&](double t) { return plane.at(t, std::min(ratio(t), w.high)); };
        keep(family, percent, sampled(tdb.low, end, chordOfBentCurves, place));
    }

    /// Each line runs from saturation, or from the top of the plot, down to dry air.
    void traceWetBulbs()
    {
        const double step = tdb.step(plane.plot.width(), 20);
        const double coldest = tdb.low - tdb.length() / 4; // the lines of colder ones end left of the plot
        const std::vector<double> bulbs = Axis{coldest, tdb.high}.multiples(step);
        for (const double twb : bulbs)
            traceWetBulb(twb);
    }

    void traceWetBulb(double twb)
    {
        const auto ratio = [&](double t) { return air.onWetBulb(twb, t); };
        const double leftmost = std::max(twb, tdb.low);
        if (!std::isfinite(ratio(leftmost)) || ratio(leftmost) <= 0 || ratio(tdb.high) >= w.high)
            return;
        const double start = firstWhere(leftmost, tdb.high, [&](double t) { return ratio(t) <= w.high; });
        const double end = firstWhere(leftmost, tdb.high, [&](double t) { return ratio(t) < 0; });
        const auto place = [&](double t) { return plane.at(t, ratio(t)); };
        keep(Family::WetBulb, twb, sampled(start, end, chordOfNearlyStraightOnes, place));
    }

    void traceVolumes()
    {
        const Axis volumes{air.specificVolume(tdb.low, 0), air.specificVolume(tdb.high, w.high)};
        if (!(volumes.length() > 0) || !std::isfinite(volumes.length()))
            return;
        const double dryLength = air.specificVolume(tdb.high, 0) - volumes.low;
        const double step = Axis{volumes.low, volumes.low + dryLength}.step(plane.plot.width(), 55);
        const std::vector<double> values = volumes.multiples(step);
        if (values.size() > mostOfAFamily)
            return;
        for (const double volume : values)
            traceVolume(volume);
    }

    /// The line runs from saturation, or from the left edge of the plot, down to dry air or the right edge.
    void traceVolume(double volume)
    {
        const auto dryBulb = [&](double ratio) { return air.tdbOfVolume(volume, ratio); };
        const auto isLeft = [&](double ratio) {
            return dryBulb(ratio) < tdb.low || ratio > air.saturated(dryBulb(ratio));
        };
        const double top = firstWhere(w.low, w.high, isLeft);
        const double foot = dryBulb(w.low) <= tdb.high
                                ? w.low
                                : firstWhere(w.low, w.high, [&](double r) { return dryBulb(r) <= tdb.high; });
        if (top <= foot)
            return;
        const auto place = [&](double ratio) { return plane.at(dryBulb(ratio), ratio); };
        keep(Family::SpecificVolume, volume, sampled(top, foot, chordOfNearlyStraightOnes, place));
    }

    const Air& air;
    const Plane& plane;
    const Axis& tdb;
    const Axis& w;
};

} // namespace

double SaturatedTdb(const Air& air, const Axis& tdb, double w)
{
    return firstWhere(tdb.low, tdb.high, [&](double t) { return air.saturated(t) >= w; });
}

std::vector<Curve> TraceCurves(const Air& air, const Plane& plane)
{
    Tracer tracer(air, plane);
    tracer.traceAll();
    return std::move(tracer.curves);
}

} // namespace chart
