#pragma once

#include "reports/ReportWriter.h"

namespace forms {
class Form;
} // namespace forms

/// Writes the entering air, the leaving air and the loads as they stand, however far the calculation has got.
/// @throws RunTimeError as WriteAirBlock
void WriteCoolingReport(ReportWriter& report);

/// The calculator's two commands (see PrintFrame.h, SaveFrame.h). Printing sets the printer's font, which
/// stays set.
void PrintCooling(const forms::Form& owner);
void SaveCooling(const forms::Form& owner);
