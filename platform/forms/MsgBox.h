#pragma once

#include <string>

namespace forms {

/// Shows a message box with an OK button alone and no icon, and waits until it is closed. Without a title
/// it carries the application's.
void MsgBox(const std::string& text, const std::string& title = {});

} // namespace forms
