#include "core/NumberPicture.h"

#include "core/Decimal.h"
#include "core/NumberText.h"

#include <optional>

namespace {

/// A parsed picture.
struct Picture
{
    std::size_t leastIntegerDigits = 0;
    std::size_t leastPlaces = 0;
    std::size_t mostPlaces = 0;
    bool point = false;
    bool groups = false;
    bool percent = false;
};

bool isDigitPlace(char c) { return c == '#' || c == '0'; }

/// Parses the places before the point. From the first "0" on, every place shows a digit.
void readIntegerPlaces(std::string_view part, Picture& picture)
{
    for (std::size_t i = 0; i < part.size(); ++i) {
        if (isDigitPlace(part[i])) {
            if (part[i] == '0' || picture.leastIntegerDigits > 0)
                ++picture.leastIntegerDigits;
            continue;
        }
        const bool between =
            i > 0 && i + 1 < part.size() && isDigitPlace(part[i - 1]) && isDigitPlace(part[i + 1]);
        if (part[i] != ',' || !between)
            Raise(ErrorNumber::InvalidArgument);
        picture.groups = true;
    }
}

/// Parses the places after the point. Up to the last "0", every place shows a digit.
void readFractionPlaces(std::string_view part, Picture& picture)
{
    for (const char c : part) {
        if (!isDigitPlace(c))
            Raise(ErrorNumber::InvalidArgument);
        ++picture.mostPlaces;
        if (c == '0')
            picture.leastPlaces = picture.mostPlaces;
    }
}

Picture readPicture(std::string_view text)
{
    Picture picture;
    if (text.ends_with('%')) {
        picture.percent = true;
        text.remove_suffix(1);
    }
    const std::size_t pointAt = text.find('.');
    readIntegerPlaces(text.substr(0, pointAt), picture);
    if (pointAt != std::string_view::npos) {
        picture.point = true;
        readFractionPlaces(text.substr(pointAt + 1), picture);
    }
    return picture;
}

std::string withGroups(const std::string& digits)
{
    constexpr std::size_t groupLength = 3;
    std::string text;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % groupLength == 0)
            text += numberLocale.groupSeparator;
        text += digits[i];
    }
    return text;
}

std::string written(Decimal value, const Picture& picture)
{
    if (picture.percent && !value.isZero())
        value.point += 2;
    value.roundToPlaces(static_cast<int>(picture.mostPlaces));

    std::string integer = value.integerDigits();
    if (integer.size() < picture.leastIntegerDigits)
        integer.insert(0, picture.leastIntegerDigits - integer.size(), '0');
    std::string fraction = value.fractionDigits();
    if (fraction.size() < picture.leastPlaces)
        fraction.resize(picture.leastPlaces, '0');

    std::string text = value.negative ? "-" : "";
    text += picture.groups ? withGroups(integer) : integer;
    if (picture.point)
        text += numberLocale.decimalPoint + fraction;
    if (picture.percent)
        text += '%';
    return text;
}

/// The number in a value; nullopt if it is text that is not a number.
std::optional<double> numberIn(const TaggedNumber& value)
{
    try {
        return value.asDouble();
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

} // namespace

std::string FormatNumber(const TaggedNumber& value, std::string_view picture)
{
    const Picture places = readPicture(picture);
    const std::optional<double> number = numberIn(value);
    return number ? written(Decimal::of(*number), places) : value.text();
}
