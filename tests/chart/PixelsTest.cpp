// Looks for the chart's curves in its pixels, where the core's relations put them.

#include "chart/Layout.h"
#include "chart/Painter.h"
#include "tests/chart/Modes.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>

#include <cmath>
#include <functional>
#include <string>

namespace {

constexpr QSize size(560, 610);

Single saturatedW(double t)
{
    return HumidityRatioFromVaporPressure(SaturationPressure(ToAbsolute(static_cast<Single>(t))),
                                          RelationsPressure());
}

/// The argument between low and high at which a monotonic function has the given value.
double whereIs(double value, double low, double high, const std::function<double(double)>& function)
{
    const bool rises = function(high) > function(low);
    for (int count = 0; count < 60; ++count) {
        const double middle = (low + high) / 2;
        ((function(middle) < value) == rises ? low : high) = middle;
    }
    return low;
}

/// The humidity ratio of a curve at a dry bulb, directly from the relations.
double ratioOn(chart::Family family, double value, double t)
{
    const auto tdb = static_cast<Single>(t);
    const Single pws = SaturationPressure(ToAbsolute(tdb));
    switch (family) {
    case chart::Family::Saturation:
        return saturatedW(t);
    case chart::Family::RelativeHumidity:
        return HumidityRatioFromVaporPressure(VaporPressureFromRH(static_cast<Single>(value / 100), pws),
                                              RelationsPressure());
    case chart::Family::Enthalpy:
        return whereIs(value, -1, 1, [tdb](double w) { return EnthalpyOf(tdb, static_cast<Single>(w)); });
    case chart::Family::WetBulb:
        return HumidityRatioFromWetBulb(static_cast<Single>(value), tdb, saturatedW(value));
    default:
        throw std::logic_error("no such curve");
    }
}

double tdbOfVolume(double volume, double w, const chart::Axis& tdb)
{
    return whereIs(volume, tdb.low - 50, tdb.high + 50, [&](double t) {
        return SpecificVolumeOf(ToAbsolute(static_cast<Single>(t)), static_cast<Single>(w),
                                RelationsPressure());
    });
}

/// The chart painted with only one curve, or with none, on a plain background.
class Picture1
{
public:
    Picture1(double scale, const chart::Curve* curve)
        : image(size * scale, QImage::Format_ARGB32_Premultiplied), chart(size, QApplication::font())
    {
        const QPalette palette(Qt::white);
        image.setDevicePixelRatio(scale);
        image.fill(palette.color(QPalette::Base));
        chart.labels = chart::Labels(QRectF());
        chart.marks.clear();
        chart.processes.clear();
        chart.scales.clear();
        chart.curves.clear();
        if (curve != nullptr)
            chart.curves.push_back(*curve);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        chart::Paint(painter, chart, palette);
    }

    int darkness(int x, int y) const { return 255 - qGray(image.pixel(x, y)); }

    QImage image;

private:
    chart::Layout chart;
};

/// Looks for the curve along a column or row, within a few device pixels of its place.
class Finder
{
public:
    Finder(double pictureScale, const chart::Curve& curve)
        : scale(pictureScale),
          isDashed(curve.family == chart::Family::WetBulb || curve.family == chart::Family::Enthalpy),
          with(pictureScale, &curve),
          without(pictureScale, nullptr)
    {}

    /// A dashed line has gaps, but is there in a fair share of the places.
    void expectEnough(double length) const
    {
        if (length > (isDashed ? 100 : 40)) {
            EXPECT_GT(found, 3);
            EXPECT_GT(found, gaps / 6);
        }
    }

    void expectInColumn(int x, double place)
    {
        expectAt(place, [&](int y) { return strength(x, y); });
    }
    void expectInRow(int y, double place)
    {
        expectAt(place, [&](int x) { return strength(x, y); });
    }

    double scale;
    bool isDashed;
    int found = 0;
    int gaps = 0;

private:
    int strength(int x, int y) const { return with.darkness(x, y) - without.darkness(x, y); }

    void expectAt(double place, const std::function<int(int)>& strengthAt)
    {
        constexpr int around = 12;
        constexpr int visible = 25;
        const int middle = static_cast<int>(std::floor(place));
        int first = middle - around; // of the strongest pixels; a wide line has several
        int last = first;
        for (int next = first; next <= middle + around; ++next) {
            if (strengthAt(next) > strengthAt(first))
                first = next;
            if (strengthAt(next) >= strengthAt(first))
                last = next;
        }
        if (isDashed && strengthAt(first) < visible) {
            ++gaps;
            return;
        }
        EXPECT_GE(strengthAt(first), visible) << "no line near " << place;
        // A column can meet a dash at its oblique end, up to half its width aside.
        const double most = isDashed ? scale : 1.0;
        EXPECT_LE(std::fabs((first + last + 1) / 2.0 - place), most + 1e-6);
        ++found;
    }

