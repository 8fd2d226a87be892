#include "core/CoilLoads.h"
#include "tests/core/LoadCases.h"

namespace {

constexpr Single Untouched = 7.25F; // the loads before each case

/// The loads at process start.
template <class Core>
class Loads : public Core
{
protected:
    Loads()
    {
        CoolingEnteringAir = CoolingLeavingAir = {};
        LeavingAirAccepted = LeavingWetBulbGiven = False16;
        SensibleLoad = LatentLoad = 0;
        TotalLoad = 0;
    }

    /// 1000 cfm, or 1000 m3/hr, over a coil.
    static void coolBy(Single temperatures, Single enthalpies, Single ratios)
    {
        CoolingEnteringAir = {.AirVolume = 1000.0F,
                              .SpVol = IsMetric() ? 0.85F : 13.5F,
                              .h = enthalpies,
                              .W = ratios,
                              .td = 10.0F,
                              .Tdb = 15.0F + temperatures};
        CoolingLeavingAir = {.SpVol = IsMetric() ? 0.83F : 13.1F, .Tdb = 15.0F};
    }
};

using EnglishLoads = Loads<EnglishCore>;
using MetricLoads = Loads<MetricCore>;

void SetUpCase(const LoadCase& given)
{
    UnitSystem = static_cast<Boolean16>(given.integer("UnitSystem"));
    LeavingWetBulbGiven = static_cast<Boolean16>(given.integer("LeavingWetBulbGiven"));
    CoolingEnteringAir = {.AirVolume = given.single("V1"),
                          .SpVol = given.single("v1"),
                          .h = given.single("h1"),
                          .W = given.single("W1"),
                          .td = given.single("td1"),
                          .Tdb = given.single("Tdb1")};
    CoolingLeavingAir = {.SpVol = given.single("v2"),
                         .h = given.single("h2"),
                         .W = given.single("W2"),
                         .Twb = given.single("Twb2"),
                         .Tdb = given.single("Tdb2")};
    SensibleLoad = LatentLoad = static_cast<double>(Untouched);
    TotalLoad = Untouched;
}

} // namespace

TEST_F(EnglishLoads, MeetEveryCaseToTheLastBit)
{
    const std::vector<LoadCase> cases = LoadCasesIn("cooling.csv");
    int counts[2] = {};
    for (const LoadCase& given : cases) {
        SCOPED_TRACE(given.line());
        SetUpCase(given);
        ++counts[IsMetric() ? 1 : 0];
        EXPECT_EQ(ErrorOf(CalculateCoolingLoads), given.integer("error"));
        EXPECT_EQ(Spelling(SensibleLoad), Spelling(NumberKind::Double, given.number("Sensible")));
        EXPECT_EQ(Spelling(LatentLoad), Spelling(NumberKind::Double, given.number("Latent")));
        EXPECT_EQ(Spelling(TotalLoad), Spelling(NumberKind::Single, given.number("Total")));
        if (given.has("CondensateEnthalpy")) {
            const Single expected = given.single("CondensateEnthalpy");
            EXPECT_TRUE(SameBits(CondensateEnthalpy(given.single("Twb2")), expected));
        }
    }
    EXPECT_GE(counts[0], 600);
    EXPECT_GE(counts[1], 600);
}

// Intentional: uses the first row of the table that does NOT contain the wet bulb.
TEST_F(EnglishLoads, TakeTheCondensateFromTheFirstBandWithoutTheWetBulb)
{
    EXPECT_EQ(CondensateEnthalpy(32.5F), RoundToSingle(32.5 - 31.97));
    EXPECT_EQ(CondensateEnthalpy(33.5F), RoundToSingle(33.5 - 31.98));
    EXPECT_EQ(CondensateEnthalpy(32.0F), RoundToSingle(32.0 - 31.98));
    EXPECT_EQ(CondensateEnthalpy(33.0F), RoundToSingle(33.0 - 31.97));
    EXPECT_EQ(CondensateEnthalpy(60.0F), RoundToSingle(60.0 - 31.98));
    EXPECT_EQ(CondensateEnthalpy(200.0F), RoundToSingle(200.0 - 31.98));
    EXPECT_EQ(CondensateEnthalpy(-5.0F), RoundToSingle(-5.0 - 31.98));
}

TEST_F(MetricLoads, TakeTheCondensateFromTheFirstBandWithoutTheWetBulb)
{
    EXPECT_EQ(CondensateEnthalpy(0.5F), 2.175F);
    EXPECT_EQ(CondensateEnthalpy(0.0F), 0.06F);
    EXPECT_EQ(CondensateEnthalpy(1.0F), 4.28F);
    EXPECT_EQ(CondensateEnthalpy(3.0F), RoundToSingle(0.06 + 4.22 * 3.0));
    EXPECT_EQ(CondensateEnthalpy(60.0F), RoundToSingle(0.06 + 4.22 * 60.0));
    EXPECT_EQ(CondensateEnthalpy(-5.0F), RoundToSingle(0.06 + 4.22 * -5.0));
}

