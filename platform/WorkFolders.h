#pragma once

#include <string>

/// Where a folder that the program writes to lies: below the application's, or, where the user may not write
/// there, below the user's own data folder of the application. Nothing is made.
std::string WorkFolder(const std::string& applicationFolder, const std::string& name);

/// Whether a folder of that path exists. A file of that name is none.
bool FolderExists(const std::string& path);

/// Makes a folder, with those above it where they are missing too. False where that fails.
[[nodiscard]] bool MakeFolder(const std::string& path);
