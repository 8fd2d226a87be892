#pragma once

#include "core/TaggedNumber.h"

#include <cstdio>
#include <string>
#include <string_view>

/// Buffers the output. Numbers are written with the fewest digits that read back as the same number.
class Output
{
public:
    explicit Output(std::FILE* file) : target(file) {}

    void add(std::string_view text) { buffer += text; }
    void addNumber(const TaggedNumber& number);

    /// Adds a field, quoted if it must be.
    void addQuoted(std::string_view text);

    /// Ends a row.
    /// @throws TableError if the output can't be written
    void endRow(std::string_view lineEnd = "\n");

    /// @throws TableError as endRow()
    void flush();

private:
    static constexpr std::size_t Enough = 1 << 16;

    std::FILE* target;
    std::string buffer;
};
