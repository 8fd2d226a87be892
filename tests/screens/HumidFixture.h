#pragma once

#include "screens/Humid1.h"
#include "screens/humid2.h"
#include "tests/screens/CalculatorFixture.h"

/// A user at the humidification calculator.
class HumidTest : public CalculatorTest
{
protected:
    void open(bool metric = false)
    {
        metric ? startInMetric() : start();
        user.click("btnHumidity");
    }

    /// Calculates outside air with W = 0.0015 at 40 deg F, or 0.002 at 5 deg C.
    void calculateOutsideAir() { calculate(IsMetric() ? "5" : "40", "txtW", IsMetric() ? "2" : "0.0015"); }

    /// Opens the second screen and runs the actions, which also close it.
    void inRequirement(const std::function<void()>& actions)
    {
        user.inDialog("humid2", actions);
        user.click("btnHumidityDesired");
    }

    struct Entries
    {
        std::string temperature;
        std::string humidity;
        std::string space;
        std::string airChanges;
        std::string outsideAir;
    };

    /// Fills in the second screen and presses its button.
    void require(const Entries& entries)
    {
        user.type("txtDesH", entries.humidity);
        user.type("txtDesT", entries.temperature);
        user.type("txtVol", entries.space);
        user.type("txtAC", entries.airChanges);
        user.type("txtOSA", entries.outsideAir);
        user.click("btnCalcHumid");
    }

    /// Called on the first screen. Returns what the second one shows for the entries, masses before flows.
    Names moistureFor(const Entries& entries)
    {
        Names shown;
        inRequirement([&] {
            require(entries);
            shown = moisture();
            user.click("btnOK");
        });
        return shown;
    }

    Names moisture()
    {
        return {user.text("txtMassPerHour"), user.text("txtMassPerDay"), user.text("txtFlowPerHour"),
                user.text("txtFlowPerDay")};
    }

    void expectButtons(bool calculateOn, bool desiredOn)
    {
        EXPECT_EQ(user.isEnabled("btnCALCULATE"), calculateOn);
        EXPECT_EQ(user.isEnabled("btnHumidityDesired"), desiredOn);
    }

    static inline const Names noMoisture{"", "", "", ""};
    /// 500 cfm to a specific volume of 13.4 and W = 0.0082.
    static inline const Entries workedEntries{"64.927", "62.705", "", "", "500"};
    static inline const Names workedMoisture{"15.00", "360.00", "1.80", "43.14"};
};
