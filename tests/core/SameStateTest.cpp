// A state is the same, whichever of its items it is solved from.

#include "tests/core/CoreTest.h"

#include <cmath>
#include <functional>

namespace {

struct Tolerance
{
    double humidity;    // relative, for W
    double temperature; // degrees, for wet bulb and dew point
};

// The search ends within 0.01 percent of the wet bulb. The dew point is a regression, accurate to a few
// hundredths of a degree, which is a few tenths of a percent of the humidity.
constexpr Tolerance exact{2e-6, 0.02};
constexpr Tolerance searched{0.005, 0.05};
constexpr Tolerance regressed{0.015, 0.25};

/// Checks each property within the bound that follows from the tolerance of W: volume grows with 1 + 1.6078
/// W, enthalpy with the heat of vaporization, the humidities proportionally.
void ExpectSame(const MoistAirState& state, const MoistAirState& expected, const Tolerance& tolerance)
{
    const double W = expected.W.asDouble();
    const double ofW = W * tolerance.humidity + 1e-7;
    const double relative = ofW / W;
    const double heat = IsMetric() ? 2600.0 : 1150.0;
    EXPECT_NEAR(state.W.asDouble(), W, ofW);
    EXPECT_NEAR(state.Pw.asDouble(), expected.Pw.asDouble(), expected.Pw.asDouble() * relative);
    EXPECT_NEAR(state.Mu.asDouble(), expected.Mu.asDouble(), expected.Mu.asDouble() * relative);
    EXPECT_NEAR(state.RH.asDouble(), expected.RH.asDouble(), expected.RH.asDouble() * relative);
    EXPECT_NEAR(state.SpVol.asDouble(), expected.SpVol.asDouble(),
                expected.SpVol.asDouble() * 1.6078 * ofW + 2e-6);
    EXPECT_NEAR(state.h, expected.h, heat * ofW + 1e-5);
    EXPECT_NEAR(state.td.asDouble(), expected.td.asDouble(), tolerance.temperature);
    EXPECT_NEAR(state.Twb.asDouble(), expected.Twb.asDouble(), tolerance.temperature);
    EXPECT_EQ(state.Pws.asSingle(), expected.Pws.asSingle());
    EXPECT_EQ(state.Ws.asSingle(), expected.Ws.asSingle());
}

MoistAirState SolvedFrom(const MoistAirState& given, StateItem item, void (*solve)())
{
    StatePoint = {};
    StatePoint.Tdb = given.Tdb;
    StatePoint.P = given.P;
    StatePoint.*item = given.*item;
    solve();
    return StatePoint;
}

void ExpectSameFromEveryItem(Single Tdb, Single P, Single percent)
{
    SCOPED_TRACE("Tdb " + std::to_string(Tdb) + ", P " + std::to_string(P) + ", RH " +
                 std::to_string(percent));
    StatePoint = {};
    StatePoint.Tdb = Tdb;
    StatePoint.P = P;
    StatePoint.RH = percent;
    SolveFromRH();
    const MoistAirState state = StatePoint;

    ExpectSame(SolvedFrom(state, &MoistAirState::W, SolveFromW), state, exact);
    if (!IsMetric())
        ExpectSame(SolvedFrom(state, &MoistAirState::Grains, SolveFromGrains), state, exact);
    ExpectSame(SolvedFrom(state, &MoistAirState::Twb, SolveFromWetBulb), state, searched);
    ExpectSame(SolvedFrom(state, &MoistAirState::td, SolveFromDewPoint), state, regressed);
}

} // namespace

using SameState = EnglishCore;

TEST_F(SameState, FromEveryItemInEnglish)
{
    for (const Single P : {10.0F, 14.696F}) {
        for (int Tdb = 40; Tdb <= 115; Tdb += 5) {
            for (const Single percent : {20.0F, 35.0F, 50.0F, 65.0F, 80.0F, 95.0F})
                ExpectSameFromEveryItem(static_cast<Single>(Tdb), P, percent);
        }
    }
}

TEST_F(SameState, FromEveryItemInMetric)
{
    UnitSystem = True16;
    for (const Single P : {70000.0F, 101325.0F}) {
        for (int Tdb = 5; Tdb <= 45; Tdb += 5) {
            for (const Single percent : {20.0F, 35.0F, 50.0F, 65.0F, 80.0F, 95.0F})
                ExpectSameFromEveryItem(static_cast<Single>(Tdb), P, percent);
        }
    }
}

TEST_F(SameState, IsOrderedByItsTemperatures)
{
    for (const bool metric : {false, true}) {
        UnitSystem = metric ? True16 : False16;
        StatePoint.P = metric ? 101325.0F : 14.696F;
        for (int percent = 2; percent <= 98; percent += 4) {
            StatePoint.Tdb = metric ? 30.0F : 86.0F;
            StatePoint.RH = static_cast<Single>(percent);
            SolveFromRH();
            EXPECT_LT(StatePoint.td.asDouble(), StatePoint.Twb.asDouble());
            EXPECT_LT(StatePoint.Twb.asDouble(), StatePoint.Tdb);
        }
    }
}
