// Any number, or a text instead, by any picture. The first byte selects the locale; then the picture, a line
// feed, and the number or text.

#include "core/NumberPicture.h"
#include "core/NumberText.h"
#include "tests/fuzz/Fuzz.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

namespace {

std::optional<double> parsed(std::string_view text)
{
    try {
        return ParseDouble(text);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

/// The number that a formatted text shows, as the C library reads it.
double shownBy(std::string text)
{
    std::erase_if(text, [](char c) { return c != '-' && c != '.' && c != ',' && (c < '0' || c > '9'); });
    if (numberLocale.groupSeparator.size() == 1)
        std::erase(text, numberLocale.groupSeparator[0]);
    std::replace(text.begin(), text.end(), ',', '.');
    return std::strtod(text.c_str(), nullptr);
}

/// The text shows the value to half of its last place, and to 15 digits.
void checkShown(const std::string& text, std::string_view picture, double value)
{
    const std::size_t pointAt = std::min(picture.find('.'), picture.size());
    const auto places = std::count_if(picture.begin() + static_cast<std::ptrdiff_t>(pointAt), picture.end(),
                                      [](char c) { return c == '#' || c == '0'; });
    const double scaled = picture.ends_with('%') ? value * 100.0 : value;
    const double tolerance =
        0.5001 * std::pow(10.0, -static_cast<double>(places)) + std::fabs(scaled) * 1e-14;
    Require(!(std::fabs(shownBy(text) - scaled) > tolerance));
    Require(text.ends_with('%') == picture.ends_with('%'));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    SetFuzzLocale(input.byte());
    const std::string_view picture = input.until('\n');
    const std::string text(input.rest());
    try {
        const std::string shown = FormatNumber(TaggedNumber(text), picture);
        if (const auto value = parsed(text))
            checkShown(shown, picture, *value);
        else
            Require(shown == text);
    } catch (const RunTimeError& error) {
        Require(error.error() == ErrorNumber::InvalidArgument); // an invalid picture
    }
    return 0;
}
