// Enter, Esc and F1 in the dialogs, and F1 on every screen.

#include "core/CoilLoads.h"
#include "tests/screens/CalculatorFixture.h"

#include <QDir>
#include <QTextBrowser>

class KeysOfDialogs : public CalculatorTest
{
protected:
    /// Opens a dialog and does something in it.
    void inDialog(const std::string& dialog, const std::string& opener, const std::function<void()>& actions)
    {
        user.inDialog(dialog, [this, dialog, actions] {
            ASSERT_EQ(user.window(), dialog);
            seen = true;
            actions();
        });
        if (opener.starts_with("mnu"))
            user.choose(opener);
        else
            user.click(opener);
        EXPECT_TRUE(seen) << dialog;
        seen = false;
    }

    /// Presses a key in the focused control of a dialog, which then must be gone.
    void closeBy(Qt::Key key, const std::string& dialog, const std::string& opener)
    {
        inDialog(dialog, opener, [this, key] { user.key(key); });
        EXPECT_NE(user.window(), dialog);
    }

    void openHeating()
    {
        user.click("btnHeating");
        calculate("70", "txtRH", "50");
        answerVolume("btnSaveEnteringAir", "1000");
    }

    /// Cooling, up to the dialog for the leaving air.
    void openCooling()
    {
        user.click("btnCooling");
        calculate("80", "txtRH", "50");
        answerVolume("btnSaveEA", "1000");
    }

    void setDryLeavingAir()
    {
        inDialog("CoolingLoad2", "btnSetLA", [this] {
            user.type("txtLATdb", "65");
            user.click("btnOK");
        });
    }

    static std::string helpPage()
    {
        QApplication::processEvents();
        const QWidget* const help = User::findWindow("HelpWindow");
        return help == nullptr
                   ? "(no help)"
                   : help->findChild<QTextBrowser*>("helpPage")->source().fileName().toStdString();
    }

    std::string pageOfF1()
    {
        user.key(Qt::Key_F1);
        return helpPage();
    }

    bool seen = false;
};

TEST_F(KeysOfDialogs, EnterAcceptsTheOptions)
{
    start();
    inDialog("Settings", "mnuOptions", [this] {
        user.type("txtBP", "14.5");
        user.key(Qt::Key_Return);
    });
    EXPECT_EQ(stored("Pressure_psi"), "14.5");
    EXPECT_EQ(user.window(), "MainForm");
}

TEST_F(KeysOfDialogs, EscCancelsTheOptions)
{
    start();
    inDialog("Settings", "mnuOptions", [this] {
        user.type("txtBP", "14.5");
        user.key(Qt::Key_Escape);
    });
    EXPECT_EQ(stored("Pressure_psi"), "(nothing)");
    EXPECT_EQ(user.window(), "MainForm");
}

TEST_F(KeysOfDialogs, EnterAndEscCloseTheAboutBox)
{
    start();
    closeBy(Qt::Key_Return, "About", "mnuAbout");
    closeBy(Qt::Key_Escape, "About", "mnuAbout");
}

TEST_F(KeysOfDialogs, EscCancelsTheAirVolume)
{
    start();
    user.click("btnHeating");
    calculate("70", "txtRH", "50");
    inDialog("cfmForm", "btnSaveEnteringAir", [this] {
        user.type("txtCFMinput", "1000");
        user.key(Qt::Key_Escape);
    });
    EXPECT_EQ(HeatingEnteringAir.AirVolume, 0.0F);
    EXPECT_EQ(user.text("txtAirVolume"), "0");
}

TEST_F(KeysOfDialogs, EnterAcceptsTheHeatingLeavingAir)
{
    start();
    openHeating();
    inDialog("HeatingLoad2", "btnInputLeavingAir", [this] {
        user.type("txtHeatLAT", "90");
        user.key(Qt::Key_Return);
    });
    EXPECT_EQ(user.text("txtTdb"), "90");
}

TEST_F(KeysOfDialogs, EscClosesTheHeatingLeavingAirLikeItsCloseBox)
{
    start();
    openHeating();
    closeBy(Qt::Key_Escape, "HeatingLoad2", "btnInputLeavingAir");
    EXPECT_EQ(user.text("txtTdb"), "70");
    EXPECT_NE(user.text("lblHeatLoad"), ""); // the calculator goes on
}

TEST_F(KeysOfDialogs, EscDoesNothingInTheCoolingLeavingAir)
{
    start();
    openCooling();
    inDialog("CoolingLoad2", "btnSetLA", [this] {
        user.key(Qt::Key_Escape);
        EXPECT_EQ(user.window(), "CoolingLoad2");
        user.click("btnCancel");
    });
}

TEST_F(KeysOfDialogs, EnterAndEscCloseTheCoolingSummary)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        if (key == Qt::Key_Return)
            start();
        openCooling();
        setDryLeavingAir();
        closeBy(key, "CoolingLoad3", "btnCalcLoad");
        EXPECT_EQ(user.window(), "CoolingLoad1");
        user.choose("mnuMain1");
    }
}

TEST_F(KeysOfDialogs, F1OpensThePageOfEachDialog)
{
    MakeCurrentDirectory(ApplicationFolder());
    start();
    std::string page;
    const auto look = [&](const char* closer) {
        return [this, &page, closer] {
            page = pageOfF1();
            user.click(closer);
        };
    };
    inDialog("Settings", "mnuOptions", look("btnCancel"));
    EXPECT_EQ(page, "options.html");
    inDialog("About", "mnuAbout", look("cmdOK"));
    EXPECT_EQ(page, "index.html");
    openHeating();
    inDialog("cfmForm", "btnSaveEnteringAir", look("btnOK"));
    EXPECT_EQ(page, "cooling.html"); // as its menu
    inDialog("HeatingLoad2", "btnInputLeavingAir", look("btnOK"));
    EXPECT_EQ(page, "heating.html");
    user.choose("mnuMain1");
    openCooling();
    inDialog("CoolingLoad2", "btnSetLA", look("btnCancel"));
    EXPECT_EQ(page, "cooling.html");
    setDryLeavingAir();
    inDialog("CoolingLoad3", "btnCalcLoad", look("Command1"));
    EXPECT_EQ(page, "cooling.html");
}

TEST_F(KeysOfDialogs, F1OpensThePageOfEachScreen)
{
    MakeCurrentDirectory(ApplicationFolder());
    start();
    EXPECT_EQ(pageOfF1(), "index.html");
    const std::pair<const char*, const char*> screens[] = {{"btnAirCalc", "air-properties.html"},
                                                           {"btnMixedAir", "mixed-air.html"},
                                                           {"btnCooling", "cooling.html"},
                                                           {"btnHeating", "heating.html"},
                                                           {"btnHumidity", "humidification.html"}};
    for (const auto& [button, page] : screens) {
        user.click(button);
        EXPECT_EQ(pageOfF1(), page);
        user.choose("mnuMain1");
    }
}

TEST_F(KeysOfDialogs, F1OpensTheMixedAirPageOnItsTable)
{
    MakeCurrentDirectory(ApplicationFolder());
    start();
    user.click("btnMixedAir");
    calculate("70", "txtRH", "50");
    answerVolume("btnSaveOSA", "1000");
    answerVolume("btnRA", "1000");
    user.click("btnMixedAir");
    ASSERT_EQ(user.window(), "Answers1");
    EXPECT_EQ(pageOfF1(), "mixed-air.html");
}
