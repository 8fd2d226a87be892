#include "core/StatePoint.h"

#include "core/NumberText.h"

void ClearStatePoint()
{
    StatePoint.Mu = 0;
    StatePoint.Grains = 0;
    StatePoint.RH = 0;
    StatePoint.SpVol = 0;
    StatePoint.h = 0;
    StatePoint.W = 0;
    StatePoint.TAbs = 0;
    StatePoint.td = 0;
    StatePoint.Twb = 0;
    StatePoint.Tdb = 0;
    AirVolume = 0;
    HeatingLoadValue = 0;
    SpareSingle = 0;
}

Single ParseSingle(const std::string& text) { return text.empty() ? 0.0F : RoundToSingle(ParseDouble(text)); }
