#pragma once

#include <string>

namespace forms {
class Form;
} // namespace forms

/// The command that opens the help at a numbered topic.
constexpr unsigned HH_HELP_CONTEXT = 15;

/// Opens a help file at a numbered topic, in the help window of the program, which works while a modal
/// form waits, too. A name without a folder is looked for in the working directory. A topic that the file
/// doesn't have opens its first page. What can't be opened is told in a message box.
/// @param command  HH_HELP_CONTEXT; any other does nothing
void HtmlHelpA(forms::Form& owner, const std::string& file, unsigned command, int topic);
