#pragma once

#include <optional>
#include <string>
#include <vector>

namespace forms {
class Form;
} // namespace forms

/// Asks how to print: on which printer, how many copies, on what paper. All pages are printed, so neither a
/// selection nor a page range is offered. The dialog opens on the settings of the current printer and brings
/// the user's choice to it.
/// @return false on Cancel, which changes nothing
bool ShowPrintDialog(const forms::Form& owner);

/// The printer to go over to for a chosen name, in upper case: of those that have this name when upper and
/// lower case are one, the last.
std::optional<std::string> PrinterToGoOverTo(const std::vector<std::string>& printers,
                                             const std::string& upperCaseName);
