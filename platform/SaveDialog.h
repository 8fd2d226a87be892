#pragma once

#include <string>
#include <string_view>

namespace forms {
class Form;
} // namespace forms

/// Asks for a file to save to, starting in a folder without a name. Nothing is asked about a file that
/// exists already, and no extension is added.
/// @param filter  pairs of a text and a pattern, each ended by a NUL; the pattern *.* means every file
/// @return        the path without blanks around it; empty on Cancel and on any failure
std::string ShowSaveDialog(const forms::Form& owner, std::string_view filter, const std::string& title,
                           const std::string& folder);

/// The answer to a save dialog.
struct SaveChoice
{
    std::string path;       ///< empty on Cancel
    std::size_t filter = 0; ///< the index of the pair that was chosen
};

/// The same, with a proposed name. Tells which filter was chosen.
SaveChoice AskWhereToSave(const forms::Form& owner, std::string_view filter, const std::string& title,
                          const std::string& proposal);
