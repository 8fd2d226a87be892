// The labels of the chart: none touches another, all are in the picture, and the legend names every state.

#include "chart/Layout.h"
#include "tests/chart/Modes.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPainterPath>

#include <string>

namespace {

const QSize sizes[] = {{150, 120}, {300, 260}, {520, 560}, {560, 610}, {900, 500}, {500, 900}, {1800, 1300}};

QPainterPath pathOf(const chart::Label& label)
{
    QPainterPath path;
    path.addPolygon(label.outline());
    path.closeSubpath();
    return path;
}

void expectApart(const chart::Layout& chart, const QSize& size)
{
    const std::vector<chart::Label>& labels = chart.labels.all();
    for (std::size_t one = 0; one < labels.size(); ++one) {
        const QPainterPath path = pathOf(labels[one]);
        EXPECT_TRUE(QRectF(QPointF(0, 0), size).contains(path.boundingRect()))
            << labels[one].text.toStdString();
        for (std::size_t other = one + 1; other < labels.size(); ++other) {
            EXPECT_FALSE(path.intersects(pathOf(labels[other])))
                << labels[one].text.toStdString() << " and " << labels[other].text.toStdString();
        }
    }
}

bool isNamed(const chart::Layout& chart, const std::string& text)
{
    return std::any_of(chart.labels.all().begin(), chart.labels.all().end(),
                       [&](const chart::Label& label) { return label.text == QString::fromStdString(text); });
}

void keepNone() { LastRuns = {}; }

void keepStatesCloseTogether()
{
    const Single tdb = IsMetric() ? 24 : 75;
    const AirSnapshot air = AirAt(tdb, 50);
    KeepLastRun(Calculator::AirProperties, {{"air", air}});
    KeepLastRun(Calculator::MixedAir, {{"outside", air}, {"return", AirAt(tdb + 1, 50)}});
    KeepLastRun(Calculator::Cooling,
                {{"entering", AirAt(tdb + 0.5F, 51)}, {"leaving", AirAt(tdb - 0.5F, 51)}});
    KeepLastRun(Calculator::Heating, {{"entering", air}, {"leaving", AirOfRatio(tdb + 2, air.W)}});
    KeepLastRun(Calculator::Humidification, {{"outside", air}, {"desired", AirAt(tdb, 52)}});
}

void keepStatesFarApart()
{
    const AirSnapshot heated = AirAt(IsMetric() ? 20 : 68, 40);
    KeepLastRun(Calculator::Heating,
                {{"entering", heated}, {"leaving", AirOfRatio(IsMetric() ? 110 : 230, heated.W)}});
    KeepLastRun(Calculator::Humidification, {{"outside", AirAt(IsMetric() ? -20 : -4, 60)},
                                             {"desired", AirAt(IsMetric() ? 50 : 122, 100)}});
    KeepLastRun(Calculator::Cooling, {{"entering", AirAt(IsMetric() ? 35 : 95, 70)},
                                      {"leaving", AirAt(IsMetric() ? 13 : 55, 100)}});
}

} // namespace

TEST(ChartNaming, KeepsAllLabelsApart)
{
    for (const Mode& mode : modes) {
        for (void (*keep)() : {keepNone, keepStatesCloseTogether, keepStatesFarApart}) {
            mode.putInForce();
            keepNone();
            keep();
            for (const QSize& size : sizes) {
                SCOPED_TRACE(std::to_string(size.width()) + " x " + std::to_string(size.height()) + " at " +
                             std::to_string(mode.pressure));
                expectApart(chart::Layout(size, QApplication::font()), size);
            }
        }
    }
}

TEST(ChartNaming, KeepsThemApartInLargeLetters)
{
    QFont large = QApplication::font();
    large.setPointSizeF(large.pointSizeF() * 2);
    modes.front().putInForce();
    keepStatesCloseTogether();
    for (const QSize& size : sizes)
        expectApart(chart::Layout(size, large), size);
}

TEST(ChartNaming, NamesTheFamiliesAndTheAxesWithTheirUnits)
{
    const std::vector<std::string> english{"Dry bulb, °F", "Humidity ratio, lb/lb",
                                           "Wet bulb, °F", "10 % relative humidity",
                                           "14 ft³/lb",    "30",
                                           "120",          "0.030",
                                           "90 %",         "At 14.696 psi"};
    const std::vector<std::string> metric{"Dry bulb, °C", "Humidity ratio, g/kg",
                                          "Wet bulb, °C", "10 % relative humidity",
                                          "0.86 m³/kg",   "0",
                                          "50",           "30",
                                          "90 %",         "At 101.325 kPa"};
    for (const auto& [mode, names] :
         {std::pair{Mode{False16, 14.696F}, english}, std::pair{Mode{True16, 101.325F}, metric}}) {
        mode.putInForce();
        const chart::Layout chart({560, 610}, QApplication::font());
        for (const std::string& name : names)
            EXPECT_TRUE(isNamed(chart, name)) << name;
    }
}

TEST(ChartNaming, NamesEveryStateInTheLegendAndAtItsPoint)
{
    for (const Mode& mode : modes) {
        mode.putInForce();
        keepNone();
        keepStatesFarApart();
        const chart::Layout chart({560, 610}, QApplication::font());
        EXPECT_EQ(chart.marks.size(), 6U);
        for (const char* text : {"Cooling:", "1 entering", "2 leaving", "Heating:", "3 entering", "4 leaving",
                                 "Humidification:", "5 outside", "6 desired", "1", "2", "3", "4", "5", "6"})
            EXPECT_TRUE(isNamed(chart, text)) << text;
    }
}

TEST(ChartNaming, GivesStatesOnOnePlaceOneLabel)
{
    modes.front().putInForce();
    KeepLastRun(Calculator::MixedAir, {{"return", AirAt(70, 50)}});
    KeepLastRun(Calculator::Heating, {{"entering", AirAt(70, 50)}});
    const chart::Layout chart({560, 610}, QApplication::font());
    EXPECT_TRUE(isNamed(chart, "1, 2"));
}

TEST(ChartNaming, DropsLabelsWhereThereIsLittleRoom)
{
    modes.front().putInForce();
    const std::size_t few = chart::Layout({200, 160}, QApplication::font()).labels.all().size();
    const std::size_t many = chart::Layout({800, 800}, QApplication::font()).labels.all().size();
    EXPECT_LT(few, many / 2);
    EXPECT_GT(few, 3U);
}
