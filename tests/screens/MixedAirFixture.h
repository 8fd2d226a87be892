#pragma once

#include "screens/Answers1.h"
#include "screens/MixedAir.h"
#include "screens/cfmForm.h"
#include "tests/support/ProgramTest.h"

/// A user at the mixed air calculator.
class MixedAirTest : public ProgramTest
{
protected:
    void open(bool metric = false)
    {
        metric ? startInMetric() : start();
        user.click("btnMixedAir");
    }

    void calculate(const std::string& tdb, const std::string& field, const std::string& text)
    {
        user.type("txtTdb", tdb);
        user.click(field);
        user.type(field, text);
        user.click("btnCALCULATE");
    }

    /// Presses a save button and answers the air volume dialog.
    void save(const std::string& button, const std::string& volume)
    {
        user.inDialog("cfmForm", [this, volume] {
            user.type("txtCFMinput", volume);
            user.click("btnOK");
        });
        user.click(button);
    }

    void cancelSave(const std::string& button)
    {
        user.inDialog("cfmForm", [this] { user.click("btnCancel"); });
        user.click(button);
    }

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
