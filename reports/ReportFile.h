#pragma once

#include "platform/TextFile.h"

#include <string>

/// File number 1, which every report is written to and read back from. It is one file at a time: opening it
/// fails while it is open.
class NumberedFile
{
public:
    /// Creates the file, or empties what stands there.
    /// @throws RunTimeError file already open, path not found, path/file access (an empty name, too)
    void openForOutput(const std::string& path, Links links = Links::Follow);

    /// @throws RunTimeError as openForOutput, and file not found
    void openForInput(const std::string& path, Links links = Links::Follow);

    /// @throws RunTimeError path/file access, on a full disk for one; the file stays open
    void writeLine(const std::string& line);

    bool atEnd() const { return file.atEnd(); }

    /// @throws RunTimeError path/file access; the file stays open
    std::string readLine();

    void close() { file.close(); }
    bool isOpen() const { return file.isOpen(); }

private:
    TextFile file;
};

/// After a failure amid a report it stays open, and no other report is saved or printed until the program
/// ends.
inline NumberedFile ReportFile;
