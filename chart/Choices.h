#pragma once

#include "chart/View.h"
#include "core/Single.h"
#include "platform/forms/Dispatcher.h"

#include <map>

namespace chart {

/// A switch of the chart, as it is stored and shown.
struct SwitchRow
{
    bool Switches::*isOn;
    const char* key;     ///< in the settings store
    const char* name;    ///< of its check box
    const char* caption; ///< of its check box
};

inline constexpr SwitchRow switchRows[] = {
    {&Switches::relativeHumidity, "RelativeHumidity", "chkRelativeHumidity", "&Relative humidity"},
    {&Switches::wetBulb, "WetBulb", "chkWetBulb", "Wet &bulb"},
    {&Switches::enthalpy, "Enthalpy", "chkEnthalpy", "&Enthalpy"},
    {&Switches::specificVolume, "SpecificVolume", "chkSpecificVolume", "&Specific volume"},
    {&Switches::comfort, "ComfortZones", "chkComfort", "&Comfort zones"},
    {&Switches::heatRatio, "SensibleHeatRatio", "chkHeatRatio", "Sensible heat ra&tio"},
    {&Switches::mollier, "Mollier", "chkMollier", "&Mollier's form"},
};

/// The units and the pressure that a place on the chart belongs to.
struct Conditions
{
    Boolean16 units = False16;
    Single pressure = 0;

    static Conditions inForce();
    friend bool operator==(const Conditions&, const Conditions&) = default;
};

/// What all charts of the program share: the switches, which are kept in the group "Chart" of the settings
/// store, and the pins, which last until the units or the pressure change. The first use reads the store.
class Choices
{
public:
    static Choices& inForce();

    const Switches& switches() const { return switched; }
    void setSwitch(const SwitchRow& which, bool isOn);

    const std::vector<Place>& pins();
    void setPins(std::vector<Place> places);

    /// Runs the handler whenever a chart would look different: after a change here, or by tellOfChange.
    /// @param listener  its key; it must leave before it is destroyed
    void listen(const void* listener, forms::Handler handler) { listeners[listener] = std::move(handler); }
    void leave(const void* listener) { listeners.erase(listener); }
    void tellOfChange() const;

private:
    Choices();

    Switches switched;
    std::vector<Place> pinned;
    Conditions pinnedAt;
    std::map<const void*, forms::Handler> listeners;
};

} // namespace chart
