// What holds for every chart, whatever its size, pressure, units, form, zoom and overlays.

#include "tests/chart/Picked.h"

#include "chart/Tracing.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr unsigned charts = 250;
constexpr double edge = 0.4; // pixels; the relations round to single, which shows at the closest zoom

using chart::Family;

/// A rectangle may be rotated.
bool touches(const QPolygonF& label, const QLineF& line)
{
    for (int side = 0; side < 4; ++side) {
        if (QLineF(label[side], label[(side + 1) % 4]).intersects(line, nullptr) ==
            QLineF::BoundedIntersection)
            return true;
    }
    return label.containsPoint(line.p1(), Qt::OddEvenFill);
}

bool touch(const QPolygonF& one, const QPolygonF& other)
{
    for (int side = 0; side < 4; ++side) {
        if (touches(one, {other[side], other[(side + 1) % 4]}))
            return true;
    }
    return other.containsPoint(one[0], Qt::OddEvenFill);
}

void expectFree(const chart::Layout& chart, const chart::Label& label)
{
    const QPolygonF outline = label.outline();
    const std::string text = label.text.toStdString();
    EXPECT_TRUE(QRectF({0, 0}, chart.size).contains(outline.boundingRect())) << text;
    for (const chart::Mark& mark : chart.marks)
        EXPECT_FALSE(outline.containsPoint(mark.place, Qt::OddEvenFill))
            << text << " is on " << mark.name.toStdString();
    for (const chart::Curve& curve : chart.curves) {
        for (int chord = 1; curve.family == Family::Saturation && chord < curve.line.size(); ++chord)
            ASSERT_FALSE(touches(outline, {curve.line[chord - 1], curve.line[chord]})) << text;
    }
}

/// How far a point is from where the relations put the value of its curve: in that value, per pixel around.
double valueAt(const chart::Layout& chart, Family family, const QPointF& point)
{
    const auto [tdb, w] = chart.plane.placeAt(point);
    switch (family) {
    case Family::DryBulb:
        return tdb;
    case Family::HumidityRatio:
        return w;
    case Family::Enthalpy:
        return EnthalpyOf(static_cast<Single>(tdb), static_cast<Single>(w));
    case Family::SpecificVolume:
        return SpecificVolumeOf(ToAbsolute(static_cast<Single>(tdb)), static_cast<Single>(w),
                                RelationsPressure());
    default:
        return VaporPressureFromHumidityRatio(RelationsPressure(), static_cast<Single>(w)) * 100.0 /
               SaturationPressure(ToAbsolute(static_cast<Single>(tdb)));
    }
}

/// The wet bulb is checked by the humidity ratio that it gives, where the other families have a value.
double misses(const chart::Layout& chart, const chart::Curve& curve, const QPointF& point)
{
    if (curve.family != Family::WetBulb)
        return valueAt(chart, curve.family, point) - curve.value;
    const auto [tdb, w] = chart.plane.placeAt(point);
    return chart.air.onWetBulb(curve.value, tdb) - w;
}

/// The value has opposite signs of deviation within a pixel to both sides, or is exact.
void expectOn(const chart::Layout& chart, const chart::Curve& curve, const QPointF& point)
{
    double least = 0;
    double most = 0;
    for (const QPointF& beside : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)}) {
        const double miss = misses(chart, curve, point + beside);
        least = std::min(least, miss);
        most = std::max(most, miss);
    }
    EXPECT_TRUE(least < 0 && most > 0) << "family " << static_cast<int>(curve.family) << ", " << curve.value
                                       << " at " << point.x() << ", " << point.y();
}

} // namespace

TEST(AnyChart, KeepsItsLabelsApartFromEachOtherThePointsAndSaturation)
{
    for (unsigned number = 0; number < charts; ++number) {
        const Picked picked(number);
        SCOPED_TRACE(std::to_string(number) + ": " + picked.text());
        const chart::Layout chart = picked.layout();
        const std::vector<chart::Label>& labels = chart.labels.all();
        for (std::size_t one = 0; one < labels.size(); ++one) {
            expectFree(chart, labels[one]);
            const QPolygonF outline = labels[one].outline();
            const QRectF bounds = outline.boundingRect();
            for (std::size_t other = one + 1; other < labels.size(); ++other) {
                const QPolygonF another = labels[other].outline();
                ASSERT_FALSE(bounds.intersects(another.boundingRect()) && touch(outline, another))
                    << labels[one].text.toStdString() << " and " << labels[other].text.toStdString();
            }
        }
    }
}

TEST(AnyChart, NamesAllWetBulbLinesOrNone)
{
    int named = 0;
    for (unsigned number = 0; number < charts; ++number) {
        const Picked picked(number);
        const chart::Layout chart = picked.layout();
        const auto lines =
            std::count_if(chart.curves.begin(), chart.curves.end(),
                          [](const chart::Curve& curve) { return curve.family == Family::WetBulb; });
        const std::vector<chart::Label>& labels = chart.labels.all();
        const auto names = std::count_if(labels.begin(), labels.end(), [](const chart::Label& label) {
            return label.family == Family::WetBulb && !label.text.startsWith("Wet");
        });
        EXPECT_TRUE(names == lines || names == 0)
            << number << ": " << picked.text() << ", " << names << " of " << lines;
        named += names > 0 ? 1 : 0;
    }
    EXPECT_GT(named, charts / 2);
}

TEST(AnyChart, DrawsEveryCurveWhereTheRelationsPutItWithinThePlot)
{
    std::size_t points = 0;
    for (unsigned number = 0; number < charts; ++number) {
        const Picked picked(number);
        SCOPED_TRACE(std::to_string(number) + ": " + picked.text());
        const chart::Layout chart = picked.layout();
        const QRectF whole = chart.plane.plot.adjusted(-edge, -edge, edge, edge);
        const QRectF inner = chart.plane.plot.adjusted(2, 2, -2, -2);
        for (const chart::Curve& curve : chart.curves) {
            for (const QPointF& point : curve.line) {
                ASSERT_TRUE(whole.contains(point)) << static_cast<int>(curve.family) << ", " << curve.value;
                if (inner.contains(point)) {
                    expectOn(chart, curve, point);
                    ++points;
                }
            }
        }
    }
    EXPECT_GT(points, 20000U);
}

TEST(AnyChart, SurvivesEverySizeAndPressure)
{
    for (const char* pressure : {"0", "-5", "1e-30", "0.01", "0.5", "100", "1e30", "3e38"}) {
        for (const Boolean16 units : {False16, True16}) {
            Mode{units, ParseSingle(pressure)}.putInForce();
            chart::View view;
            view.switches.comfort = true;
            view.pins = {{20, 0.01}, {1e9, 1e9}, {-1e9, -1e9}};
            view.crossHair = chart::Place{20, 0.01};
            for (const QSizeF& size : {QSizeF(0, 0), QSizeF(1, 1), QSizeF(60, 40), QSizeF(800, 600)}) {
                view.switches.mollier = !view.switches.mollier;
                EXPECT_NO_THROW(chart::Layout(size, QApplication::font(), view)) << pressure;
            }
        }
    }
}
