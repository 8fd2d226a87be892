#pragma once

#include "platform/Desktop.h"

#include <string>

/// The parent of the report folders.
inline std::string (*ReportsBase)() = ApplicationFolder;

/// The folder that the save dialog proposes. Created if missing.
/// @throws RunTimeError path/file access
std::string DataFolder();

/// The folder of the temporary files for printing. Created if missing.
/// @throws RunTimeError path/file access
std::string TempFolder();
