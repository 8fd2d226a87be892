#include "chart/Overlays.h"

#include "chart/Texts.h"
#include "chart/Tracing.h"
#include "core/Relations.h"
#include "core/ThermalComfort.h"

namespace chart {
namespace {

constexpr double mostRatio = 0.012;
constexpr double comfortable = 0.5; // vote, below and above 0

double celsius(double tdb) { return IsMetric() ? tdb : (tdb - 32) / 1.8; }
double inUnits(double celsius) { return IsMetric() ? celsius : celsius * 1.8 + 32; }

/// At 1.1 met and 0.1 m/s.
double vote(double clo, double degrees, double vaporPressure)
{
    return PredictedMeanVote({degrees, degrees, 0.1, vaporPressure, 1.1, clo});
}

/// The dry bulb at which the vote has a value, in the current units.
double tdbOfVote(double wanted, double clo, const Air& air, double w)
{
    constexpr double precise = 1e-4;
    const double pascals = air.pressure() * (IsMetric() ? 1.0 : 1000 * KiloPascalPerPsi);
    const double vapor = pascals * w / (WaterToAirMassRatio + w);
    return inUnits(
        ZeroOf([&](double t) { return vote(clo, t, vapor) - wanted; }, 0, celsius(inUnits(45)), precise));
}

QPolygonF edgeOf(double wanted, double clo, const Air& air, const Plane& plane)
{
    constexpr int parts = 6;
    QPolygonF edge;
    for (int part = 0; part <= parts; ++part) {
        const double w = mostRatio * part / parts;
        edge << plane.at(tdbOfVote(wanted, clo, air, w), w);
    }
    return edge;
}

QPolygonF upwards(QPolygonF edge, const Plane& plane)
{
    if (plane.isMollier)
        return edge;
    std::reverse(edge.begin(), edge.end());
    return edge;
}

/// Where a line crosses the chords of a curve, as parts of the line.
std::vector<double> crossings(const QLineF& line, const QPolygonF& curve)
{
    std::vector<double> parts;
    for (int chord = 1; chord < curve.size(); ++chord) {
        QPointF met;
        const QLineF piece(curve[chord - 1], curve[chord]);
        const auto kind = piece.intersects(line, &met);
        const bool isOnPiece = kind != QLineF::NoIntersection &&
                               QLineF(piece.p1(), met).length() <= piece.length() &&
                               QLineF(piece.p2(), met).length() <= piece.length();
        if (isOnPiece)
            parts.push_back(QPointF::dotProduct(met - line.p1(), line.p2() - line.p1()) /
                            (line.length() * line.length()));
    }
    return parts;
}

/// The line through two states, on both sides to saturation or far beyond the plot.
QLineF extended(const QLineF& between, const QPolygonF& saturation)
{
    constexpr double far = 1e4; // pixels
    constexpr double atTheState = 1e-3;
    Axis parts{-far / between.length(), 1 + far / between.length()};
    for (const double part : crossings(between, saturation)) {
        if (part >= 1 - atTheState)
            parts.high = std::min(parts.high, std::max(part, 1.0));
        if (part <= atTheState)
            parts.low = std::max(parts.low, std::min(part, 0.0));
    }
    return {between.pointAt(parts.low), between.pointAt(parts.high)};
}

} // namespace

std::vector<ComfortZone> ComfortZones(const Air& air, const Plane& plane, const QPolygonF& airArea)
{
    std::vector<ComfortZone> zones;
    for (const auto& [name, clo, isWinter] :
         {std::tuple{"Winter, %1 clo", 1.0, true}, std::tuple{"Summer, %1 clo", 0.5, false}}) {
        const QPolygonF cool = edgeOf(-comfortable, clo, air, plane);
        const QPolygonF warm = edgeOf(comfortable, clo, air, plane);
        QPolygonF zone = cool;
        std::copy(warm.rbegin(), warm.rend(), std::back_inserter(zone));
        zone = zone.intersected(airArea);
        if (!zone.isEmpty())
            zones.push_back(
                {QString(name).arg(FormatFigure(clo, 1)), zone, upwards(isWinter ? cool : warm, plane)});
    }
    return zones;
}

std::vector<HeatRatio> HeatRatios(const std::vector<Run>& runs, const Plane& plane,
                                  const QPolygonF& saturation)
{
    constexpr double onePoint = 0.5; // pixels
    std::vector<HeatRatio> ratios;
    for (const Run& run : runs) {
        const bool isCoil = run.calculator == Calculator::Cooling || run.calculator == Calculator::Heating;
        if (!isCoil || !run.isJoined)
            continue;
        const RunState& in = run.states[0];
        const RunState& out = run.states[1];
        const QLineF between(plane.at(in.Tdb, in.W), plane.at(out.Tdb, out.W));
        if (between.length() < onePoint)
            continue;
        const std::optional<QLineF> line = Within(plane.plot, extended(between, saturation));
        if (line)
            ratios.push_back({run.calculator, *line, SensibleHeatRatio(in, out)});
    }
    return ratios;
}

std::optional<double> SensibleHeatRatio(const RunState& entering, const RunState& leaving)
{
    const double leavingEnthalpy = EnthalpyOf(leaving.Tdb, leaving.W);
    const double total = EnthalpyOf(entering.Tdb, entering.W) - leavingEnthalpy;
    if (total == 0)
        return std::nullopt;
    return (EnthalpyOf(entering.Tdb, leaving.W) - leavingEnthalpy) / total;
}

std::optional<QLineF> Within(const QRectF& rectangle, const QLineF& line)
{
    Axis parts{0, 1};
    const auto cut = [&](double start, double change, const Axis& limits) {
        if (change == 0) {
            if (!limits.holds(start))
                parts = {1, 0};
            return;
        }
        const double one = (limits.low - start) / change;
        const double other = (limits.high - start) / change;
        parts = {std::max(parts.low, std::min(one, other)), std::min(parts.high, std::max(one, other))};
    };
    cut(line.x1(), line.dx(), {rectangle.left(), rectangle.right()});
    cut(line.y1(), line.dy(), {rectangle.top(), rectangle.bottom()});
    if (!(parts.high >= parts.low))
        return std::nullopt;
    return QLineF(line.pointAt(parts.low), line.pointAt(parts.high));
}

} // namespace chart
