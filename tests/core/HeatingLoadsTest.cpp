#include "core/CoilLoads.h"
#include "tests/core/LoadCases.h"

namespace {

template <class Core>
class Heating : public Core
{
protected:
    Heating() { HeatingEnteringAir = HeatingLeavingAir = {}; }

    /// Heats air with a humidity ratio of 0.008 from one temperature to another.
    static void heat(Single volume, Single specificVolume, Single from, Single to)
    {
        HeatingEnteringAir = {.AirVolume = volume,
                              .SpVol = specificVolume,
                              .h = EnthalpyOf(from, 0.008F),
                              .W = 0.008F,
                              .Tdb = from};
        HeatingLeavingAir.Tdb = to;
        CalculateHeatingLoad(HeatingMassFlow());
    }
};

using EnglishHeating = Heating<EnglishCore>;
using MetricHeating = Heating<MetricCore>;

} // namespace

TEST_F(EnglishHeating, MeetsEveryCaseToTheLastBit)
{
    int counts[2] = {};
    for (const LoadCase& given : LoadCasesIn("heating.csv")) {
        SCOPED_TRACE(given.line());
        UnitSystem = static_cast<Boolean16>(given.integer("UnitSystem"));
        ++counts[IsMetric() ? 1 : 0];
        HeatingEnteringAir = {.AirVolume = given.single("AirVolume"),
                              .SpVol = given.single("SpVol"),
                              .h = given.single("h"),
                              .W = given.single("W")};
        HeatingLeavingAir.Tdb = given.single("LeavingTdb");
        HeatingLoadValue = 0;
        std::string massFlow;
        const int error = ErrorOf([&] {
            const TaggedNumber flow = HeatingMassFlow();
            massFlow = Spelling(flow);
            CalculateHeatingLoad(flow);
        });
        EXPECT_EQ(error, given.integer("error"));
        EXPECT_EQ(massFlow, given.has("massFlow") ? SpellingIn(given, "massFlow") : "");
        EXPECT_EQ(Spelling(HeatingLoadValue), SpellingIn(given, "load"));
    }
    EXPECT_GE(counts[0], 600);
    EXPECT_GE(counts[1], 600);
}

// Enthalpies 25.53664 and 30.40768 Btu/lb, 4444.44 lb/hr.
TEST_F(EnglishHeating, MeetsTheWorkedFigures)
{
    heat(1000.0F, 13.5F, 70.0F, 90.0F);
    EXPECT_NEAR(HeatingEnteringAir.h, 25.53664, 0.00001);
    EXPECT_NEAR(EnthalpyOf(90.0F, 0.008F), 30.40768, 0.00001);
    EXPECT_NEAR(HeatingMassFlow().asDouble(), 4444.44, 0.005);
    EXPECT_EQ(FormatNumber(HeatingLoadValue, "#,###"), "21,649");
}

// A rise of 15.2166 kJ/kg, 2023.81 kg/hr.
TEST_F(MetricHeating, MeetsTheWorkedFigures)
{
    heat(1700.0F, 0.84F, 20.0F, 35.0F);
    EXPECT_NEAR(EnthalpyOf(35.0F, 0.008F) - HeatingEnteringAir.h, 15.2166, 0.00001);
    EXPECT_NEAR(HeatingMassFlow().asDouble(), 2023.81, 0.005);
    EXPECT_EQ(FormatNumber(HeatingLoadValue / 3600, "#,###.##"), "8.55");
}

TEST_F(EnglishHeating, IsADouble)
{
    heat(1000.0F, 13.5F, 70.0F, 90.0F);
    EXPECT_EQ(HeatingMassFlow().kind(), NumberKind::Double);
    EXPECT_EQ(HeatingLoadValue.kind(), NumberKind::Double);
}

TEST_F(MetricHeating, IsASingle)
{
    heat(1700.0F, 0.84F, 20.0F, 35.0F);
    EXPECT_EQ(HeatingMassFlow().kind(), NumberKind::Single);
    EXPECT_EQ(HeatingLoadValue.kind(), NumberKind::Single);
    EXPECT_EQ((HeatingLoadValue / 3600).kind(), NumberKind::Single);
}

TEST_F(EnglishHeating, IsZeroWithoutAirVolumeAndShowsAsNothing)
{
    heat(0.0F, 13.5F, 70.0F, 90.0F);
    EXPECT_EQ(HeatingLoadValue.asDouble(), 0.0);
    EXPECT_EQ(FormatNumber(HeatingLoadValue, "#,###"), "");
}

TEST_F(MetricHeating, IsZeroWithoutAirVolumeAndShowsAsAPoint)
{
    heat(0.0F, 0.84F, 20.0F, 35.0F);
    EXPECT_EQ(HeatingLoadValue.asDouble(), 0.0);
    EXPECT_EQ(FormatNumber(HeatingLoadValue / 3600, "#,###.##"), ".");
}

TEST_F(EnglishHeating, IsNegativeWhereTheAirLeavesColder)
{
    heat(1000.0F, 13.5F, 70.0F, 50.0F);
    EXPECT_EQ(FormatNumber(HeatingLoadValue, "#,###"), "-21,649");
}

TEST_F(EnglishHeating, DividesByZeroWithoutEnteringAir)
{
    EXPECT_EQ(ErrorOf([] { HeatingMassFlow(); }), DivisionByZero);
    UnitSystem = True16;
    EXPECT_EQ(ErrorOf([] { HeatingMassFlow(); }), DivisionByZero);
}

TEST_F(MetricHeating, OverflowsPastTheLargestSingleWhereEnglishDoesNot)
{
    heat(1.0F, 1.0F, 20.0F, 35.0F);
    HeatingEnteringAir.AirVolume = 3e38F;
    EXPECT_EQ(ErrorOf([] { CalculateHeatingLoad(HeatingMassFlow()); }), Overflow);
    UnitSystem = False16;
    EXPECT_EQ(ErrorOf([] { CalculateHeatingLoad(HeatingMassFlow()); }), 0);
}
