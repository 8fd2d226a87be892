#pragma once

#include <string>

/// Returns the path of a folder that the program writes to. Creates nothing. The folder is below the
/// application's folder if both belong to the user and only the user may write there; otherwise it is below
/// the application's folder in the user's data folder.
std::string WorkFolder(const std::string& applicationFolder, const std::string& name);

/// Returns false if a file, not a folder, has that path.
bool FolderExists(const std::string& path);

/// Creates a folder that others can't write to, and its missing parents. Returns false on failure.
[[nodiscard]] bool MakeFolder(const std::string& path);
