#pragma once

#include "reports/ReportWriter.h"

namespace forms {
class Form;
} // namespace forms

/// Write the entering air, the leaving air and the load as they stand. On paper each of the three sections
/// has the date far to the right above it; a saved report has it once, at the left.
/// @throws RunTimeError as WriteAirBlock
void WritePrintedHeatingReport(ReportWriter& report);
void WriteSavedHeatingReport(ReportWriter& report);

/// The calculator's two commands (see PrintFrame.h, SaveFrame.h).
void PrintHeating(const forms::Form& owner);
void SaveHeating(const forms::Form& owner);
