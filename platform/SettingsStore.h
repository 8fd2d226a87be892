#pragma once

#include <string>

/// The user's store of strings by application, section and key. Key names are the same key in upper and
/// lower case. On systems without a registry the store of an application is the file "<application>.ini" in
/// the user's configuration folder, with a group for each section and one key a line.
///
/// Anything but a text file of at most 1 MB in its place is no store: it is neither read nor changed until
/// the program ends, even if it becomes readable.

/// The path of what is in the store's place and is no store; otherwise empty.
std::string UnreadableStore(const std::string& application);

/// The text stored under a key, or the default where there is none.
std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                       const std::string& defaultText);

/// Stores a text at once; other keys stay as they are. A no-op if the store can't be written.
void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                 const std::string& text);
