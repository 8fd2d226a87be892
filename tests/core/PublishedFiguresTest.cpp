// The relations and solvers compared with figures printed in the ASHRAE Handbook of Fundamentals, each within
// the bound listed with it.

#include "tests/core/AccuracyDocument.h"
#include "tests/core/CoreTest.h"

#include <cmath>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>

namespace {

struct Figure
{
    std::string mode, quantity, input, text, unit, deviation;
    double published;

    bool isAbsolute() const { return deviation.ends_with("absolute"); }

    double bound() const
    {
        const double number = std::stod(deviation);
        return isAbsolute() ? number : std::fabs(published) * number / 100.0;
    }
};

std::string Trimmed(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first);
}

std::vector<Figure> Figures()
{
    std::ifstream file(DUNMOOR_TEST_DATA "/published.csv");
    std::vector<Figure> figures;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#'))
            continue;
        std::istringstream stream(line);
        std::vector<std::string> cells;
        for (std::string cell; std::getline(stream, cell, ',');)
            cells.push_back(Trimmed(cell));
        figures.push_back({cells.at(0), cells.at(1), cells.at(2), cells.at(3), cells.at(4), cells.at(5),
                           std::stod(cells.at(3))});
    }
    return figures;
}

/// The number after "name=" in an input such as "tdb=40 twb=20".
Single Input(const Figure& figure, const std::string& name)
{
    const std::size_t at = (" " + figure.input).find(" " + name + "=");
    EXPECT_NE(at, std::string::npos) << figure.input;
    return std::stof(figure.input.substr(at + name.size() + 1));
}

Single StandardPressure() { return IsMetric() ? 101325.0F : 14.696F; }

Single SaturatedW(Single t)
{
    return HumidityRatioFromVaporPressure(SaturationPressure(ToAbsolute(t)), StandardPressure());
}

void SolveWetBulbInput(const Figure& figure)
{
    StatePoint.Tdb = Input(figure, "tdb");
    StatePoint.Twb = Input(figure, "twb");
    StatePoint.P = StandardPressure();
    SolveFromWetBulb();
}

double Worked(const Figure& figure)
{
    const auto t = [&] { return Input(figure, "t"); };
    const auto solved = [&](StateItem item) {
        SolveWetBulbInput(figure);
        return (StatePoint.*item).asDouble();
    };
    const std::map<std::string, std::function<double()>> quantities{
        {"saturation pressure", [&] { return SaturationPressure(ToAbsolute(t())); }},
        {"saturation humidity ratio", [&] { return SaturatedW(t()); }},
        {"saturation enthalpy", [&] { return EnthalpyOf(t(), SaturatedW(t())); }},
        {"specific volume of dry air",
         [&] { return SpecificVolumeOf(ToAbsolute(t()), 0.0F, StandardPressure()); }},
        {"humidity ratio", [&] { return solved(&MoistAirState::W); }},
        {"dew point", [&] { return solved(&MoistAirState::td); }},
        {"relative humidity", [&] { return solved(&MoistAirState::RH); }},
        {"specific volume", [&] { return solved(&MoistAirState::SpVol); }},
        {"enthalpy",
         [&] {
             SolveWetBulbInput(figure);
             return static_cast<double>(StatePoint.h);
         }},
    };
    return quantities.at(figure.quantity)();
}

/// The figure's line of the table in docs/accuracy.md. Absolute deviations have two decimals more than the
/// figure.
std::string TableLine(const Figure& figure, double worked)
{
    const std::size_t pointAt = figure.text.find('.');
    const std::size_t decimals = pointAt == std::string::npos ? 0 : figure.text.size() - pointAt - 1;
    const double deviation = worked - figure.published;
    const std::string shown = figure.isAbsolute()
                                  ? Places(deviation, static_cast<int>(decimals) + 2, true)
                                  : Places(100.0 * deviation / std::fabs(figure.published), 3, true) + "%";
    return "| " + figure.mode + " | " + figure.quantity + " | " + figure.input + " | " + figure.text + ' ' +
           figure.unit + " | " + shown + " | " + figure.deviation + " |";
}

} // namespace

using PublishedFigures = EnglishCore;

TEST_F(PublishedFigures, AreMetWithinTheirBounds)
{
    const std::vector<Figure> figures = Figures();
    ASSERT_EQ(figures.size(), 24U);
    for (const Figure& figure : figures) {
        ASSERT_TRUE(figure.mode == "English" || figure.mode == "Metric");
        UnitSystem = figure.mode == "Metric" ? True16 : False16;
        const double worked = Worked(figure);
        ExpectInAccuracyDocument(TableLine(figure, worked));
        EXPECT_NEAR(worked, figure.published, figure.bound())
            << figure.mode << ' ' << figure.quantity << ", " << figure.input << ", " << figure.unit;
    }
}

// The Handbook reads the dew point of its metric example off a chart, in whole degrees, as 7 deg C. The
// humidity ratio printed beside it, 0.0065, is saturated at 7.7 deg C.
TEST_F(PublishedFigures, HumidityRatioOfTheMetricExampleIsSaturatedAt7Point7)
{
    UnitSystem = True16;
    EXPECT_LT(SaturatedW(7.65F), 0.0065F);
    EXPECT_GT(SaturatedW(7.75F), 0.0065F);
}
