#pragma once

#include <string>

/// Returns the path of a folder that the program writes to, and makes nothing. It lies below the
/// application's folder if both belong to the user and only the user may write there; otherwise below the
/// user's own data folder of the application.
std::string WorkFolder(const std::string& applicationFolder, const std::string& name);

/// Whether a folder of that path exists. A file of that name is none.
bool FolderExists(const std::string& path);

/// Makes a folder that others can't write to, and the missing ones above it. Returns false if that fails.
[[nodiscard]] bool MakeFolder(const std::string& path);
