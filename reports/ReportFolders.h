#pragma once

#include "platform/Desktop.h"

#include <string>

/// The folder that the report folders lie below.
inline std::string (*ReportsBase)() = ApplicationFolder;

/// The folder that saved reports are proposed for, made where it is missing.
/// @throws RunTimeError path/file access
std::string DataFolder();

/// The folder of the reports on their way to the printer, made where it is missing.
/// @throws RunTimeError path/file access
std::string TempFolder();
