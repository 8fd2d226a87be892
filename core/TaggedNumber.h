#pragma once

#include "core/Single.h"

#include <compare>
#include <concepts>
#include <string>

// GCC takes the enumerator Single, which only NumberKind:: can name, for one that hides the type.
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

/// A value that remembers the kind it was last assigned. Arithmetic follows the kinds of its operands:
/// two integers give an integer (but a double on division), a single with a single or an integer rounds to
/// single, and anything with a double or a text is a double.
class TaggedNumber
{
public:
    TaggedNumber() = default; ///< the integer 0
    TaggedNumber(std::int16_t value) : value_(value) {}
    TaggedNumber(int value); ///< @throws RunTimeError overflow outside 16 bits
    TaggedNumber(Single value) : kind_(NumberKind::Single), value_(static_cast<double>(value)) {}
    TaggedNumber(double value) : kind_(NumberKind::Double), value_(value) {}
    TaggedNumber(std::string text);
    TaggedNumber(const char* text) : TaggedNumber(std::string(text)) {}
    TaggedNumber(bool) = delete; ///< booleans of the calculator are 16-bit integers

    template <std::same_as<bool> Boolean>
    TaggedNumber& operator=(Boolean value) = delete;
    TaggedNumber& operator=(int value) { return *this = TaggedNumber(value); }
    TaggedNumber& operator=(Single value) { return hold(NumberKind::Single, static_cast<double>(value)); }
    TaggedNumber& operator=(double value) { return hold(NumberKind::Double, value); }

    NumberKind kind() const { return kind_; }
    const std::string& text() const { return text_; } ///< the text as it was assigned; empty for a number

    /// The value as held. A text is read as a number here.
    /// @throws RunTimeError type mismatch for a text that is no number, an empty one included
    double asDouble() const { return kind_ == NumberKind::Text ? numberInText() : value_; }

    /// The value as an equation reads it, rounded to single.
    /// @throws RunTimeError as asDouble(), and overflow
    Single asSingle() const { return RoundToSingle(asDouble()); }

    /// The nearest 16-bit integer, halves to even.
    /// @throws RunTimeError as asDouble(), and overflow
    std::int16_t asInt16() const;

    /// @throws RunTimeError overflow; division by zero for any zero divisor; as asDouble()
    friend TaggedNumber operator+(const TaggedNumber& left, const TaggedNumber& right);
    friend TaggedNumber operator-(const TaggedNumber& left, const TaggedNumber& right);
    friend TaggedNumber operator*(const TaggedNumber& left, const TaggedNumber& right);
    friend TaggedNumber operator/(const TaggedNumber& left, const TaggedNumber& right);

    /// Comparisons look at the value as held, without rounding it to single.
    friend std::partial_ordering operator<=>(const TaggedNumber& left, double right)
    {
        return left.asDouble() <=> right;
    }
    friend bool operator==(const TaggedNumber& left, double right) { return left.asDouble() == right; }

private:
    TaggedNumber& hold(NumberKind kind, double value)
    {
        kind_ = kind;
        value_ = value;
        text_.clear();
        return *this;
    }

    double numberInText() const;

    NumberKind kind_ = NumberKind::Int16;
    double value_ = 0.0; // holds 16-bit integers and singles exactly
    std::string text_;
};
