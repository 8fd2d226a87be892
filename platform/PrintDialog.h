#pragma once

#include <optional>
#include <string>
#include <vector>

namespace forms {
class Form;
} // namespace forms

/// Asks for the printer, the number of copies and the paper. All pages are printed: the dialog offers neither
/// a selection nor a page range. It opens with the settings of the current printer and stores the user's
/// choice there.
/// @return false on Cancel, which changes nothing
bool ShowPrintDialog(const forms::Form& owner);

/// Returns the printer to switch to for the chosen name, which is in upper case. If several names differ only
/// in case, the last one wins.
std::optional<std::string> PrinterToGoOverTo(const std::vector<std::string>& printers,
                                             const std::string& upperCaseName);
