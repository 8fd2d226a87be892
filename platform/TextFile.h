#pragma once

#include "platform/RegularFile.h"

#include <memory>
#include <string>

/// Why a text file could not be opened, read or written.
enum class FileFault
{
    None,
    AlreadyOpen,
    FileNotFound,
    PathNotFound,
    Access,
};

/// A text file that is written or read line by line, in the encoding and with the line end of the user's
/// system. Only regular files can be opened.
class TextFile
{
public:
    TextFile();
    ~TextFile();

    /// Creates the file, or empties what stands there.
    [[nodiscard]] FileFault openForOutput(const std::string& path, Links links = Links::Follow);
    [[nodiscard]] FileFault openForInput(const std::string& path, Links links = Links::Follow);
    bool isOpen() const;

    /// Hands a line to the system at once, so that a full disk is seen with the line that finds no room.
    [[nodiscard]] FileFault writeLine(const std::string& line);

    /// Whether no line is left to read.
    bool atEnd() const;
    [[nodiscard]] FileFault readLine(std::string& line);

    void close();

private:
    std::unique_ptr<QFile> file;
};