// 0.488 / 26.6 * 60 * 1000 * 20 Btu/h
TEST_F(EnglishLoads, OfADryCoilLeaveRoundingNoiseForTheLatentOne)
{
    coolBy(20.0F, 30.0F, 0.01F);
    CalculateCoolingLoads();
    EXPECT_NEAR(SensibleLoad.asDouble(), 22015.04, 0.01);
    EXPECT_TRUE(SameBits(TotalLoad, SensibleLoad.asSingle()));
    EXPECT_EQ(LatentLoad.kind(), NumberKind::Double);
    EXPECT_NE(LatentLoad.asDouble(), 0.0);
    EXPECT_NEAR(LatentLoad.asDouble(), 0.0, 0.001);
    EXPECT_EQ(FormatNumber(LatentLoad, "#,###.#"), ".");
}

// 2.0426 / 1.68 * 1000 * 20 / 3600 kW
TEST_F(MetricLoads, OfADryCoilLeaveRoundingNoiseForTheLatentOne)
{
    coolBy(20.0F, 30.0F, 0.01F);
    CalculateCoolingLoads();
    EXPECT_NEAR(SensibleLoad.asDouble(), 6.75463, 0.00001);
    EXPECT_TRUE(SameBits(TotalLoad, SensibleLoad.asSingle()));
    EXPECT_NE(LatentLoad.asDouble(), 0.0);
    EXPECT_NEAR(LatentLoad.asDouble(), 0.0, 1e-6);
}

// The flag decides: with a wet bulb the coil is wet, even if the dry bulb is above the entering dew point.
TEST_F(EnglishLoads, AreWetWithAWetBulbWhateverTheDryBulb)
{
    coolBy(20.0F, 30.0F, 0.01F);
    CoolingLeavingAir.Twb = 50.0F;
    LeavingWetBulbGiven = True16;
    CalculateCoolingLoads();
    EXPECT_NEAR(TotalLoad, 60.0 * 1000.0 / 13.5 * (30.0 - 0.01 * 18.02), 0.05);
}

TEST_F(EnglishLoads, AreWetWithADryBulbBelowTheEnteringDewPoint)
{
    coolBy(20.0F, 30.0F, 0.01F);
    CoolingEnteringAir.td = 15.1F;
    CalculateCoolingLoads();
    EXPECT_NEAR(TotalLoad, 60.0 * 1000.0 / 13.5 * (30.0 - 0.01 * -31.98), 0.05);
}

TEST_F(EnglishLoads, AreDryWithADryBulbAtTheEnteringDewPoint)
{
    coolBy(20.0F, 30.0F, 0.01F);
    CoolingEnteringAir.td = 15.0F;
    CalculateCoolingLoads();
    EXPECT_TRUE(SameBits(TotalLoad, SensibleLoad.asSingle()));
}

// A negative latent load is not clipped.
TEST_F(MetricLoads, LetTheLatentOneBeNegative)
{
    coolBy(20.0F, 10.0F, 0.0F);
    LeavingWetBulbGiven = True16;
    CalculateCoolingLoads();
    EXPECT_NEAR(TotalLoad, 1000.0 / 0.85 * 10.0 / 3600.0, 1e-5);
    EXPECT_LT(LatentLoad.asDouble(), -3.0);
}

TEST_F(EnglishLoads, AreZeroWithoutAirVolume)
{
    for (const Boolean16 wet : {False16, True16}) {
        coolBy(20.0F, 30.0F, 0.01F);
        CoolingEnteringAir.AirVolume = 0.0F;
        LeavingWetBulbGiven = wet;
        CalculateCoolingLoads();
        EXPECT_EQ(TotalLoad, 0.0F);
        EXPECT_EQ(SensibleLoad.asDouble(), 0.0);
        EXPECT_EQ(LatentLoad.asDouble(), 0.0);
    }
}

TEST_F(EnglishLoads, DivideByZeroWithoutASpecificVolumeAndStayAsTheyWere)
{
    SensibleLoad = LatentLoad = 1.5;
    TotalLoad = 2.5F;
    for (const Single volume : {0.0F, 1000.0F}) {
        CoolingEnteringAir.AirVolume = volume;
        EXPECT_EQ(ErrorOf(CalculateCoolingLoads), DivisionByZero);
    }
    EXPECT_EQ(SensibleLoad.asDouble(), 1.5);
    EXPECT_EQ(LatentLoad.asDouble(), 1.5);
    EXPECT_EQ(TotalLoad, 2.5F);
}
