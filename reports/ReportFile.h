#pragma once

#include "platform/Desktop.h"
#include "platform/RegularFile.h"

#include <memory>
#include <string>

/// File number 1: the text file to which every report is written, and from which it is read back for
/// printing, line by line. Uses the encoding and line ends of the user's system. Only one file can be open at
/// a time, and only regular files can be opened.
class NumberedFile
{
public:
    /// Creates the file or truncates an existing one.
    /// @throws RunTimeError file already open, path not found, path/file access (also for an empty name)
    void openForOutput(const std::string& path, Links links = Links::Follow);
    /// @throws RunTimeError as openForOutput, and file not found
    void openForInput(const std::string& path, Links links = Links::Follow);

    /// Writes and flushes the line, so that a full disk fails at the line that does not fit.
    /// @throws RunTimeError path/file access; the file stays open
    void writeLine(const std::string& line);
    bool atEnd() const { return file->atEnd(); }
    /// @throws RunTimeError path/file access; the file stays open
    std::string readLine();

    void close() { file.reset(); }
    bool isOpen() const { return file != nullptr; }

private:
    void open(const std::string& path, QIODevice::OpenMode mode, Links links);

    std::unique_ptr<QFile> file;
};

/// Intentional: a failure during a report leaves the file open, and no report can be saved or printed until
/// the program ends.
inline NumberedFile ReportFile;

/// The parent of the report folders.
inline std::string (*ReportsBase)() = ApplicationFolder;

/// The folder that the save dialog proposes, and that of the temporary files for printing. Created if
/// missing.
/// @throws RunTimeError path/file access
std::string DataFolder();
std::string TempFolder();
