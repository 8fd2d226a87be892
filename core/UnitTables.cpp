#include "core/UnitTables.h"

#include "core/StatePoint.h"

#include <cstdlib>

void FillUnitTables()
{
    TempUnit = {" deg F", " deg C"};
    SpVolUnit = {" ft3 per Lb.", " m3 per kg"};
    EnthalpyUnit = {" Btu/lb.", " kJ/kg"};
    EnergyUnit = {" Btu", " kW"};
    AirVolumeUnit = {" cfm", " m3/hr"};
    HumidityUnit = {" lb. water/lb. dry air", " g water/kg dry air"};
}

const std::string& UnitLabel(const UnitTable& table)
{
    return table.at(static_cast<std::size_t>(std::abs(UnitSystem)));
}
