#pragma once

#include <QFile>

enum class Links
{
    Follow,
    Refuse, ///< a path that ends in a link can't be opened
};

/// Opens a regular file by its path: to read it, or to write it, which creates it or empties it. Pipes,
/// devices and folders are refused, and never waited for. Returns false if the file can't be opened; it is
/// unchanged then.
[[nodiscard]] bool OpenRegularFile(QFile& file, QIODevice::OpenMode mode, Links links);
