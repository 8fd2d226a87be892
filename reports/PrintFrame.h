#pragma once

#include "platform/Printer.h"
#include "reports/ReportWriter.h"

#include <optional>
#include <string>

namespace forms {
class Form;
} // namespace forms

/// A print command. Shows the print dialog, writes the report to a temporary file and prints that file line
/// by line. The file replaces the last one of its name and is kept. Cancel ends the command before anything
/// is written. Any later failure ends it silently: ReportFile stays open if it was open, and a document that
/// was begun stays unfinished.
/// @param temporaryFile  its name in TempFolder()
/// @param font           set on the current printer, which keeps it; without it, the printer's font is
/// unchanged
void PrintReport(const forms::Form& owner, const std::string& temporaryFile, const WriteReport& writeReport,
                 const std::optional<PrinterFont>& font = std::nullopt);
