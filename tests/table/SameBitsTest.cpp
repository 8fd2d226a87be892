// The numbers of a table are those of the calculators, to the last bit.

#include "core/CheckedArithmetic.h"
#include "core/InputLimits.h"
#include "core/Solvers.h"
#include "tests/table/TableTest.h"

#include <charconv>
#include <fstream>
#include <map>
#include <random>
#include <sstream>

namespace {

std::vector<std::string> CellsOf(const std::string& line)
{
    std::vector<std::string> cells;
    std::istringstream stream(line);
    for (std::string cell; std::getline(stream, cell, ',');)
        cells.push_back(cell);
    return cells;
}

std::vector<std::string> LinesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

template <typename Number>
std::string Shortest(Number value)
{
    char digits[40];
    return {digits, std::to_chars(digits, digits + sizeof digits, value).ptr};
}

std::string TextOf(const TaggedNumber& value)
{
    return value.kind() == NumberKind::Single ? Shortest(value.asSingle()) : Shortest(value.asDouble());
}

using Vector = std::map<std::string, std::string>;

std::vector<Vector> VectorsFor(const std::string& solver, const std::string& units)
{
    std::ifstream file(DUNMOOR_TEST_DATA "/states.csv");
    std::vector<std::string> names;
    std::vector<Vector> rows;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#'))
            continue;
        const std::vector<std::string> cells = CellsOf(line);
        if (names.empty()) {
            names = cells;
            continue;
        }
        Vector row;
        for (std::size_t i = 0; i < names.size(); ++i)
            row[names[i]] = cells.at(i);
        if (row["solver"] == solver && row["UnitSystem"] == units && row["outcome"] == "ok")
            rows.push_back(row);
    }
    return rows;
}

double Number(const Vector& row, const std::string& name)
{
    return std::strtod(row.at(name).c_str(), nullptr);
}

/// A number of a vector as the table writes it.
std::string Expected(const Vector& row, const std::string& name, int factor = 1)
{
    const double value = Number(row, name);
    const TaggedNumber number =
        row.at(name + ".kind") == "single" ? TaggedNumber(RoundToSingle(value)) : TaggedNumber(value);
    return TextOf(factor == 1 ? number : number * factor);
}

/// Compares the vectors that can be typed into a calculator.
int CompareWithVectors(const std::string& solver, const std::string& item, double least)
{
    int compared = 0;
    for (const Vector& row : VectorsFor(solver, "0")) {
        const double tdb = Number(row, "Tdb");
        const double value = Number(row, "item");
        const bool isClipped = value < least || (item == "rh" && value > 100) ||
                               ((item == "twb" || item == "td") && value >= tdb);
        if (tdb < -40 || tdb > 125 || row.at("item_kind") != "single" || isClipped)
            continue;
        const std::string input = "tdb,p," + item + "\n" + Shortest(static_cast<Single>(tdb)) + "," +
                                  Shortest(static_cast<Single>(Number(row, "P"))) + "," +
                                  Shortest(static_cast<Single>(value)) + "\n";
        const std::vector<std::string> lines = LinesOf(Solved(input).text);
        const std::vector<std::string> names = CellsOf(lines.at(0));
        const std::vector<std::string> cells = CellsOf(lines.at(1));
        const std::map<std::string, std::string> expected{{"twb_F", Expected(row, "Twb")},
                                                          {"td_F", Expected(row, "td")},
                                                          {"rh_percent", Expected(row, "RH", 100)},
                                                          {"w_lb_per_lb", Expected(row, "W")},
                                                          {"grains_gr_per_lb", Expected(row, "Grains")},
                                                          {"h_Btu_per_lb", Expected(row, "h")},
                                                          {"v_ft3_per_lb", Expected(row, "SpVol")}};
        for (std::size_t i = 3; i < cells.size(); ++i)
            EXPECT_EQ(cells[i], expected.at(names.at(i))) << names.at(i) << " of " << input;
        ++compared;
    }
    return compared;
}

} // namespace

TEST(TableNumbers, AreThoseOfTheStateVectors)
{
    EXPECT_GT(CompareWithVectors("SolveFromRH", "rh", 1e-30), 50);
    EXPECT_GT(CompareWithVectors("SolveFromDewPoint", "td", -1e9), 50);
    EXPECT_GT(CompareWithVectors("SolveFromWetBulb", "twb", -1e9), 50);
    EXPECT_GT(CompareWithVectors("SolveFromW", "w", 1.1e-5), 50);
    EXPECT_GT(CompareWithVectors("SolveFromGrains", "grains", 0.11), 50);
}

// Ten thousand random rows in Metric, with the calculator's conversions done here by hand.
TEST(TableNumbers, AreThoseOfTheSolversInMetric)
{
    std::mt19937 random{3};
    const auto uniform = [&](double least, double most) {
        return Shortest(static_cast<Single>(std::uniform_real_distribution<double>(least, most)(random)));
    };
    std::string table = "tdb,p,w\n";
    for (int i = 0; i < 10000; ++i)
        table += uniform(-10, 50) + "," + uniform(70, 110) + "," + uniform(0.02, 20) + "\n";
    const std::vector<std::string> given = LinesOf(table);
    const std::vector<std::string> solved = LinesOf(Solved(table, {"--units", "metric"}).text);
    ASSERT_EQ(solved.size(), given.size());

    int refused = 0;
    for (std::size_t i = 1; i < given.size(); ++i) {
        const std::vector<std::string> cells = CellsOf(given[i]);
        StatePoint = {};
        StatePoint.Tdb = std::stof(cells[0]);
        StatePoint.P = RoundToSingle(std::stof(cells[1]) * 1000.0);
        StatePoint.W = RoundToSingle(std::stof(cells[2]) / 1000.0);
        SolveFromW();
        std::string expected = given[i] + ",,,,,,Humidity Ratio Input is High";
        if (HumidityRatioTooHigh == 0)
            expected = given[i] + "," + TextOf(StatePoint.Twb) + "," + TextOf(StatePoint.td) + "," +
                       TextOf(StatePoint.RH * 100) + "," + TextOf(StatePoint.h) + "," +
                       TextOf(StatePoint.SpVol) + ",";
        refused += HumidityRatioTooHigh != 0 ? 1 : 0;
        ASSERT_EQ(solved[i], expected);
    }
    EXPECT_GT(refused, 100);
    EXPECT_LT(refused, 9000);
}
