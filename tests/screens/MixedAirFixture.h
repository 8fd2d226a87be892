#pragma once

#include "screens/Answers1.h"
#include "screens/MixedAir.h"
#include "screens/cfmForm.h"
#include "tests/screens/CalculatorFixture.h"

/// A user at the mixed air calculator.
class MixedAirTest : public CalculatorTest
{
protected:
    void open(bool metric = false)
    {
        metric ? startInMetric() : start();
        user.click("btnMixedAir");
    }

    void save(const std::string& button, const std::string& volume) { answerVolume(button, volume); }
    void cancelSave(const std::string& button) { cancelVolume(button); }

    /// Air at 95 deg F or 35 deg C.
    void calculateOutsideAir() { calculate(IsMetric() ? "35" : "95", "txtRH", "40"); }
    /// Air at 75 deg F or 24 deg C.
    void calculateReturnAir() { calculate(IsMetric() ? "24" : "75", "txtRH", "50"); }

    void saveOutsideAir(const std::string& volume = "1000")
    {
        calculateOutsideAir();
        save("btnSaveOSA", volume);
    }
    void saveReturnAir(const std::string& volume = "3000")
    {
        calculateReturnAir();
        save("btnRA", volume);
    }
    void saveBothStreams()
    {
        saveOutsideAir(IsMetric() ? "500" : "1000");
        saveReturnAir();
    }

    void mixBothStreams(bool metric = false)
    {
        open(metric);
        saveBothStreams();
        user.click("btnMixedAir");
    }

    /// Return air, and outside air without a volume.
    void mixReturnAirAlone()
    {
        open();
        saveReturnAir();
        calculateOutsideAir();
        cancelSave("btnSaveOSA");
        user.click("btnMixedAir");
    }

    void expectButtons(bool calculateOn, bool savesOn, bool mixOn)
    {
        EXPECT_EQ(user.isEnabled("btnCALCULATE"), calculateOn);
        EXPECT_EQ(user.isEnabled("btnSaveOSA"), savesOn);
        EXPECT_EQ(user.isEnabled("btnRA"), savesOn);
        EXPECT_EQ(user.isEnabled("btnMixedAir"), mixOn);
    }
};
