#include "core/InputLimits.h"

#include "core/StatePoint.h"

const char* ClipWetBulb(double gap)
{
    if (!(StatePoint.Twb >= StatePoint.Tdb))
        return nullptr;
    StatePoint.Twb = StatePoint.Tdb - gap;
    return "Twb clipped at Tdb";
}

const char* ClipDewPoint(double gap)
{
    if (!(StatePoint.td >= StatePoint.Tdb))
        return nullptr;
    StatePoint.td = StatePoint.Tdb - gap;
    return "Dew Pt. clipped at Tdb";
}

const char* ClipRelativeHumidity()
{
    if (StatePoint.RH > 100.0) {
        StatePoint.RH = 100;
        return "RH clipped at 100%";
    }
    if (StatePoint.RH <= 0.0) {
        StatePoint.RH = 0.1;
        return "RH clipped at 0.1%";
    }
    return nullptr;
}

const char* ClipHumidityRatio()
{
    if (!(StatePoint.W <= 0.00001))
        return nullptr;
    StatePoint.W = 0.00001;
    return "W clipped at 0.00001";
}

const char* ClipGrains()
{
    if (!(StatePoint.Grains <= 0.1))
        return nullptr;
    StatePoint.Grains = 0.1;
    return "grains clipped at 0.1";
}
