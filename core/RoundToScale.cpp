#include "core/RoundToScale.h"

#include "core/CheckedArithmetic.h"

Single RoundToScale(const TaggedNumber& value, const std::int16_t& scale)
{
    const std::int16_t scaled = (value * scale).asInt16();
    return RoundToSingle(Quotient(scaled, scale));
}
