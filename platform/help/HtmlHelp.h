#pragma once

#include <string>

namespace forms {
class Form;
} // namespace forms

constexpr unsigned HH_HELP_CONTEXT = 15; ///< opens the help at a numbered topic
constexpr unsigned HH_DISPLAY_TOPIC =
    0; ///< opens a page, named in the file's name as in "file.chm::/page.html"

/// Opens a help file at a topic in the help window, which stays usable while a modal form is open. A
/// name without a folder is looked up in the working directory. If the file lacks the topic, its first page
/// opens. If it can't be opened, a message box gives the reason.
/// @param command  one of the two above; any other is a no-op
void HtmlHelpA(forms::Form& owner, const std::string& file, unsigned command, int topic);
