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

    /// 1000 cfm of outside air at 95 deg F and 3000 cfm of return air at 75 deg F.
    void saveBothStreams()
    {
        calculate("95", "txtRH", "40");
        save("btnSaveOSA", "1000");
        calculate("75", "txtRH", "50");
        save("btnRA", "3000");
    }

    void expectButtons(bool calculateOn, bool savesOn, bool mixOn)
    {
        EXPECT_EQ(user.isEnabled("btnCALCULATE"), calculateOn);
        EXPECT_EQ(user.isEnabled("btnSaveOSA"), savesOn);
        EXPECT_EQ(user.isEnabled("btnRA"), savesOn);
        EXPECT_EQ(user.isEnabled("btnMixedAir"), mixOn);
    }
};
