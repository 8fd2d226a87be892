#pragma once

#include <string>

namespace forms {
class Form;
} // namespace forms

constexpr int SW_SHOWNORMAL = 1;

/// Opens a target by the program that the desktop has for it: a "mailto:" link or a web address.
/// @param verb        "open"; any other is refused
/// @param parameters  for a program as the target; a link takes none
/// @param directory   where a program would start; a link has no use for it
/// @return            above 32 where the desktop took the target, else a number of 32 or less
int ShellExecuteA(const forms::Form& owner, const std::string& verb, const std::string& target,
                  const std::string& parameters, const std::string& directory, int showCommand);

/// Starts a program with a normal window; false where it doesn't start.
bool StartProgramFile(const std::string& path);
