#include "core/HeatingLoads.h"

#include "core/AirSnapshot.h"
#include "core/Relations.h"
#include "core/StatePoint.h"

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
