#include "core/TaggedNumber.h"

#include "core/CheckedArithmetic.h"
#include "core/NumberText.h"

#include <utility>

namespace {

constexpr double LeastInt16 = std::numeric_limits<std::int16_t>::min();
constexpr double GreatestInt16 = std::numeric_limits<std::int16_t>::max();

bool isWide(NumberKind kind) { return kind == NumberKind::Double || kind == NumberKind::Text; }

/// The kind of the result of arithmetic on two numbers.
NumberKind commonKind(const TaggedNumber& left, const TaggedNumber& right)
{
    if (isWide(left.kind()) || isWide(right.kind()))
        return NumberKind::Double;
    if (left.kind() == NumberKind::Single || right.kind() == NumberKind::Single)
        return NumberKind::Single;
    return NumberKind::Int16;
}

/// Rounds a result that was computed in double to its kind. Integers and singles have so few digits that
/// rounding to double and then to the kind is the same as rounding once.
TaggedNumber rounded(double value, NumberKind kind)
{
    switch (kind) {
    case NumberKind::Int16:
        return RoundToInt16(value);
    case NumberKind::Single:
        return RoundToSingle(value);
    default:
        return RequireFinite(value);
    }
}

} // namespace

TaggedNumber::TaggedNumber(int value) : number(value)
{
    if (value < LeastInt16 || value > GreatestInt16)
        Raise(ErrorNumber::Overflow);
}

TaggedNumber::TaggedNumber(std::string text) : heldKind(NumberKind::Text), heldText(std::move(text)) {}

double TaggedNumber::numberInText() const { return ParseDouble(heldText); }

std::int16_t TaggedNumber::asInt16() const { return RoundToInt16(asDouble()); }

TaggedNumber operator+(const TaggedNumber& left, const TaggedNumber& right)
{
    return rounded(left.asDouble() + right.asDouble(), commonKind(left, right));
}

TaggedNumber operator-(const TaggedNumber& left, const TaggedNumber& right)
{
    return rounded(left.asDouble() - right.asDouble(), commonKind(left, right));
}

TaggedNumber operator*(const TaggedNumber& left, const TaggedNumber& right)
{
    return rounded(left.asDouble() * right.asDouble(), commonKind(left, right));
}

TaggedNumber operator/(const TaggedNumber& left, const TaggedNumber& right)
{
    const NumberKind kind = commonKind(left, right);
    const double dividend = left.asDouble();
    return rounded(Quotient(dividend, right.asDouble()),
                   kind == NumberKind::Int16 ? NumberKind::Double : kind);
}

Single RoundToScale(const TaggedNumber& value, const std::int16_t& scale)
{
    const std::int16_t scaled = (value * scale).asInt16();
    return RoundToSingle(Quotient(scaled, scale));
}
