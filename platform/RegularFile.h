#pragma once

#include <QFile>

enum class Links
{
    Follow,
    Refuse, ///< fails if the last part of the path is a link
};

/// Opens a regular file for reading or for writing. Writing creates the file or truncates it. Refuses pipes,
/// devices and folders without blocking. On failure returns false and leaves the file unchanged.
[[nodiscard]] bool OpenRegularFile(QFile& file, QIODevice::OpenMode mode, Links links);
