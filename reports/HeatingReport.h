#pragma once

#include "reports/ReportWriter.h"

class Form;

/// Write the entering air, the leaving air and the load as they stand. On paper each of the three sections
/// has the date far to the right above it; a saved report has it once, at the left.
/// @throws RunTimeError as WriteAirBlock
void WritePrintedHeatingReport(ReportWriter& report);
void WriteSavedHeatingReport(ReportWriter& report);

/// The calculator's two commands (see PrintFrame.h, SaveFrame.h).
void PrintHeating(const Form& owner);
void SaveHeating(const Form& owner);
