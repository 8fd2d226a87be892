// The predicted mean vote compared with the published examples of its standard.

#include "core/ThermalComfort.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>
#include <vector>

namespace {

std::vector<std::vector<double>> examples()
{
    std::ifstream file(DUNMOOR_TEST_DATA "/pmv.csv");
    std::vector<std::vector<double>> rows;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#') || line.starts_with("tdb"))
            continue;
        std::istringstream stream(line);
        std::vector<double> row;
        for (std::string cell; std::getline(stream, cell, ',');)
            row.push_back(std::stod(cell));
        rows.push_back(row);
    }
    return rows;
}

} // namespace

TEST(PredictedMeanVote, IsAsPublished)
{
    ASSERT_EQ(examples().size(), 12U);
    for (const std::vector<double>& row : examples()) {
        const double vapor = VaporPressureForVote(row.at(3) / 100, row.at(0));
        const double vote = PredictedMeanVote({row.at(0), row.at(1), row.at(2), vapor, row.at(4), row.at(5)});
        EXPECT_NEAR(vote, row.at(6), 0.02) << row.at(0) << " deg C, " << row.at(5) << " clo";
    }
}

TEST(PredictedMeanVote, RisesWithTheTemperatureAndTheMoisture)
{
    const auto vote = [](double t, double vapor) { return PredictedMeanVote({t, t, 0.1, vapor, 1.1, 0.5}); };
    for (double t = 5; t < 45; t += 0.5) {
        EXPECT_LT(vote(t, 1000), vote(t + 0.5, 1000)) << t;
        EXPECT_LT(vote(t, 1000), vote(t, 1100)) << t;
    }
}
