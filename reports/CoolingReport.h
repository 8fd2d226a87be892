#pragma once

#include "reports/ReportWriter.h"

namespace forms {
class Form;
} // namespace forms

/// Writes the current entering air, leaving air and loads, even if the calculation is incomplete.
/// @throws RunTimeError as WriteAirBlock
void WriteCoolingReport(ReportWriter& report);

/// The calculator's print and save commands (see PrintFrame.h, SaveFrame.h). Printing sets the printer's font
/// and does not reset it.
void PrintCooling(const forms::Form& owner);
void SaveCooling(const forms::Form& owner);
