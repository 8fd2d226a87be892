#pragma once

#include <QString>

/// Whether the program may end with this report after an action at that place (the names of a window and a
/// control).
inline bool MayEndAt(const QString& place, const QString& report)
{
    struct Place
    {
        const char* window;
        const char* control; ///< or null for any
    };
    // The fields that are read without a failure branch, and the steps that follow them.
    static constexpr Place places[] = {
        {"Settings", nullptr},    // the pressure is not a number
        {"cfmForm", nullptr},     // nor the air volume
        {"MixedAir", "txtcfm1"},  // read after each key
        {"MixedAir", "QMenuBar"}, // Review of a stream that was never saved
        {"CoolingLoad1", "btnCalcLoad"},
        {"CoolingLoad2", nullptr}, // the leaving air
        {"HeatingLoad1", "txtAirVolume"},
        {"HeatingLoad2", nullptr},
    };
    for (const Place& each : places) {
        const bool isThere = each.control == nullptr ? place.startsWith(QString(each.window) + " ")
                                                     : place == QString(each.window) + " " + each.control;
        if (isThere && report.startsWith("Run-time error"))
            return true;
    }
    return false;
}
