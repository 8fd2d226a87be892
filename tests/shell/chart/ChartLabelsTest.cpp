// The chart's names: none touches another, all stand in the picture, and the legend names every state.

#include "shell/chart/ChartLayout.h"
#include "tests/shell/chart/ChartModes.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPainterPath>

#include <string>

namespace {

const QSize sizes[] = {{150, 120}, {300, 260}, {520, 560}, {560, 610}, {900, 500}, {500, 900}, {1800, 1300}};

QPainterPath pathOf(const ChartLabel& label)
{
    QPainterPath path;
    path.addPolygon(label.outline());
    path.closeSubpath();
    return path;
}

void expectApart(const ChartLayout& chart, const QSize& size)
{
    const std::vector<ChartLabel>& labels = chart.labels.all();
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

bool isNamed(const ChartLayout& chart, const std::string& text)
{
    return std::any_of(chart.labels.all().begin(), chart.labels.all().end(),
                       [&](const ChartLabel& label) { return label.text == QString::fromStdString(text); });
}

void forget()
{
    for (AirSnapshot* air :
         {&MixedOutsideAir, &MixedReturnAir, &MixedResultAir, &CoolingEnteringAir, &CoolingLeavingAir,
          &HeatingEnteringAir, &HeatingLeavingAir, &HumidOutsideAir, &HumidDesiredAir})
        *air = {};
}

void putStatesCloseTogether()
{
    const Single tdb = IsMetric() ? 24 : 75;
    MixedOutsideAir = airAt(tdb, 50);
    MixedReturnAir = airAt(tdb + 1, 50);
    CoolingEnteringAir = airAt(tdb + 0.5F, 51);
    CoolingLeavingAir = airAt(tdb - 0.5F, 51);
    HeatingEnteringAir = airAt(tdb, 50);
    HeatingLeavingAir = airOfRatio(tdb + 2, HeatingEnteringAir.W);
    HumidOutsideAir = airAt(tdb, 50);
    HumidDesiredAir = airAt(tdb, 52);
    airAt(tdb, 50);
    KeepAirProperties();
}

void putStatesFarApart()
{
    HeatingEnteringAir = airAt(IsMetric() ? 20 : 68, 40);
    HeatingLeavingAir = airOfRatio(IsMetric() ? 110 : 230, HeatingEnteringAir.W);
    HumidOutsideAir = airAt(IsMetric() ? -20 : -4, 60);
    HumidDesiredAir = airAt(IsMetric() ? 50 : 122, 100);
    CoolingEnteringAir = airAt(IsMetric() ? 35 : 95, 70);
    CoolingLeavingAir = airAt(IsMetric() ? 13 : 55, 100);
}

} // namespace

TEST(ChartNaming, KeepsAllLabelsApart)
{
    for (const ChartMode& mode : chartModes) {
        for (void (*put)() : {forget, putStatesCloseTogether, putStatesFarApart}) {
            mode.putInForce();
            forget();
            put();
            for (const QSize& size : sizes) {
                SCOPED_TRACE(std::to_string(size.width()) + " x " + std::to_string(size.height()) + " at " +
                             std::to_string(mode.pressure));
                expectApart(ChartLayout(size, QApplication::font()), size);
            }
        }
    }
}

TEST(ChartNaming, KeepsThemApartInLargeLetters)
{
    QFont large = QApplication::font();
    large.setPointSizeF(large.pointSizeF() * 2);
    chartModes.front().putInForce();
    putStatesCloseTogether();
    for (const QSize& size : sizes)
        expectApart(ChartLayout(size, large), size);
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
         {std::pair{ChartMode{False16, 14.696F}, english}, std::pair{ChartMode{True16, 101.325F}, metric}}) {
        mode.putInForce();
        const ChartLayout chart({560, 610}, QApplication::font());
        for (const std::string& name : names)
            EXPECT_TRUE(isNamed(chart, name)) << name;
    }
}

TEST(ChartNaming, NamesEveryStateInTheLegendAndAtItsPoint)
{
    for (const ChartMode& mode : chartModes) {
        mode.putInForce();
        forget();
        putStatesFarApart();
        const ChartLayout chart({560, 610}, QApplication::font());
        EXPECT_EQ(chart.marks.size(), 6U);
        for (const char* text : {"Cooling:", "1 entering", "2 leaving", "Heating:", "3 entering", "4 leaving",
                                 "Humidification:", "5 outside", "6 desired", "1", "2", "3", "4", "5", "6"})
            EXPECT_TRUE(isNamed(chart, text)) << text;
    }
}

TEST(ChartNaming, GivesStatesOnOnePlaceOneLabel)
{
    chartModes.front().putInForce();
    MixedReturnAir = airAt(70, 50);
    HeatingEnteringAir = airAt(70, 50);
    const ChartLayout chart({560, 610}, QApplication::font());
    EXPECT_TRUE(isNamed(chart, "1, 2"));
}

TEST(ChartNaming, DropsLabelsWhereThereIsLittleRoom)
{
    chartModes.front().putInForce();
    const std::size_t few = ChartLayout({200, 160}, QApplication::font()).labels.all().size();
    const std::size_t many = ChartLayout({800, 800}, QApplication::font()).labels.all().size();
    EXPECT_LT(few, many / 2);
    EXPECT_GT(few, 3U);
}
