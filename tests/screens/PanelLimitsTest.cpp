// The limits of the entries, and what happens beyond them, on each of the five calculators.

#include "tests/screens/CalculatorFixture.h"

namespace {

/// The differences between the five.
struct Limits
{
    const char* name;
    const char* button; ///< of the main menu
    double wetBulbBelow;
    double metricWetBulbBelow;
    double dewPointBelow;
    bool limitsMetricTdb;
};

void PrintTo(const Limits& limits, std::ostream* out) { *out << limits.name; }

constexpr Limits calculators[] = {
    {"AirProperties", "btnAirCalc", 0.01, 0.01, 0.01, true},
    {"MixedAir", "btnMixedAir", 0.1, 0.05, 0.1, false},
    {"Cooling", "btnCooling", 0.01, 0.01, 0.01, true},
    {"Heating", "btnHeating", 0.1, 0.05, 0.1, true},
    {"Humidification", "btnHumidity", 0.1, 0.05, 0.1, true},
};

class PanelLimits : public CalculatorTest, public testing::WithParamInterface<Limits>
{
protected:
    void open(bool metric = false)
    {
        metric ? startInMetric() : start();
        user.click(GetParam().button);
    }
};

INSTANTIATE_TEST_SUITE_P(Of, PanelLimits, testing::ValuesIn(calculators),
                         [](const auto& limits) { return std::string(limits.param.name); });

} // namespace

TEST_P(PanelLimits, ClipAWetBulbOrDewPointThatIsNotBelowTheDryBulb)
{
    open();
    for (const char* notBelow : {"70", "71"}) {
        calculate("70", "txtTwb", notBelow);
        expectWarning("lblTwb2", " Twb clipped at Tdb");
        EXPECT_EQ(StatePoint.Twb, 70.0 - GetParam().wetBulbBelow);
        calculate("70", "txttd", notBelow);
        expectWarning("lblDewPt2", " Dew Pt. clipped at Tdb");
        EXPECT_EQ(StatePoint.td, 70.0 - GetParam().dewPointBelow);
    }
    EXPECT_TRUE(user.messages.empty());
}

TEST_P(PanelLimits, ClipAWetBulbOrDewPointInMetricByTheirOwnSteps)
{
    open(true);
    for (const char* notBelow : {"20", "21"}) {
        calculate("20", "txtTwb", notBelow);
        expectWarning("lblTwb2", " Twb clipped at Tdb");
        EXPECT_EQ(StatePoint.Twb, 20.0 - GetParam().metricWetBulbBelow);
        calculate("20", "txttd", notBelow);
        expectWarning("lblDewPt2", " Dew Pt. clipped at Tdb");
        EXPECT_EQ(StatePoint.td, 20.0 - GetParam().dewPointBelow);
    }
}

TEST_P(PanelLimits, ClipTheOtherItems)
{
    open();
    calculate("70", "txtGrains", "0"); // first: mixed air reads the grains of the previous state
    expectWarning("lblGrains2", " grains clipped at 0.1");
    calculate("70", "txtRH", "100.1");
    expectWarning("lblRH2", " RH clipped at 100%");
    calculate("70", "txtRH", "0");
    expectWarning("lblRH2", " RH clipped at 0.1%");
    calculate("70", "txtW", "0");
    expectWarning("lblW2", " W clipped at 0.00001");
    EXPECT_TRUE(user.messages.empty());
}

TEST_P(PanelLimits, RefuseDryBulbsOutsideMinusFortyToOneHundredTwentyFive)
{
    open();
    calculate("-40", "txtRH", "50");
    calculate("125", "txtRH", "50");
    EXPECT_TRUE(user.messages.empty());
    for (const char* refused : {"-40.1", "125.1"}) {
        user.messages.clear();
        calculate(refused, "txtRH", "50");
        EXPECT_EQ(user.messages, std::vector{temperatureOutOfRange}) << refused;
        EXPECT_FALSE(user.isEnabled("btnCALCULATE"));
    }
}

TEST_P(PanelLimits, RefuseMetricDryBulbsAboveFiftyWithTheOtherMessage)
{
    open(true);
    calculate("50", "txtRH", "50");
    EXPECT_TRUE(user.messages.empty());
    calculate("50.5", "txtRH", "50");
    EXPECT_EQ(user.messages, GetParam().limitsMetricTdb ? std::vector{outOfRange} : std::vector<Message>{});
    user.messages.clear();
    calculate("125.5", "txtRH", "50");
    EXPECT_EQ(user.messages, std::vector{temperatureOutOfRange});
}
