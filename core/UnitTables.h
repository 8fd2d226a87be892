#pragma once

#include <array>
#include <string>

/// Unit labels of the reports: slot 0 English, slot 1 Metric, slot 2 never filled. The texts carry their
/// leading blank. The screens spell their own labels differently.
using UnitTable = std::array<std::string, 3>;

inline UnitTable TempUnit;
inline UnitTable SpVolUnit;
inline UnitTable EnthalpyUnit;
inline UnitTable EnergyUnit;
inline UnitTable AirVolumeUnit;
inline UnitTable HumidityUnit;

/// Fills slots 0 and 1 of the six tables. They are empty before.
void FillUnitTables();

/// The label of the unit mode in force.
/// @throws std::out_of_range where the unit mode is neither 0 nor -1 nor within the table
const std::string& UnitLabel(const UnitTable& table);
