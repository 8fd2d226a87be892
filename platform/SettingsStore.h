#pragma once

#include <string>

/// The user's store of strings by application, section and key. Key names are the same key in upper and
/// lower case. On systems without a registry the store of an application is the file "<application>.ini" in
/// the user's configuration folder, with a group for each section and one key a line.

/// The text stored under a key, or the default where there is none.
std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                       const std::string& defaultText);

/// Stores a text at once; other keys stay as they are. Where the store can't be written nothing happens.
void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                 const std::string& text);
