#include "chart/Choices.h"

#include "core/LastRuns.h"
#include "core/StatePoint.h"
#include "platform/SettingsStore.h"

#include <utility>

namespace chart {
namespace {

constexpr auto application = "Dunmoor";
constexpr auto section = "Chart";

const char* textOf(bool isOn) { return isOn ? "True" : "False"; }

/// Anything but the two texts is the default.
bool stored(const SwitchRow& row, bool isOnByDefault)
{
    const std::string text = GetSetting(application, section, row.key, textOf(isOnByDefault));
    return text == textOf(!isOnByDefault) ? !isOnByDefault : isOnByDefault;
}

} // namespace

Choices& Choices::inForce()
{
    static Choices choices;
    return choices;
}

Choices::Choices()
{
    for (const SwitchRow& row : switchRows)
        switched.*row.isOn = stored(row, switched.*row.isOn);
    LastRunKept = [] { inForce().tellOfChange(); };
}

void Choices::setSwitch(const SwitchRow& which, bool isOn)
{
    switched.*which.isOn = isOn;
    SaveSetting(application, section, which.key, textOf(isOn));
    tellOfChange();
}

Conditions Conditions::inForce() { return {UnitSystem, BaroPressure}; }

const std::vector<Place>& Choices::pins()
{
    if (pinnedAt != Conditions::inForce())
        pinned.clear();
    return pinned;
}

void Choices::setPins(std::vector<Place> places)
{
    pinned = std::move(places);
    pinnedAt = Conditions::inForce();
    tellOfChange();
}

void Choices::tellOfChange() const
{
    for (const auto& [listener, handler] : listeners)
        handler();
}

} // namespace chart
