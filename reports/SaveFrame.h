#pragma once

#include "reports/ReportWriter.h"

#include <string>

namespace forms {
class Form;
} // namespace forms

/// A save command: asks for a file and writes a report straight into it. Cancel and every failure end it
/// without a word; a failure amid the report leaves ReportFile open.
void SaveReport(const forms::Form& owner, const std::string& title, const WriteReport& writeReport);