    Picture1 with;
    Picture1 without;
};

/// The plot without its edges, where the axes and the end of the line are.
QRectF inner(const QRectF& plot) { return plot.adjusted(4, 4, -4, -4); }

/// A curve whose humidity ratio is known at a dry bulb.
void checkByDryBulb(const chart::Layout& chart, const chart::Curve& curve, double scale)
{
    Finder finder(scale, curve);
    const chart::Plane& plane = chart.plane;
    const auto ratio = [&](double t) { return ratioOn(curve.family, curve.value, t); };
    const double start = curve.line.front().x() + 4;
    const double end = curve.line.back().x() - 4;
    for (int x = static_cast<int>(start * scale); x < end * scale; x += 7) {
        const double t = plane.placeAt({(x + 0.5) / scale, 0}).Tdb;
        const QPointF place = plane.at(t, ratio(t));
        const QPointF next = plane.at(t + 0.01, ratio(t + 0.01));
        if (!inner(plane.plot).contains(place))
            continue;
        const bool isSteep = std::fabs(next.y() - place.y()) > std::fabs(next.x() - place.x());
        if (!isSteep) {
            finder.expectInColumn(x, place.y() * scale);
        } else {
            const int y = static_cast<int>(place.y() * scale);
            const double w = plane.placeAt({0, (y + 0.5) / scale}).W;
            const double exactly = whereIs(w, t - 5, t + 5, ratio);
            finder.expectInRow(y, plane.at(exactly, w).x() * scale);
        }
    }
    finder.expectEnough(end - start);
}

void checkVolume(const chart::Layout& chart, const chart::Curve& curve, double scale)
{
    Finder finder(scale, curve);
    const chart::Plane& plane = chart.plane;
    const double start = curve.line.front().y() + 4;
    const double end = curve.line.back().y() - 4;
    for (int y = static_cast<int>(start * scale); y < end * scale; y += 7) {
        const double w = plane.placeAt({0, (y + 0.5) / scale}).W;
        const QPointF place = plane.at(tdbOfVolume(curve.value, w, plane.span.tdb), w);
        if (inner(plane.plot).contains(place))
            finder.expectInRow(y, place.x() * scale);
    }
    finder.expectEnough(end - start);
}

void checkFamily(chart::Family family, std::size_t least)
{
    for (const Mode& mode : modes) {
        mode.putInForce();
        const chart::Layout chart(size, QApplication::font());
        std::size_t members = 0;
        for (const chart::Curve& curve : chart.curves) {
            if (curve.family != family)
                continue;
            ++members;
            for (const double scale : {1.0, 2.0}) {
                SCOPED_TRACE(std::to_string(curve.value) + " at " + std::to_string(mode.pressure) +
                             ", scale " + std::to_string(scale));
                if (family == chart::Family::SpecificVolume)
                    checkVolume(chart, curve, scale);
                else
                    checkByDryBulb(chart, curve, scale);
            }
        }
        EXPECT_GE(members, least);
    }
}

} // namespace

TEST(ChartPixels, HaveTheSaturationCurveWhereTheRelationsPutIt) { checkFamily(chart::Family::Saturation, 1); }

TEST(ChartPixels, HaveTheRelativeHumiditiesThere) { checkFamily(chart::Family::RelativeHumidity, 9); }

TEST(ChartPixels, HaveTheWetBulbsThere) { checkFamily(chart::Family::WetBulb, 6); }

TEST(ChartPixels, HaveTheEnthalpiesThere) { checkFamily(chart::Family::Enthalpy, 6); }

TEST(ChartPixels, HaveTheSpecificVolumesThere) { checkFamily(chart::Family::SpecificVolume, 4); }

TEST(ChartPixels, HaveTheTicksOfBothAxesOnRoundFigures)
{
    for (const Mode& mode : modes) {
        mode.putInForce();
        const chart::Layout chart(size, QApplication::font());
        const chart::Span& span = chart.plane.span;
        for (const chart::Curve& curve : chart.curves) {
            const QRectF& plot = chart.plane.plot;
            if (curve.family == chart::Family::DryBulb) {
                const double part = (curve.value - span.tdb.low) / (span.tdb.high - span.tdb.low);
                EXPECT_NEAR(curve.line.front().x(), plot.left() + part * plot.width(), 1e-9);
                EXPECT_EQ(std::fmod(curve.value, IsMetric() ? 5 : 10), 0);
            } else if (curve.family == chart::Family::HumidityRatio) {
                const double part = curve.value / span.w.high;
                EXPECT_NEAR(curve.line.back().y(), plot.bottom() - part * plot.height(), 1e-9);
                EXPECT_NEAR(std::remainder(curve.value, 0.002), 0, 1e-12);
            }
        }
    }
}

TEST(ChartPixels, EndTheGridAtSaturation)
{
    modes.front().putInForce();
    const chart::Layout chart(size, QApplication::font());
    for (const chart::Curve& curve : chart.curves) {
        if (curve.family == chart::Family::HumidityRatio && curve.value > 0.004) {
            const double t = chart.plane.placeAt(curve.line.front()).Tdb;
            EXPECT_NEAR(saturatedW(t), curve.value, 1e-6);
        }
    }
}
