#include "core/UnitTables.h"

#include "core/StatePoint.h"

#include <cstdlib>

namespace {

void Fill(UnitTable& table, const char* english, const char* metric)
{
    table[0] = english;
    table[1] = metric;
}

} // namespace

void FillUnitTables()
{
    Fill(TempUnit, " deg F", " deg C");
    Fill(SpVolUnit, " ft3 per Lb.", " m3 per kg");
    Fill(EnthalpyUnit, " Btu/lb.", " kJ/kg");
    Fill(EnergyUnit, " Btu", " kW");
    Fill(AirVolumeUnit, " cfm", " m3/hr");
    Fill(HumidityUnit, " lb. water/lb. dry air", " g water/kg dry air");
}

const std::string& UnitLabel(const UnitTable& table)
{
    return table.at(static_cast<std::size_t>(std::abs(UnitSystem)));
}
