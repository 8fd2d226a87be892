#include "table/Records.h"

#include "table/TableError.h"

#include <cerrno>
#include <cstring>
#include <string>

Records::Records(std::FILE* file) : file_(file), buffer_(Longest + 2) { skipByteOrderMark(); }

/// The next byte, or EndOfFile.
int Records::peek()
{
    if (at_ == end_ && !refill())
        return EndOfFile;
    return static_cast<unsigned char>(buffer_[at_]);
}

/// Moves the current record to the start of the buffer and reads on behind it.
bool Records::refill()
{
    if (end_ - begin_ >= buffer_.size())
        throw TableError("line " + std::to_string(line_) +
                         ": a row of more than 1 MiB (is a quote not closed?)");
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    at_ -= begin_;
    end_ -= begin_;
    begin_ = 0;
    const std::size_t count = std::fread(buffer_.data() + end_, 1, buffer_.size() - end_, file_);
    if (count == 0 && std::ferror(file_) != 0)
        throw TableError(std::string("can't read: ") + std::strerror(errno));
    end_ += count;
    return count > 0;
}

void Records::skipByteOrderMark()
{
    refill();
    if (std::string_view(buffer_.data(), end_).starts_with("\xEF\xBB\xBF"))
        begin_ = at_ = 3;
}

bool Records::next()
{
    begin_ = at_;
    while (peek() == '\n' || peek() == '\r') {
        nextLine_ += peek() == '\n' ? 1 : 0;
        begin_ = ++at_;
    }
    if (peek() == EndOfFile)
        return false;
    line_ = nextLine_;
    spans_.clear();
    scan();

    const char* const start = buffer_.data() + begin_;
    fields_.clear();
    for (const auto& [first, last] : spans_)
        fields_.emplace_back(start + first, last - first);
    text_ = {start, spans_.back().second};
    return true;
}

/// Scans one record up to and including its line end.
void Records::scan()
{
    fieldBegin_ = 0;
    while (true) {
        if (at_ - begin_ == fieldBegin_ && peek() == '"')
            scanQuoted();
        const int byte = peek();
        if (byte == EndOfFile || byte == '\n')
            break;
        if (byte == ',') {
            endField();
            fieldBegin_ = at_ - begin_ + 1;
        }
        ++at_;
    }
    endField();
    auto& last = spans_.back().second;
    const bool hasReturn = last > fieldBegin_ && buffer_[begin_ + last - 1] == '\r';
    last -= hasReturn ? 1 : 0;
    lineEnd_ = hasReturn ? "\r\n" : "\n";
    if (at_ < end_) {
        ++at_;
        ++nextLine_;
    }
}

/// Scans a quoted field up to its closing quote. A doubled quote closes the field and opens it again.
void Records::scanQuoted()
{
    do {
        ++at_; // the opening quote
        while (peek() != '"') {
            if (peek() == EndOfFile)
                return;
            nextLine_ += peek() == '\n' ? 1 : 0;
            ++at_;
        }
        ++at_; // the closing quote
    } while (peek() == '"');
}

void Records::endField() { spans_.emplace_back(fieldBegin_, at_ - begin_); }
