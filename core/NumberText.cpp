#include "core/NumberText.h"

#include "core/Decimal.h"
#include "core/TaggedNumber.h"

#include <algorithm>
#include <charconv>
#include <sstream>
#include <system_error>

namespace {

constexpr int SingleDigits = 7;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

char lowered(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string_view withoutBlanksAround(std::string_view text)
{
    constexpr std::string_view blanks = " \t";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Converts a number from the locale's spelling to the plain one, such as "-123.45e-6".
class NumberReader
{
public:
    explicit NumberReader(std::string_view text) : unread(text) {}

    /// @throws RunTimeError type mismatch
    std::string plainSpelling()
    {
        takeSign();
        const bool integer = takeIntegerPart();
        const bool fraction = takeFraction();
        if (!integer && !fraction)
            Raise(ErrorNumber::TypeMismatch);
        takeExponent();
        if (!unread.empty())
            Raise(ErrorNumber::TypeMismatch);
        return spelling;
    }

private:
    /// Skips the token if the rest of the text starts with it. An empty token never matches.
    bool take(std::string_view token)
    {
        if (token.empty() || !unread.starts_with(token))
            return false;
        unread.remove_prefix(token.size());
        return true;
    }

    void takeSign()
    {
        if (take("-"))
            spelling += '-';
        else
            take("+");
    }

    bool takeDigits()
    {
        const auto end = std::find_if_not(unread.begin(), unread.end(), isDigit);
        const auto count = static_cast<std::size_t>(end - unread.begin());
        spelling += unread.substr(0, count);
        unread.remove_prefix(count);
        return count > 0;
    }

    /// Accepts group separators anywhere after the first digit: users don't count off groups of three as they
    /// type.
    bool takeIntegerPart()
    {
        if (!takeDigits())
            return false;
        while (take(numberLocale.groupSeparator) || takeDigits()) {
        }
        return true;
    }

    bool takeFraction()
    {
        if (!take(numberLocale.decimalPoint))
            return false;
        spelling += '.';
        return takeDigits();
    }

    void takeExponent()
    {
        if (!take("e") && !take("E"))
            return;
        spelling += 'e';
        takeSign();
        if (!takeDigits())
            Raise(ErrorNumber::TypeMismatch);
    }

    std::string_view unread;
    std::string spelling;
};

bool equalsIgnoringCase(std::string_view text, std::string_view lowerCase)
{
    return std::equal(text.begin(), text.end(), lowerCase.begin(), lowerCase.end(),
                      [](char a, char b) { return lowered(a) == b; });
}

std::string plainSpelling(const Decimal& value)
{
    const std::string integer = value.integerDigits();
    const std::string fraction = value.fractionDigits();
    std::string text = value.negative ? "-" : "";
    text += integer.empty() ? "0" : integer;
    if (!fraction.empty())
        text += numberLocale.decimalPoint + fraction;
    return text;
}

} // namespace

double ParseDouble(std::string_view text)
{
    const std::string plain = NumberReader(withoutBlanksAround(text)).plainSpelling();
    double value = 0.0;
    const auto result = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        if (!(std::istringstream(plain) >> value)) // fails for a number too large, not for one too small
            Raise(ErrorNumber::Overflow);
        return 0.0;
    }
    return value;
}

Boolean16 ParseBoolean(std::string_view text)
{
    if (equalsIgnoringCase(text, "true"))
        return True16;
    if (equalsIgnoringCase(text, "false"))
        return False16;
    return ParseDouble(text) == 0.0 ? False16 : True16;
}

std::string PlainText(Single value)
{
    Decimal decimal = Decimal::shortestOf(value);
    if (decimal.digits.size() > SingleDigits) {
        decimal = Decimal::of(value);
        decimal.roundToDigits(SingleDigits);
    }
    return plainSpelling(decimal);
}

std::string PlainText(double value) { return plainSpelling(Decimal::of(value)); }

std::string PlainText(const TaggedNumber& value)
{
    switch (value.kind()) {
    case NumberKind::Text:
        return value.text();
    case NumberKind::Single:
        return PlainText(value.asSingle());
    default:
        return PlainText(value.asDouble());
    }
}
