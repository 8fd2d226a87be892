#include "core/Decimal.h"

#include "core/CheckedArithmetic.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

constexpr int DoubleDigits = 15;
constexpr std::size_t ScientificLength = 32; // sign, digits, point and exponent of any double at 15 digits

void dropTrailingZeros(Decimal& value)
{
    value.digits.erase(value.digits.find_last_not_of('0') + 1);
    if (value.digits.empty())
        value = {};
}

/// The digits of a number. Without a precision, the shortest that read back as the same number.
template <class Number, class... Precision>
Decimal decimalOf(Number value, Precision... precision)
{
    RequireFinite(value);
    std::array<char, ScientificLength> buffer{}; // then "-d.ddde-xx"
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::scientific, precision...);
    const std::string text(buffer.data(), end.ptr);
    const std::size_t exponentAt = text.find('e');
    Decimal result;
    result.negative = text.front() == '-';
    result.point = std::stoi(text.substr(exponentAt + 1)) + 1;
    for (const char c : text.substr(0, exponentAt)) {
        if (c >= '0' && c <= '9')
            result.digits += c;
    }
    dropTrailingZeros(result);
    return result;
}

} // namespace

Decimal Decimal::of(double value) { return decimalOf(value, DoubleDigits - 1); }
Decimal Decimal::shortestOf(Single value) { return decimalOf(value); }

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
    dropTrailingZeros(*this);
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
