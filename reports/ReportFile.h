#pragma once

#include "platform/RegularFile.h"

#include <memory>
#include <string>

/// File number 1: the text file that every report is written to and read back from, line by line, in the
/// encoding and with the line end of the user's system. It is one file at a time. Only regular files can be
/// opened.
class NumberedFile
{
public:
    /// Creates the file, or empties an existing one.
    /// @throws RunTimeError file already open, path not found, path/file access (for an empty name, too)
    void openForOutput(const std::string& path, Links links = Links::Follow);

    /// @throws RunTimeError as openForOutput, and file not found
    void openForInput(const std::string& path, Links links = Links::Follow);

    /// Hands the line to the system at once, so that a full disk shows with the line that finds no space.
    /// @throws RunTimeError path/file access; the file stays open
    void writeLine(const std::string& line);

    bool atEnd() const { return file->atEnd(); }

    /// @throws RunTimeError path/file access; the file stays open
    std::string readLine();

    void close() { file.reset(); }
    bool isOpen() const { return file != nullptr; }

private:
    std::unique_ptr<QFile> file;
};

/// After a failure amid a report it stays open, and no other report is saved or printed until the program
/// ends.
inline NumberedFile ReportFile;
