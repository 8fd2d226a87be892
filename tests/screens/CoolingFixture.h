#pragma once

#include "core/CoilLoads.h"
#include "screens/CoolingLoad1.h"
#include "screens/CoolingLoad2.h"
#include "screens/CoolingLoad3.h"
#include "tests/screens/CalculatorFixture.h"

#include <QWidget>

#include <string>
#include <vector>

/// A user at the cooling load calculator.
class CoolingTest : public CalculatorTest
{
protected:
    using Texts = std::vector<std::string>;

    void open(bool metric = false)
    {
        metric ? startInMetric() : start();
        user.click("btnCooling");
    }

    void saveEntering(const std::string& volume = "1000") { answerVolume("btnSaveEA", volume); }
    void cancelVolume() { CalculatorTest::cancelVolume("btnSaveEA"); }

    /// Entering air at 80 deg F or 30 deg C and 50 % relative humidity. Its dew point is 59.8 or 18.5.
    void openWithEnteringAir(bool metric = false)
    {
        open(metric);
        calculate(metric ? "30" : "80", "txtRH", "50");
        saveEntering(metric ? "3600" : "1000");
    }

    /// Presses Set Leaving Air and acts in the dialog. The close box closes it if it is still open.
    void inLeavingAir(std::function<void()> actions)
    {
        user.inDialog("CoolingLoad2", [this, actions = std::move(actions)] {
            actions();
            if (isLoaded<CoolingLoad2>())
                user.closeWindow();
        });
        user.click("btnSetLA");
    }

    /// Types into the open dialog and presses OK.
    void answer(const std::string& dryBulb, const std::string& wetBulb = {})
    {
        user.type("txtLATdb", dryBulb);
        user.type("txtLATwb", wetBulb);
        user.click("btnOK");
    }

    void setLeaving(const std::string& dryBulb, const std::string& wetBulb = {})
    {
        inLeavingAir([this, dryBulb, wetBulb] { answer(dryBulb, wetBulb); });
    }

    /// Presses Calculate Load, acts in the summary and closes it.
    void inSummary(std::function<void()> actions)
    {
        user.inDialog("CoolingLoad3", [this, actions = std::move(actions)] {
            actions();
            if (isLoaded<CoolingLoad3>())
                user.click("Command1");
        });
        user.click("btnCalcLoad");
    }

    /// Presses Calculate Load and reads the sum: volume, sensible, latent, total.
    Texts readLoads()
    {
        Texts sum;
        inSummary([&] {
            sum = {user.text("txtcfm1"), user.text("txtBTU(1)"), user.text("txtBTU(2)"),
                   user.text("txtBTU(0)")};
        });
        return sum;
    }

    void expectButtons(bool calculateOn, bool saveOn, bool setOn, bool loadOn)
    {
        EXPECT_EQ(user.isEnabled("btnCALCULATE"), calculateOn);
        EXPECT_EQ(user.isEnabled("btnSaveEA"), saveOn);
        EXPECT_EQ(user.isEnabled("btnSetLA"), setOn);
        EXPECT_EQ(user.isEnabled("btnCalcLoad"), loadOn);
    }

    /// The fields and buttons of the window in Tab order, including disabled ones.
    Texts tabOrder() const
    {
        const QWidget* const window = User::findWindow(user.window());
        Texts names;
        for (const QWidget* next = window->nextInFocusChain(); next != window;
             next = next->nextInFocusChain()) {
            if ((next->focusPolicy() & Qt::TabFocus) == Qt::TabFocus)
                names.push_back(next->objectName().toStdString());
        }
        return names;
    }

    static inline const Texts humidityFields{"txtTwb", "txttd", "txtRH", "txtW", "txtGrains"};
};
