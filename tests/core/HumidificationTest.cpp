#include "core/Humidification.h"
#include "tests/core/LoadCases.h"

#include <utility>

namespace {

constexpr Single Untouched = 7.25F; // the fields before each case

template <class Core>
class Humidification : public Core
{
protected:
    Humidification() { HumidOutsideAir = HumidDesiredAir = {}; }

    static void desire(Single tdb, Single percent, Single p)
    {
        StatePoint.Tdb = tdb;
        StatePoint.RH = TaggedNumber(percent) / 100;
        StatePoint.P = p;
    }

    static void moisten(Single fromW, Single toW, Single specificVolume)
    {
        HumidOutsideAir.W = fromW;
        HumidDesiredAir.W = toW;
        HumidDesiredAir.SpVol = specificVolume;
    }
};

using EnglishHumidification = Humidification<EnglishCore>;
using MetricHumidification = Humidification<MetricCore>;

using Fields = std::vector<std::pair<std::string, StateItem>>;
const Fields StateFields{
    {"Pws", &MoistAirState::Pws},       {"Pw", &MoistAirState::Pw},       {"W", &MoistAirState::W},
    {"Grains", &MoistAirState::Grains}, {"Ws", &MoistAirState::Ws},       {"Mu", &MoistAirState::Mu},
    {"td", &MoistAirState::td},         {"SpVol", &MoistAirState::SpVol}, {"Twb", &MoistAirState::Twb}};

const std::vector<std::pair<std::string, Single AirSnapshot::*>> KeptFields{
    {"W", &AirSnapshot::W},         {"Grains", &AirSnapshot::Grains},
    {"Ws", &AirSnapshot::Ws},       {"Mu", &AirSnapshot::Mu},
    {"td", &AirSnapshot::td},       {"Twb", &AirSnapshot::Twb},
    {"SpVol", &AirSnapshot::SpVol}, {"h", &AirSnapshot::h}};

/// The fields of the snapshot that the calculation never writes.
const std::vector<Single AirSnapshot::*> ForeignFields{
    &AirSnapshot::AirVolume, &AirSnapshot::RH,    &AirSnapshot::PwsDew, &AirSnapshot::PwsWet,
    &AirSnapshot::Pws,       &AirSnapshot::WsWet, &AirSnapshot::Pw,     &AirSnapshot::ReservedSingle,
    &AirSnapshot::Tdb,       &AirSnapshot::P};

void SetUpCase(const LoadCase& given)
{
    UnitSystem = static_cast<Boolean16>(given.integer("UnitSystem"));
    StatePoint = {};
    HumidDesiredAir = {};
    for (const auto& [name, field] : StateFields)
        StatePoint.*field = Untouched;
    StatePoint.h = Untouched;
    for (const auto& [name, field] : KeptFields)
        HumidDesiredAir.*field = Untouched;
    StatePoint.Tdb = given.single("Tdb");
    StatePoint.RH = TaggedNumber(given.single("percent")) / 100;
    StatePoint.P = given.single("P");
    HumidOutsideAir.W = given.single("outsideW");
}

NumberKind KindOf(const std::string& name)
{
    return name == "Grains" ? NumberKind::Double : NumberKind::Single;
}

void ExpectAir(const LoadCase& given)
{
    EXPECT_EQ(Spelling(StatePoint.RH), Spelling(NumberKind::Single, given.number("RH")));
    for (const auto& [name, field] : StateFields) {
        const std::string expected =
            given.has(name) ? Spelling(KindOf(name), given.number(name)) : Spelling(Untouched);
        EXPECT_EQ(Spelling(StatePoint.*field), expected) << name;
    }
    for (const auto& [name, field] : KeptFields) {
        const Single expected = given.has(name) ? RoundToSingle(given.number(name)) : Untouched;
        EXPECT_EQ(Spelling(HumidDesiredAir.*field), Spelling(expected)) << name << " kept";
    }
    EXPECT_TRUE(SameBits(StatePoint.h, HumidDesiredAir.h));
    for (const auto field : ForeignFields)
        EXPECT_EQ(HumidDesiredAir.*field, 0.0F);
}

void ExpectMoisture(const LoadCase& given, const MoistureRequired& moisture)
{
    const auto expected = [&](const char* name) { return Spelling(NumberKind::Single, given.number(name)); };
    EXPECT_EQ(Spelling(moisture.massPerHour), expected("massPerHour"));
    EXPECT_EQ(Spelling(moisture.massPerDay), expected("massPerDay"));
    EXPECT_EQ(Spelling(moisture.flowPerHour), expected("flowPerHour"));
    EXPECT_EQ(Spelling(moisture.flowPerDay), expected("flowPerDay"));
}

/// The texts of the four output fields.
std::vector<std::string> Shown(const MoistureRequired& moisture)
{
    const char* const mass = IsMetric() ? "#0.000" : "#0.00";
    return {FormatNumber(moisture.massPerHour, mass), FormatNumber(moisture.massPerDay, mass),
            FormatNumber(moisture.flowPerHour, "#0.00"), FormatNumber(moisture.flowPerDay, "#0.00")};
}

using Texts = std::vector<std::string>;

} // namespace

TEST_F(EnglishHumidification, MeetsEveryCaseToTheLastBit)
{
    int counts[2] = {};
    for (const LoadCase& given : LoadCasesIn("moisture.csv")) {
        SCOPED_TRACE(given.line());
        SetUpCase(given);
        ++counts[IsMetric() ? 1 : 0];
        MoistureRequired moisture;
        const int error = ErrorOf([&] {
            SolveDesiredAir();
            moisture = RequiredMoisture(given.single("quantity"));
        });
        EXPECT_EQ(error, given.integer("error"));
        ExpectAir(given);
        if (given.integer("error") == 0)
            ExpectMoisture(given, moisture);
    }
    EXPECT_GE(counts[0], 600);
    EXPECT_GE(counts[1], 600);
}

