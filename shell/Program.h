#pragma once

#include <string>

/// The full path of the help file, beside the executable. Set at start.
inline std::string HelpFile;

/// Prepares the process (locale, messages, failure reports, help file) and shows the main menu. Requires a
/// QApplication.
void StartProgram();

/// Runs the program until it ends.
/// @return the exit status
int RunProgram(const char* executable);
