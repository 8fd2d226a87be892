#include "core/Solvers.h"

#include "core/Relations.h"
#include "core/StatePoint.h"
#include "core/WetBulbSearch.h"

namespace {

// Steps that the solvers share. Each reads StatePoint and stores its result there at once.

Single saturationPressureAtDryBulb() { return SaturationPressure(ToAbsolute(StatePoint.Tdb)); }

void findGrains()
{
    if (!IsMetric())
        StatePoint.Grains = 7000.0 * StatePoint.W;
}

void findDegreeOfSaturation()
{
    StatePoint.Mu = DegreeOfSaturation(StatePoint.W.asSingle(), StatePoint.Ws.asSingle());
}

void findSaturatedHumidityRatio()
{
    StatePoint.Ws = HumidityRatioFromVaporPressure(StatePoint.Pws.asSingle(), StatePoint.P.asSingle());
}

void findRelativeHumidity()
{
    StatePoint.RH = RHFromDegreeOfSaturation(StatePoint.Mu.asSingle(), StatePoint.Pws.asSingle(),
                                             StatePoint.P.asSingle());
}

void findSpecificVolume(Single absolute)
{
    StatePoint.SpVol = SpecificVolumeOf(absolute, StatePoint.W.asSingle(), StatePoint.P.asSingle());
}

void findEnthalpy() { StatePoint.h = EnthalpyOf(StatePoint.Tdb, StatePoint.W.asSingle()); }

void findVaporPressure()
{
    StatePoint.Pw = VaporPressureFromHumidityRatio(StatePoint.P.asSingle(), StatePoint.W.asSingle());
}

/// In Metric, converts the pressure from Pa to kPa for the regression.
void findDewPoint()
{
    const Single pw = IsMetric() ? (StatePoint.Pw / 1000).asSingle() : StatePoint.Pw.asSingle();
    StatePoint.td = DewPointFromVaporPressure(pw);
}

/// Nearly saturated air needs no search: its wet bulb is 0.005 degrees below the dry bulb, stored in double.
void findWetBulb()
{
    if (StatePoint.RH >= 0.999)
        StatePoint.Twb = StatePoint.Tdb - 0.005;
    else
        StatePoint.Twb = SolveWetBulb(StatePoint.Tdb, StatePoint.W.asSingle(), StatePoint.P.asSingle());
}

/// Vapor pressure, saturation and relative humidity from the humidity ratio and TAbs.
/// @return true if the air is above saturation
bool findHumidityFromRatio()
{
    findVaporPressure();
    StatePoint.Pws = SaturationPressure(StatePoint.TAbs);
    findSaturatedHumidityRatio();
    findDegreeOfSaturation();
    findRelativeHumidity();
    return StatePoint.RH > 1.0;
}

} // namespace

void SolveFromGrains()
{
    GrainsTooHigh = False16;
    StatePoint.W = StatePoint.Grains / 7000.0;
    StatePoint.TAbs = FahrenheitToRankine(StatePoint.Tdb);
    if (findHumidityFromRatio()) {
        GrainsTooHigh = True16;
        ShowCoreMessage("Humidity Ratio Input is too High, Try Again!");
        return;
    }
    StatePoint.TAbs = FahrenheitToRankine(StatePoint.Tdb);
    findSpecificVolume(StatePoint.TAbs);
    findEnthalpy();
    StatePoint.td = DewPointFromVaporPressure(StatePoint.Pw.asSingle()); // intentional: not in kPa
    findWetBulb();
}

void SolveFromW()
{
    HumidityRatioTooHigh = False16;
    StatePoint.TAbs = ToAbsolute(StatePoint.Tdb);
    if (findHumidityFromRatio()) {
        HumidityRatioTooHigh = True16;
        ShowCoreMessage("Humidity Ratio Input is High, Try Again!");
        return;
    }
    findGrains();
    findSpecificVolume(StatePoint.TAbs);
    findEnthalpy();
    findDewPoint();
    findWetBulb();
}

void SolveFromWetBulb()
{
    StatePoint.PwsWet = SaturationPressure(ToAbsolute(StatePoint.Twb.asSingle()));
    StatePoint.Pws = saturationPressureAtDryBulb();
    StatePoint.WsWet = HumidityRatioFromVaporPressure(StatePoint.PwsWet.asSingle(), StatePoint.P.asSingle());
    StatePoint.W = HumidityRatioFromWetBulb(StatePoint.Twb.asSingle(), StatePoint.Tdb, StatePoint.WsWet);
    findGrains();
    findSaturatedHumidityRatio();
    findDegreeOfSaturation();
    findRelativeHumidity();
    findSpecificVolume(ToAbsolute(StatePoint.Tdb));
    findEnthalpy();
    findVaporPressure();
    findDewPoint();
}

void SolveFromDewPoint()
{
    StatePoint.PwsDew = SaturationPressure(ToAbsolute(StatePoint.td.asSingle()));
    StatePoint.Pw = StatePoint.PwsDew;
    StatePoint.W = HumidityRatioFromVaporPressure(StatePoint.PwsDew.asSingle(), StatePoint.P.asSingle());
    StatePoint.Pws = saturationPressureAtDryBulb();
    findSaturatedHumidityRatio();
    findDegreeOfSaturation();
    findGrains();
    findRelativeHumidity();
    findSpecificVolume(ToAbsolute(StatePoint.Tdb));
    findEnthalpy();
    findWetBulb();
}

void SolveFromRH()
{
    StatePoint.RH = StatePoint.RH / 100;
    if (StatePoint.RH > 0.9999)
        StatePoint.RH = 1.0;
    if (StatePoint.RH < 0.001)
        StatePoint.RH = 0.001;
    StatePoint.Pws = saturationPressureAtDryBulb();
    StatePoint.Pw = VaporPressureFromRH(StatePoint.RH.asSingle(), StatePoint.Pws.asSingle());
    StatePoint.W = HumidityRatioFromVaporPressure(StatePoint.Pw.asSingle(), StatePoint.P.asSingle());
    findSaturatedHumidityRatio();
    findDegreeOfSaturation();
    findGrains();
    findSpecificVolume(ToAbsolute(StatePoint.Tdb));
    findEnthalpy();
    findDewPoint();
    findWetBulb();
}