TEST_F(EnglishHumidification, MeetsTheWorkedFigures)
{
    moisten(0.0015F, 0.0082F, 13.4F);
    EXPECT_EQ(Shown(RequiredMoisture(500.0F)), (Texts{"15.00", "360.00", "1.80", "43.14"}));
}

// 1000 / 0.8 * 0.005 kg/hr; a liter of water has 1 kg.
TEST_F(MetricHumidification, TakesALitreForAKilogram)
{
    moisten(0.003F, 0.008F, 0.8F);
    EXPECT_EQ(Shown(RequiredMoisture(1000.0F)), (Texts{"6.250", "150.000", "6.25", "150.00"}));
}

TEST_F(EnglishHumidification, IsSixtyTimesTheRuleOfMetric)
{
    moisten(0.0F, 0.5F, 16.0F);
    EXPECT_EQ(RequiredMoisture(32.0F).massPerHour.asDouble(), 60.0);
    UnitSystem = True16;
    EXPECT_EQ(RequiredMoisture(32.0F).massPerHour.asDouble(), 1.0);
}

TEST_F(EnglishHumidification, IsNegativeBelowTheOutdoorMoisture)
{
    moisten(0.0082F, 0.0015F, 13.4F);
    EXPECT_EQ(Shown(RequiredMoisture(500.0F)), (Texts{"-15.00", "-360.00", "-1.80", "-43.14"}));
}

TEST_F(MetricHumidification, IsNegativeBelowTheOutdoorMoisture)
{
    moisten(0.008F, 0.003F, 0.8F);
    EXPECT_EQ(Shown(RequiredMoisture(1000.0F)), (Texts{"-6.250", "-150.000", "-6.25", "-150.00"}));
}

TEST_F(EnglishHumidification, IsZeroAtTheOutdoorMoistureAndWithoutAir)
{
    moisten(0.0082F, 0.0082F, 13.4F);
    EXPECT_EQ(Shown(RequiredMoisture(500.0F)), (Texts{"0.00", "0.00", "0.00", "0.00"}));
    moisten(0.0015F, 0.0082F, 13.4F);
    EXPECT_EQ(Shown(RequiredMoisture(0.0F)), (Texts{"0.00", "0.00", "0.00", "0.00"}));
}

TEST_F(MetricHumidification, IsZeroAtTheOutdoorMoistureAndWithoutAir)
{
    moisten(0.008F, 0.008F, 0.8F);
    EXPECT_EQ(Shown(RequiredMoisture(500.0F)), (Texts{"0.000", "0.000", "0.00", "0.00"}));
    moisten(0.003F, 0.008F, 0.8F);
    EXPECT_EQ(Shown(RequiredMoisture(0.0F)), (Texts{"0.000", "0.000", "0.00", "0.00"}));
}

TEST_F(EnglishHumidification, DividesByZeroWithoutASpecificVolume)
{
    moisten(0.0015F, 0.0082F, 0.0F);
    EXPECT_EQ(ErrorOf([] { RequiredMoisture(500.0F); }), DivisionByZero);
    EXPECT_EQ(ErrorOf([] { RequiredMoisture(0.0F); }), DivisionByZero);
}

TEST_F(EnglishHumidification, RefusesAirWithoutHumidity)
{
    desire(70.0F, 0.0F, 14.696F);
    EXPECT_EQ(ErrorOf(SolveDesiredAir), InvalidArgument);
    EXPECT_EQ(HumidDesiredAir.W, 0.0F);
    EXPECT_GT(HumidDesiredAir.SpVol, 13.0F); // the step before the dew point
    EXPECT_EQ(HumidDesiredAir.td, 0.0F);
}

TEST_F(EnglishHumidification, FaultsBeyondTheSaturationCurve)
{
    desire(400.0F, 50.0F, 14.696F);
    EXPECT_EQ(ErrorOf(SolveDesiredAir), DivisionByZero);
    EXPECT_EQ(StatePoint.Ws.asDouble(), 0.0);
    EXPECT_EQ(HumidDesiredAir.SpVol, 0.0F);
}

// There is no limit: the air is above saturation.
TEST_F(MetricHumidification, TakesMoreThan100Percent)
{
    desire(20.0F, 150.0F, 101325.0F);
    SolveDesiredAir();
    EXPECT_GT(HumidDesiredAir.W, HumidDesiredAir.Ws);
    EXPECT_GT(HumidDesiredAir.Mu, 1.0F);
}

// The wet bulb of saturated air is searched for like any other.
TEST_F(EnglishHumidification, TakesNoShortcutForSaturatedAir)
{
    desire(70.0F, 100.0F, 14.696F);
    SolveDesiredAir();
    EXPECT_EQ(StatePoint.Twb.kind(), NumberKind::Single);
    const Single found = SolveWetBulb(70.0F, HumidDesiredAir.W, 14.696F);
    EXPECT_TRUE(SameBits(HumidDesiredAir.Twb, found));
}

TEST_F(MetricHumidification, LeavesTheGrainsAlone)
{
    HumidDesiredAir.Grains = 12.5F;
    StatePoint.Grains = 13.5;
    desire(20.0F, 50.0F, 101325.0F);
    SolveDesiredAir();
    EXPECT_EQ(HumidDesiredAir.Grains, 12.5F);
    EXPECT_EQ(StatePoint.Grains.asDouble(), 13.5);
}
