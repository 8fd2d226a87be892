#include "core/UnitTables.h"

#include "core/StatePoint.h"

#include <cstdlib>

namespace {

void fill(UnitTable& table, const char* english, const char* metric)
{
    table[0] = english;
    table[1] = metric;
}

} // namespace

void FillUnitTables()
{
    fill(TempUnit, " deg F", " deg C");
    fill(SpVolUnit, " ft3 per Lb.", " m3 per kg");
    fill(EnthalpyUnit, " Btu/lb.", " kJ/kg");
    fill(EnergyUnit, " Btu", " kW");
    fill(AirVolumeUnit, " cfm", " m3/hr");
    fill(HumidityUnit, " lb. water/lb. dry air", " g water/kg dry air");
}

const std::string& UnitLabel(const UnitTable& table)
{
    return table.at(static_cast<std::size_t>(std::abs(UnitSystem)));
}
