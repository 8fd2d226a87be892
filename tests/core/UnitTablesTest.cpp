#include "tests/core/CoreTest.h"

#include <stdexcept>

using UnitTables = EnglishCore;

TEST_F(UnitTables, AreEmptyUntilTheyAreFilled)
{
    TempUnit = SpVolUnit = EnthalpyUnit = EnergyUnit = AirVolumeUnit = HumidityUnit = {};
    FillUnitTables();
    EXPECT_EQ(TempUnit, (UnitTable{" deg F", " deg C", ""}));
    EXPECT_EQ(SpVolUnit, (UnitTable{" ft3 per Lb.", " m3 per kg", ""}));
    EXPECT_EQ(EnthalpyUnit, (UnitTable{" Btu/lb.", " kJ/kg", ""}));
    EXPECT_EQ(EnergyUnit, (UnitTable{" Btu", " kW", ""}));
    EXPECT_EQ(AirVolumeUnit, (UnitTable{" cfm", " m3/hr", ""}));
    EXPECT_EQ(HumidityUnit, (UnitTable{" lb. water/lb. dry air", " g water/kg dry air", ""}));
}

TEST_F(UnitTables, GiveTheLabelOfTheUnitMode)
{
    FillUnitTables();
    EXPECT_EQ(UnitLabel(TempUnit), " deg F");
    UnitSystem = True16;
    EXPECT_EQ(UnitLabel(TempUnit), " deg C");
}

TEST_F(UnitTables, FailBeyondTheirBounds)
{
    UnitSystem = 3;
    EXPECT_THROW(UnitLabel(TempUnit), std::out_of_range);
    UnitSystem = -3;
    EXPECT_THROW(UnitLabel(TempUnit), std::out_of_range);
}
