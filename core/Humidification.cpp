#include "core/Humidification.h"

#include "core/Relations.h"
#include "core/StatePoint.h"
#include "core/WetBulbSearch.h"

void SolveDesiredAir()
{
    const Single absolute = ToAbsolute(StatePoint.Tdb);
    const Single pressure = StatePoint.P.asSingle();
    StatePoint.Pws = SaturationPressure(absolute);
    StatePoint.Pw = VaporPressureFromRH(StatePoint.RH.asSingle(), StatePoint.Pws.asSingle());
    StatePoint.W = HumidityRatioFromVaporPressure(StatePoint.Pw.asSingle(), pressure);
    HumidDesiredAir.W = StatePoint.W.asSingle();
    if (!IsMetric()) {
        StatePoint.Grains = StatePoint.W * 7000.0;
        HumidDesiredAir.Grains = StatePoint.Grains.asSingle();
    }
    StatePoint.Ws = HumidityRatioFromVaporPressure(StatePoint.Pws.asSingle(), pressure);
    HumidDesiredAir.Ws = StatePoint.Ws.asSingle();
    StatePoint.Mu = DegreeOfSaturation(StatePoint.W.asSingle(), StatePoint.Ws.asSingle());
    HumidDesiredAir.Mu = StatePoint.Mu.asSingle();
    StatePoint.SpVol = SpecificVolumeOf(absolute, StatePoint.W.asSingle(), pressure);
    HumidDesiredAir.SpVol = StatePoint.SpVol.asSingle();
    StatePoint.h = EnthalpyOf(StatePoint.Tdb, StatePoint.W.asSingle());
    HumidDesiredAir.h = StatePoint.h;
    const TaggedNumber pw = IsMetric() ? StatePoint.Pw / 1000 : StatePoint.Pw;
    StatePoint.td = DewPointFromVaporPressure(pw.asSingle());
    HumidDesiredAir.td = StatePoint.td.asSingle();
    StatePoint.Twb = SolveWetBulb(StatePoint.Tdb, StatePoint.W.asSingle(), pressure);
    HumidDesiredAir.Twb = StatePoint.Twb.asSingle();
}

MoistureRequired RequiredMoisture(const TaggedNumber& airQuantity)
{
    const TaggedNumber rise = TaggedNumber(HumidDesiredAir.W) - HumidOutsideAir.W;
    const TaggedNumber metricMass = airQuantity / HumidDesiredAir.SpVol * rise;
    const TaggedNumber perHour = IsMetric() ? metricMass : metricMass * 60;
    const TaggedNumber flow = IsMetric() ? perHour.asSingle() : (perHour / 8.345).asSingle();
    return {.massPerHour = perHour,
            .massPerDay = perHour * 24,
            .flowPerHour = flow,
            .flowPerDay = (flow * 24.0).asSingle()};
}
