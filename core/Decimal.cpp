#include "core/Decimal.h"

#include "core/CheckedArithmetic.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace {

constexpr int DoubleDigits = 15;
constexpr std::size_t ScientificLength = 32; // sign, digits, point and exponent of any double at 15 digits

} // namespace

Decimal Decimal::of(double value)
{
    std::array<char, ScientificLength> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), RequireFinite(value),
                                   std::chars_format::scientific, DoubleDigits - 1);
    return fromScientific({text.data(), end.ptr});
}

Decimal Decimal::shortestOf(Single value)
{
    RequireFinite(value);
    std::array<char, ScientificLength> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::scientific);
    return fromScientific({text.data(), end.ptr});
}

/// Parses "-d.ddde-xx".
Decimal Decimal::fromScientific(std::string_view text)
{
    Decimal result;
    result.negative = text.front() == '-';
    const std::size_t exponentAt = text.find('e');
    for (const char c : text.substr(0, exponentAt)) {
        if (c >= '0' && c <= '9')
            result.digits += c;
    }

    std::string_view exponentText = text.substr(exponentAt + 1);
    if (exponentText.front() == '+')
        exponentText.remove_prefix(1);
    int exponent = 0;
    std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);
    result.point = exponent + 1;

    result.dropTrailingZeros();
    return result;
}

void Decimal::dropTrailingZeros()
{
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.empty())
        *this = {};
}

void Decimal::roundToDigits(int count)
{
    if (count >= static_cast<int>(digits.size()))
        return;
    if (count < 0) {
        *this = {};
        return;
    }
    const auto kept = static_cast<std::size_t>(count);
    const bool up = digits[kept] >= '5';
    digits.resize(kept);
    if (up) {
        digits.erase(digits.find_last_not_of('9') + 1); // carry past nines
        if (digits.empty()) {
            digits.assign(1, '1');
            ++point;
        } else {
            ++digits.back();
        }
    }
    dropTrailingZeros();
}

std::string Decimal::integerDigits() const
{
    if (point <= 0)
        return {};
    const auto places = static_cast<std::size_t>(point);
    std::string result = digits.substr(0, places);
    result.resize(places, '0');
    return result;
}

std::string Decimal::fractionDigits() const
{
    if (point < 0)
        return std::string(static_cast<std::size_t>(-point), '0') + digits;
    return digits.substr(std::min(digits.size(), static_cast<std::size_t>(point)));
}
