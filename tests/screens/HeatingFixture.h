#pragma once

#include "core/CoilLoads.h"
#include "screens/HeatingLoad1.h"
#include "screens/HeatingLoad2.h"
#include "screens/cfmForm.h"
#include "tests/screens/CalculatorFixture.h"

/// A user at the heating load calculator.
class HeatingTest : public CalculatorTest
{
protected:
    void open(bool metric = false)
    {
        metric ? startInMetric() : start();
        user.click("btnHeating");
    }

    /// Opens at the pressure at which air at 70 deg F with W = 0.008 has a specific volume of 13.5 ft3/lb.
    void openForWorkedFigures()
    {
        store("Pressure_psi", "14.72353");
        open();
    }

    /// The same for 20 deg C and 0.84 m3/kg.
    void openForMetricWorkedFigures()
    {
        store("Pressure_kPa", "101.467");
        open(true);
    }

    void saveEntering(const std::string& volume) { answerVolume("btnSaveEnteringAir", volume); }
    void cancelEntering() { cancelVolume("btnSaveEnteringAir"); }

    void inLeavingDialog(const std::function<void()>& actions)
    {
        user.inDialog("HeatingLoad2", actions);
        user.click("btnInputLeavingAir");
    }

    /// Presses "Input Leaving Air" and answers the dialog.
    void inputLeaving(const std::string& tdb)
    {
        inLeavingDialog([this, tdb] {
            user.type("txtHeatLAT", tdb);
            user.click("btnOK");
        });
    }

    void closeLeavingByItsBox()
    {
        inLeavingDialog([this] { user.closeWindow(); });
    }

    /// Air with W = 0.008: 1000 cfm at 70 deg F, or 1700 m3/hr at 20 deg C.
    void saveWorkedAir()
    {
        calculate(IsMetric() ? "20" : "70", "txtW", IsMetric() ? "8" : "0.008");
        saveEntering(IsMetric() ? "1700" : "1000");
    }

    void expectButtons(bool calculateOn, bool actionsOn)
    {
        EXPECT_EQ(user.isEnabled("btnCALCULATE"), calculateOn);
        EXPECT_EQ(user.isEnabled("btnSaveEnteringAir"), actionsOn);
        EXPECT_EQ(user.isEnabled("btnInputLeavingAir"), actionsOn);
    }

    static inline const Message refusedRatio{"Humidity Ratio Input is High, Try Again!", "Dunmoor"};
};
