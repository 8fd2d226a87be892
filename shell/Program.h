#pragma once

#include <string>

/// The full path of the help file, beside the executable. Set at start.
inline std::string HelpFile;

/// Prepares the process (locale, messages, failure reports, help file) and shows the main menu. Needs the
/// toolkit's application object.
void StartProgram();

/// The whole run, from the entry to the end of the process.
/// @return the exit status
int RunProgram(const char* executable);
