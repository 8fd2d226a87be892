#include "shell/chart/ChartCurves.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace {

// So long may a chord be that no point of it lies a tenth of a pixel off its curve.
constexpr double chordOfBentCurves = 6;
constexpr double chordOfNearlyStraightOnes = 40;
constexpr std::size_t mostOfAFamily = 60; // at a pressure that no calculator accepts there may be any number

/// The least argument at which a condition holds that holds from somewhere on; `high` where it never does.
template <class Condition>
double firstWhere(double low, double high, const Condition& holds)
{
    constexpr int halvings = 40;
    for (int count = 0; count < halvings; ++count) {
        const double middle = (low + high) / 2;
        (holds(middle) ? high : low) = middle;
    }
    return high;
}

/// A curve from one end of an interval to the other, in chords of about that length.
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
    Tracer(const ChartAir& anAir, const ChartPlane& aPlane)
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
            traceHumidity(ChartFamily::RelativeHumidity, percent);
        traceHumidity(ChartFamily::Saturation, 100);
    }

    std::vector<ChartCurve> curves;

private:
    void keep(ChartFamily family, double value, QPolygonF line)
    {
        curves.push_back({family, value, std::move(line)});
    }

    /// The ticks of the axes; the lines end at saturation.
    void traceGrid()
    {
        for (const double t : tdb.multiples(plane.tdbStep())) {
            const double top = air.isDefined() ? std::min(air.saturated(t), w.high) : w.high;
            keep(ChartFamily::DryBulb, t, {plane.at(t, 0), plane.at(t, top)});
        }
        for (const double ratio : w.multiples(plane.wStep())) {
            const double left = air.isDefined() ? SaturatedTdb(air, tdb, ratio) : tdb.low;
            keep(ChartFamily::HumidityRatio, ratio, {plane.at(left, ratio), plane.at(tdb.high, ratio)});
        }
    }

    void traceHumidity(ChartFamily family, double percent)
    {
        const auto ratio = [&](double t) { return air.atRelativeHumidity(percent / 100, t); };
        if (!std::isfinite(ratio(tdb.low)))
            return;
        const double end = firstWhere(tdb.low, tdb.high, [&](double t) { return ratio(t) > w.high; });
        const auto place = [&](double t) { return plane.at(t, std::min(ratio(t), w.high)); };
        keep(family, percent, sampled(tdb.low, end, chordOfBentCurves, place));
    }

    /// From saturation, or from where it comes into the plot, down to dry air.
    void traceWetBulbs()
    {
        const double step = tdb.step(plane.plot.width(), 20);
        const double coldest = tdb.low - tdb.length() / 4; // colder ones end left of the plot
        const std::vector<double> bulbs = ChartAxis{coldest, tdb.high}.multiples(step);
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
        keep(ChartFamily::WetBulb, twb, sampled(start, end, chordOfNearlyStraightOnes, place));
    }

    void traceVolumes()
    {
        const ChartAxis volumes{air.specificVolume(tdb.low, 0), air.specificVolume(tdb.high, w.high)};
        if (!(volumes.length() > 0) || !std::isfinite(volumes.length()))
            return;
        const double dryLength = air.specificVolume(tdb.high, 0) - volumes.low;
        const double step = ChartAxis{volumes.low, volumes.low + dryLength}.step(plane.plot.width(), 55);
        const std::vector<double> values = volumes.multiples(step);
        if (values.size() > mostOfAFamily)
            return;
        for (const double volume : values)
            traceVolume(volume);
    }

    /// From the right end, which is dry air or the edge of the plot, up to saturation.
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
        keep(ChartFamily::SpecificVolume, volume, sampled(top, foot, chordOfNearlyStraightOnes, place));
    }

    const ChartAir& air;
    const ChartPlane& plane;
    const ChartAxis& tdb;
    const ChartAxis& w;
};

} // namespace

double SaturatedTdb(const ChartAir& air, const ChartAxis& tdb, double w)
{
    return firstWhere(tdb.low, tdb.high, [&](double t) { return air.saturated(t) >= w; });
}

std::vector<ChartCurve> ChartCurves(const ChartAir& air, const ChartPlane& plane)
{
    Tracer tracer(air, plane);
    tracer.traceAll();
    return std::move(tracer.curves);
}
