// A displayed state that is entered again by any of its items gives the same state, as far as the displayed
// digits, the search and the dew point regression leave it.

#include "tests/core/AccuracyDocument.h"
#include "tests/core/CoreTest.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <random>

namespace {

constexpr double HalfStep = 1e-4; // of the wet bulb: the search ends with a step of at most 0.01 percent

/// How far the dew point regression is from the saturation curve at this dew point.
double regressionError(double dewPoint)
{
    const Single pws = SaturationPressure(ToAbsolute(RoundToSingle(dewPoint)));
    return std::fabs(DewPointFromVaporPressure(IsMetric() ? RoundToSingle(pws / 1000.0) : pws) - dewPoint);
}

/// The gap between the two parts of the regression, in degrees of the mode.
double regressionGap() { return IsMetric() ? 0.035 : 0.06; }

/// An item as the screens show it, with half a unit of its last digit and what its own calculation leaves.
struct ShownItem
{
    StateItem item;
    void (*solve)();
    const char* picture;
    double shownPerUnit;
    double uncertain;
};

std::vector<ShownItem> shownItems(const MoistAirState& state)
{
    // The error grows downward, and the dew point of the curve is lower than the one that the regression
    // shows.
    const double ofRegression = 1.6 * regressionError(state.td.asDouble()) + regressionGap();
    const double ofSearch = HalfStep * std::fabs(state.Twb.asDouble()) + 1e-4;
    std::vector<ShownItem> items{
        {&MoistAirState::Twb, SolveFromWetBulb, "#0.0", 1, 0.05 + ofSearch},
        {&MoistAirState::td, SolveFromDewPoint, "#0.0", 1, 0.05 + ofRegression},
        {&MoistAirState::RH, SolveFromRH, "#0.0", 100, 0.05},
        {&MoistAirState::W, SolveFromW, IsMetric() ? "#0.00" : "#0.00000", IsMetric() ? 1000.0 : 1.0,
         IsMetric() ? 0.005 : 0.000005},
    };
    if (!IsMetric())
        items.push_back({&MoistAirState::Grains, SolveFromGrains, "#0.0", 1, 0.05});
    return items;
}

/// The state for an item entered as this number; nothing if the solver refuses it.
std::optional<MoistAirState> entered(const MoistAirState& state, const ShownItem& shown, double number)
{
    StatePoint = {};
    StatePoint.Tdb = state.Tdb;
    StatePoint.P = state.P;
    const bool isPercent = shown.item == &MoistAirState::RH; // the solver converts it
    StatePoint.*shown.item = RoundToSingle(isPercent ? number : number / shown.shownPerUnit);
    HumidityRatioTooHigh = GrainsTooHigh = False16;
    if (ErrorOf(shown.solve) != 0 || HumidityRatioTooHigh != 0 || GrainsTooHigh != 0)
        return std::nullopt;
    return StatePoint;
}

/// Expects a value between those of two states, with a tolerance for their own roundings.
void expectBetween(double value, double first, double second, double tolerance, const char* what)
{
    EXPECT_GE(value, std::min(first, second) - tolerance) << what;
    EXPECT_LE(value, std::max(first, second) + tolerance) << what;
}

/// Every property rises or falls with the humidity, so it lies between those of the two ends of an item.
void expectStateBetween(const MoistAirState& state, const MoistAirState& drier, const MoistAirState& moister)
{
    const double twb = state.Twb.asDouble();
    const auto of = [](const MoistAirState& air, StateItem item) { return (air.*item).asDouble(); };
    const auto expect = [&](StateItem item, double tolerance, const char* what) {
        expectBetween(of(state, item), of(drier, item), of(moister, item), tolerance, what);
    };
    expect(&MoistAirState::W, 2e-6 * of(state, &MoistAirState::W), "W");
    expect(&MoistAirState::RH, 2e-6, "RH");
    expect(&MoistAirState::SpVol, 1e-6 * of(state, &MoistAirState::SpVol), "volume");
    expect(&MoistAirState::Twb, 2.0 * HalfStep * std::fabs(twb) + 2e-4, "wet bulb");
    expect(&MoistAirState::td, regressionGap(), "dew point");
    expectBetween(state.h, drier.h, moister.h, 1e-5 + 1e-6 * std::fabs(state.h), "enthalpy");
}

/// @return  the number of items that could be entered with both ends of their uncertainty
int expectSameAgain(const MoistAirState& state)
{
    int compared = 0;
    for (const ShownItem& shown : shownItems(state)) {
        const std::string text = FormatNumber(state.*shown.item * shown.shownPerUnit, shown.picture);
        SCOPED_TRACE("entered again: " + text + " at " + std::to_string(state.Tdb));
        const double number = ParseSingle(text);
        const auto drier = entered(state, shown, number - shown.uncertain);
        const auto moister = entered(state, shown, number + shown.uncertain);
        if (!drier || !moister)
            continue;
        expectStateBetween(state, *drier, *moister);
        ++compared;
    }
    return compared;
}

/// Random states of the screens. Nearly dry and nearly saturated air is left out: an end of what is shown may
/// be no state there.
void expectEveryStateAgain(int states, int leastCompared)
{
    std::mt19937 random(5);
    const auto uniform = [&](double least, double most) {
        return RoundToSingle(std::uniform_real_distribution<double>(least, most)(random));
    };
    int compared = 0;
    for (int i = 0; i < states && !testing::Test::HasFailure(); ++i) {
        StatePoint = {};
        StatePoint.Tdb = IsMetric() ? uniform(-40, 50) : uniform(-40, 125);
        StatePoint.P = IsMetric() ? uniform(60000, 110000) : uniform(9, 16);
        StatePoint.RH = uniform(5, 95);
        SolveFromRH();
        compared += expectSameAgain(MoistAirState(StatePoint));
    }
    EXPECT_GT(compared, leastCompared);
}

/// The largest error of the regression between two dew points.
double worstRegression(double first, double last)
{
    double worst = 0.0;
    for (int i = 0; first + i * 0.001 <= last; ++i)
        worst = std::max(worst, regressionError(first + i * 0.001));
    return worst;
}

void expectRegression(const std::string& units, const std::string& degrees, const std::vector<double>& limits)
{
    for (std::size_t i = 0; i + 1 < limits.size(); ++i) {
        const double worst = worstRegression(limits[i], limits[i + 1]);
        std::ostringstream line;
        line << "| " << units << " | " << limits[i] << " to " << limits[i + 1] << degrees << " | "
             << Places(worst, 2) << degrees << " |";
        ExpectInAccuracyDocument(line.str());
        EXPECT_LT(worst, limits[i] < -41.0 ? 9.0 : 1.1);
    }
    EXPECT_LT(worstRegression(limits.back() - 50.0, limits.back()), regressionGap());
}

} // namespace

class EnglishAgain : public EnglishCore
{};
class MetricAgain : public MetricCore
{};

TEST_F(EnglishAgain, IsTheSameStateFromEveryItem) { expectEveryStateAgain(20000, 90000); }
TEST_F(MetricAgain, IsTheSameStateFromEveryItem) { expectEveryStateAgain(20000, 70000); }

TEST_F(EnglishAgain, HasTheDewPointOfTheSaturationCurve)
{
    expectRegression("English", " deg F", {-76, -40, -22, -4, 32, 125});
}

TEST_F(MetricAgain, HasTheDewPointOfTheSaturationCurve)
{
    expectRegression("Metric", " deg C", {-60, -40, -30, -20, 0, 50});
}
