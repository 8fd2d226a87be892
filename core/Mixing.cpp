#include "core/Mixing.h"

TaggedNumber DryAirFlow(Single volume, Single specificVolume)
{
    return TaggedNumber(volume) / TaggedNumber(specificVolume);
}

TaggedNumber MeanByDryAir(Single x1, const TaggedNumber& m1, Single x2, const TaggedNumber& m2)
{
    return (x1 * m1 + x2 * m2) / (m2 + m1);
}
