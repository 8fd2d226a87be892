#pragma once

#include "reports/ReportWriter.h"

#include <string>

namespace forms {
class Form;
} // namespace forms

/// A save command. Asks for a file and writes the report to it. Cancel and any failure end it silently; a
/// failure during the report leaves ReportFile open.
void SaveReport(const forms::Form& owner, const std::string& title, const WriteReport& writeReport);
