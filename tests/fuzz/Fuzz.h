#pragma once

#include "core/NumberText.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

/// Ends the process, which the fuzzer reports with the input.
inline void Require(bool holds)
{
    if (!holds)
        std::abort();
}

/// The bytes of one run, taken from the front.
class FuzzInput
{
public:
    FuzzInput(const std::uint8_t* data, std::size_t size)
        : bytes(reinterpret_cast<const char*>(data), size) // the bytes of a text
    {}

    /// The next byte, or 0 at the end. Seeds use digits, whose lowest three bits count from 0 to 7.
    std::uint8_t byte()
    {
        if (bytes.empty())
            return 0;
        const auto first = static_cast<std::uint8_t>(bytes.front());
        bytes.remove_prefix(1);
        return first;
    }

    /// The text up to the separator, which is dropped, or to the end.
    std::string_view until(char separator)
    {
        const std::string_view text = bytes.substr(0, bytes.find(separator));
        bytes.remove_prefix(text.size() < bytes.size() ? text.size() + 1 : text.size());
        return text;
    }

    std::string_view rest() const { return bytes; }

private:
    std::string_view bytes;
};

/// Sets one of several ways to write numbers.
inline void SetFuzzLocale(std::uint8_t choice)
{
    static const std::array<NumberLocale, 4> locales{{
        {.decimalPoint = ".", .groupSeparator = ","},
        {.decimalPoint = ",", .groupSeparator = "."},
        {.decimalPoint = ",", .groupSeparator = "\u202F"},
        {.decimalPoint = ".", .groupSeparator = ""},
    }};
    numberLocale = locales[choice % locales.size()];
}
