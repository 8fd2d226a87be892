#pragma once

#include <string>

namespace forms {

/// Shows a message box with only an OK button and no icon, and waits until it is closed. The default title is
/// the application's.
void MsgBox(const std::string& text, const std::string& title = {});

} // namespace forms
