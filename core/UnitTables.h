#pragma once

#include <array>
#include <string>

/// Unit labels of the reports: slot 0 is English, slot 1 Metric, slot 2 always empty. Each label starts with
/// a blank. The screens have their own spellings.
using UnitTable = std::array<std::string, 3>;

inline UnitTable TempUnit;
inline UnitTable SpVolUnit;
inline UnitTable EnthalpyUnit;
inline UnitTable EnergyUnit;
inline UnitTable AirVolumeUnit;
inline UnitTable HumidityUnit;

/// Fills slots 0 and 1 of the six tables, which start empty.
void FillUnitTables();

/// The label for the current unit mode.
/// @throws std::out_of_range if the magnitude of UnitSystem is above 2
const std::string& UnitLabel(const UnitTable& table);
