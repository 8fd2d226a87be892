#pragma once

#include "platform/Printer.h"
#include "reports/ReportWriter.h"

#include <optional>
#include <string>

namespace forms {
class Form;
} // namespace forms

/// Writes a report. PrintReport and SaveReport call it.
using WriteReport = std::function<void(ReportWriter& report)>;

/// A print command. Shows the print dialog, writes the report to a temporary file and prints that file line
/// by line. The file replaces the last one of its name and is kept. Cancel ends the command before anything
/// is written. Any later failure ends it silently: ReportFile stays open if it was open, and a document that
/// was begun stays unfinished.
/// @param title          the document's title
/// @param temporaryFile  its name in TempFolder()
/// @param font           set on the current printer, which keeps it; without it, the printer's font is
/// unchanged
void PrintReport(const forms::Form& owner, const std::string& title, const std::string& temporaryFile,
                 const WriteReport& writeReport, const std::optional<PrinterFont>& font = std::nullopt);

/// A save command. Asks for a file and writes the report to it. Cancel and any failure end it silently; a
/// failure during the report leaves ReportFile open.
void SaveReport(const forms::Form& owner, const std::string& title, const WriteReport& writeReport);
