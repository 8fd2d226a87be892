#pragma once

#include <string>

namespace forms {

/// Shows a message box with only an OK button and no icon, and waits until it is closed. The default title is
/// the application's.
void MsgBox(const std::string& text, const std::string& title = {});

/// Asks a question and returns true for Yes. No is the default, and Esc and the close box answer it.
bool AskYesNo(const std::string& question);

} // namespace forms
