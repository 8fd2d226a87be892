#include "chart/Plane.h"

#include "core/StatePoint.h"

#include <algorithm>
#include <cmath>

namespace chart {
namespace {

/// The usual and the widest span of an axis in a unit system. Its ends are multiples of `round`.
struct Limits
{
    Axis usual;
    Axis widest;
    double round = 1;
};

constexpr Limits tdbEnglish{{30, 120}, {-60, 300}, 10};
constexpr Limits tdbMetric{{0, 50}, {-50, 150}, 5};
constexpr Limits humidity{{0, 0.03}, {0, 0.25}, 0.005};

/// The least distance between a state and the frame, as a part of the usual span.
constexpr double leastPartBeside = 0.02;

void widen(Axis& axis, const Limits& limits, double value)
{
    const double beside = leastPartBeside * limits.usual.length();
    if (value < axis.low + beside)
        axis.low = std::floor((value - beside) / limits.round) * limits.round;
    if (value > axis.high - beside)
        axis.high = std::ceil((value + beside) / limits.round) * limits.round;
    axis.low = std::max(axis.low, limits.widest.low);
    axis.high = std::min(axis.high, limits.widest.high);
}

} // namespace

double Axis::step(double pixels, double leastApart) const
{
    const double least = length() * leastApart / std::max(pixels, 1.0);
    const double decade = std::pow(10.0, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * decade >= least)
            return factor * decade;
    }
    return 10 * decade;
}

std::vector<double> Axis::multiples(double step) const
{
    constexpr double onTheEnd = 1e-6; // part of a step, so that rounding does not lose an end
    std::vector<double> found;
    const auto last = static_cast<int>(std::floor(high / step + onTheEnd));
    for (auto count = static_cast<int>(std::ceil(low / step - onTheEnd)); count <= last; ++count)
        found.push_back(count * step);
    return found;
}

Span Span::around(const std::vector<QPointF>& states)
{
    const Limits& dryBulb = IsMetric() ? tdbMetric : tdbEnglish;
    Span span{dryBulb.usual, humidity.usual};
    for (const QPointF& state : states) {
        if (!dryBulb.widest.holds(state.x()) || !humidity.widest.holds(state.y()))
            continue;
        widen(span.tdb, dryBulb, state.x());
        widen(span.w, humidity, state.y());
    }
    return span;
}

} // namespace chart
