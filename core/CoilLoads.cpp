#include "core/CoilLoads.h"

#include "core/Relations.h"

#include <span>

namespace {

/// One band of a condensate table: its value is base + slope (t - origin).
struct Band
{
    Single low;
    Single high;
    double base;
    double slope;
    double origin;
};

/// An English band: the wet bulb minus an offset close to the freezing point.
constexpr Band less(Single low, Single high, double offset) { return {low, high, 0.0, 1.0, offset}; }

constexpr Band english[] = {
    less(32, 33, 31.98),
    less(33, 34, 31.97),
    // Never used, see CondensateEnthalpy.
    less(34, 35, 31.96),
    less(35, 37, 31.95),
    less(37, 39, 31.94),
    less(39, 40, 31.93),
    less(40, 42, 31.92),
    less(42, 45, 31.91),
    less(45, 49, 31.90),
    less(49, 75, 31.89),
    less(75, 82, 31.90),
    less(82, 89, 31.91),
    less(89, 95, 31.92),
    less(95, 101, 31.93),
    less(101, 107, 31.94),
    less(107, 113, 31.95),
    less(113, 120, 31.96),
};
constexpr Band englishOtherwise = less(0, 0, 31.90);

constexpr Band metric[] = {
    {0, 1, 0.06, 4.22, 0},
    {1, 5, 4.28, 4.21, 1},
    // Never used.
    {5, 9, 21.12, 4.20, 5},
    {9, 16, 37.92, 4.19, 9},
    {16, 49, 67.26, 4.18, 16},
};
constexpr Band metricOtherwise = {0, 0, 205.24, 4.18, 49};

const Band& firstBandWithout(Single wetBulb, std::span<const Band> bands, const Band& otherwise)
{
    for (const Band& band : bands) {
        const bool holdsIt = wetBulb > band.low && wetBulb <= band.high;
        if (!holdsIt)
            return band;
    }
    return otherwise;
}

/// Btu/h or kJ/hr. Each operation rounds to single.
TaggedNumber wetTotal(const TaggedNumber& MassFlow)
{
    const AirSnapshot& in = CoolingEnteringAir;
    const AirSnapshot& out = CoolingLeavingAir;
    const TaggedNumber removed = TaggedNumber(in.h) - out.h;
    const TaggedNumber condensate = (TaggedNumber(in.W) - out.W) * CondensateEnthalpy(out.Twb);
    const TaggedNumber total = (removed - condensate) * MassFlow;
    return IsMetric() ? total : total * 60;
}

/// In double throughout. 0.488 = 2 * 0.244 Btu/(lb F); 2.0426 = 2 * 1.0213 kJ/(kg K).
TaggedNumber sensible()
{
    const AirSnapshot& in = CoolingEnteringAir;
    const AirSnapshot& out = CoolingLeavingAir;
    const TaggedNumber volumes = TaggedNumber(static_cast<double>(out.SpVol)) + in.SpVol;
    const TaggedNumber fall = TaggedNumber(static_cast<double>(in.Tdb)) - out.Tdb;
    if (IsMetric())
        return TaggedNumber(2.0426) / volumes * in.AirVolume * fall / 3600;
    return TaggedNumber(0.488) / volumes * 60.0 * in.AirVolume * fall;
}

} // namespace

Single CondensateEnthalpy(Single wetBulb)
{
    const Band& band = IsMetric() ? firstBandWithout(wetBulb, metric, metricOtherwise)
                                  : firstBandWithout(wetBulb, english, englishOtherwise);
    return RoundToSingle(band.base + band.slope * (wetBulb - band.origin));
}

void CalculateCoolingLoads()
{
    const bool DryCoil = CoolingLeavingAir.Tdb >= CoolingEnteringAir.td && LeavingWetBulbGiven == False16;
    const TaggedNumber MassFlow = TaggedNumber(CoolingEnteringAir.AirVolume) / CoolingEnteringAir.SpVol;
    if (!DryCoil)
        TotalLoad = wetTotal(MassFlow).asSingle();
    SensibleLoad = sensible();
    if (DryCoil)
        TotalLoad = SensibleLoad.asSingle();
    else if (IsMetric())
        TotalLoad = RoundToSingle(TotalLoad / 3600.0);
    LatentLoad = TaggedNumber(static_cast<double>(TotalLoad)) - SensibleLoad; // rounding noise if dry
}

TaggedNumber HeatingMassFlow()
{
    const TaggedNumber volume = HeatingEnteringAir.AirVolume;
    if (IsMetric())
        return volume / HeatingEnteringAir.SpVol;
    return volume * 60.0 / HeatingEnteringAir.SpVol;
}

void CalculateHeatingLoad(const TaggedNumber& massFlow)
{
    const Single leavingEnthalpy = EnthalpyOf(HeatingLeavingAir.Tdb, HeatingEnteringAir.W);
    const TaggedNumber rise = TaggedNumber(leavingEnthalpy) - HeatingEnteringAir.h;
    HeatingLoadValue = rise * massFlow;
}
