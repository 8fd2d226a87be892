// Any text as a number, in several locales. The first byte selects the locale.

#include "core/NumberText.h"
#include "core/Single.h"
#include "tests/fuzz/Fuzz.h"

#include <cerrno>
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

void replaceAll(std::string& text, const std::string& old, const std::string& replacement)
{
    if (old.empty())
        return;
    for (std::size_t at = text.find(old); at != std::string::npos;
         at = text.find(old, at + replacement.size()))
        text.replace(at, old.size(), replacement);
}

/// The C library reads the same number if the text is spelled as it expects.
void compareWithTheLibrary(std::string text, double value)
{
    replaceAll(text, numberLocale.groupSeparator, "");
    replaceAll(text, numberLocale.decimalPoint, ".");
    text.erase(text.find_last_not_of(" \t") + 1);
    char* end = nullptr;
    errno = 0;
    const double expected = std::strtod(text.c_str(), &end);
    Require(end == text.c_str() + text.size());
    const bool isTooSmall = errno == ERANGE && std::fabs(expected) < 1.0;
    Require(expected == value || (isTooSmall && value == 0.0));
}

/// The plain text of a number is read back to its 15 or 7 digits.
void checkPlainText(double value)
{
    const std::string text = PlainText(value);
    const double again = ParseDouble(text);
    Require(std::fabs(again - value) <= 5.1e-15 * std::fabs(value) || std::fabs(value) < 1e-300);
    Require(PlainText(again) == text);
    if (std::fabs(value) > 3e38)
        return;
    const Single single = RoundToSingle(value);
    const double singleAgain = ParseDouble(PlainText(single));
    Require(RoundToSingle(singleAgain) == single ||
            std::fabs(singleAgain - single) <= 5.1e-7 * std::fabs(static_cast<double>(single)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    SetFuzzLocale(input.byte());
    const std::string text(input.rest());
    if (const auto value = parsed(text)) {
        compareWithTheLibrary(text, *value);
        checkPlainText(*value);
    }
    try {
        ParseBoolean(text);
    } catch (const RunTimeError&) {
    }
    return 0;
}
