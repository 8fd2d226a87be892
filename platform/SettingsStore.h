#pragma once

#include <string>

/// Strings of the user, stored by application, section and key. Key names ignore case. On systems without a
/// registry the store of an application is the file "<application>.ini" in the user's configuration folder,
/// with a group per section and a line per key.
///
/// If that path holds anything but a text file of at most 1 MB, the store is unreadable: it is neither read
/// nor changed until the program ends, even if it becomes readable.

/// Returns the path of an unreadable store, or an empty text if the store is readable.
std::string UnreadableStore(const std::string& application);

/// Returns the text stored under a key, or the default.
std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                       const std::string& defaultText);

/// Stores a text immediately and leaves other keys unchanged. A no-op if the store can't be written.
void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                 const std::string& text);
