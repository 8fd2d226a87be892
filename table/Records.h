#pragma once

#include <cstdio>
#include <string_view>
#include <vector>

/// Reads the records of a CSV file (RFC 4180) one at a time. Quoted fields may contain commas, line breaks
/// and doubled quotes. A quote within an unquoted field is an ordinary character. A byte order mark at the
/// start of the file and empty lines are skipped. Memory doesn't depend on the number of records.
class Records
{
public:
    /// The longest record, in bytes.
    static constexpr std::size_t Longest = 1 << 20;

    /// @param longest  the longest record, in bytes; tests pass less to cross the buffer's end often
    explicit Records(std::FILE* file, std::size_t longest = Longest);

    /// Reads the next record.
    /// @return false at the end of the file
    /// @throws TableError if the file can't be read or the record is too long
    bool next();

    // The current record. The views are valid until the next call of next().
    std::string_view text() const { return currentText; }       ///< as in the file, without the line end
    std::string_view lineEnd() const { return currentLineEnd; } ///< "\n" or "\r\n"
    const std::vector<std::string_view>& fields() const { return currentFields; } ///< with their quotes
    long line() const { return currentLine; } ///< number of its first line, from 1

private:
    static constexpr int EndOfFile = -1;

    int peek();
    bool refill();
    void scan();
    void scanQuoted();
    void endField();
    void skipByteOrderMark();

    std::FILE* source;
    std::vector<char> buffer;
    std::size_t recordBegin = 0; ///< of the current record
    std::size_t position = 0;
    std::size_t bufferEnd = 0; ///< of the bytes in the buffer
    std::size_t fieldBegin = 0;
    std::vector<std::pair<std::size_t, std::size_t>> spans; ///< of the fields, from recordBegin
    long nextLine = 1;

    std::string_view currentText;
    std::string_view currentLineEnd;
    std::vector<std::string_view> currentFields;
    long currentLine = 0;
};
