#pragma once

#include "platform/Printer.h"
#include "reports/ReportWriter.h"

#include <optional>
#include <string>

namespace forms {
class Form;
} // namespace forms

/// A print command: asks how to print, writes a report to its temporary file, which replaces the last one and
/// stays, and prints that line by line. Cancel ends it before anything is written. After that every failure
/// ends it without a word; one that comes while ReportFile is open leaves it open, and a document that was
/// begun stays unfinished.
/// @param temporaryFile  its name in the folder of temporary files
/// @param font           set on the current printer, which keeps it; without one the printer's font stands
void PrintReport(const forms::Form& owner, const std::string& temporaryFile, const WriteReport& writeReport,
                 const std::optional<PrinterFont>& font = std::nullopt);
