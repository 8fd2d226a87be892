#pragma once

#include "reports/ReportWriter.h"

namespace forms {
class Form;
} // namespace forms

/// Write the current entering air, leaving air and load. The printed report has the date above each of its
/// three sections, far to the right. The saved report has it once, at the left.
/// @throws RunTimeError as WriteAirBlock
void WritePrintedHeatingReport(ReportWriter& report);
void WriteSavedHeatingReport(ReportWriter& report);

/// The calculator's print and save commands (see PrintFrame.h, SaveFrame.h).
void PrintHeating(const forms::Form& owner);
void SaveHeating(const forms::Form& owner);
