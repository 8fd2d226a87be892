#pragma once

#include "core/Single.h"

#include <compare>
#include <string>

// GCC warns that the enumerator Single shadows the type, but it is only visible as NumberKind::Single.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"
enum class NumberKind
{
    Int16,
    Single,
    Double,
    Text
};
#pragma GCC diagnostic pop

/// A value that keeps the kind of its last assignment. The kinds of the operands determine that of a result:
/// two integers give an integer (a double if divided), a single with a single or an integer gives a single,
/// and anything with a double or text gives a double.
class TaggedNumber
{
public:
    TaggedNumber() = default; ///< the integer 0
    TaggedNumber(std::int16_t value) : number(value) {}
    TaggedNumber(int value); ///< @throws RunTimeError overflow outside 16 bits
    TaggedNumber(Single value) : heldKind(NumberKind::Single), number(static_cast<double>(value)) {}
    TaggedNumber(double value) : heldKind(NumberKind::Double), number(value) {}
    TaggedNumber(std::string text);
    TaggedNumber(const char* text) : TaggedNumber(std::string(text)) {}
    TaggedNumber(bool) = delete; ///< the calculator's booleans are 16-bit integers

    NumberKind kind() const { return heldKind; }
    const std::string& text() const { return heldText; } ///< the text as assigned; empty for a number

    /// The exact value. Text is parsed here.
    /// @throws RunTimeError as ParseDouble, if the value is text
    double asDouble() const { return heldKind == NumberKind::Text ? numberInText() : number; }

    /// The value rounded to single, as the equations use it.
    /// @throws RunTimeError as asDouble(), and overflow
    Single asSingle() const { return RoundToSingle(asDouble()); }

    /// The nearest 16-bit integer; halves round to even.
    /// @throws RunTimeError as asDouble(), and overflow
    std::int16_t asInt16() const;

    /// @throws RunTimeError overflow; division by zero for any zero divisor; as asDouble()
    friend TaggedNumber operator+(const TaggedNumber& left, const TaggedNumber& right);
    friend TaggedNumber operator-(const TaggedNumber& left, const TaggedNumber& right);
    friend TaggedNumber operator*(const TaggedNumber& left, const TaggedNumber& right);
    friend TaggedNumber operator/(const TaggedNumber& left, const TaggedNumber& right);

    /// Comparisons use the exact value, without rounding it to single.
    friend std::partial_ordering operator<=>(const TaggedNumber& left, double right)
    {
        return left.asDouble() <=> right;
    }
    friend bool operator==(const TaggedNumber& left, double right) { return left.asDouble() == right; }

private:
    double numberInText() const;

    NumberKind heldKind = NumberKind::Int16;
    double number = 0.0; // holds 16-bit integers and singles exactly
    std::string heldText;
};

/// Rounds value * scale to a 16-bit integer, halves to even, and divides it by scale. A scale of 10 rounds to
/// tenths.
/// @throws RunTimeError overflow if value * scale exceeds 16 bits; division by zero for a scale of 0
Single RoundToScale(const TaggedNumber& value, const std::int16_t& scale);
