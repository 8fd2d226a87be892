// The about box, from the main menu and from a calculator, and its links.

#include "tests/screens/CalculatorFixture.h"

#include "platform/Desktop.h"
#include "shell/About.h"

#include <QDesktopServices>
#include <QTextBrowser>

using namespace forms;

class AboutBox : public CalculatorTest
{
protected:
    void SetUp() override
    {
        for (const char* scheme : {"mailto", "https"})
            QDesktopServices::setUrlHandler(scheme, &opened, "setSource");
    }
    void TearDown() override
    {
        for (const char* scheme : {"mailto", "https"})
            QDesktopServices::unsetUrlHandler(scheme);
        CalculatorTest::TearDown();
    }

    void inAbout(const std::function<void()>& actions)
    {
        bool cameUp = false;
        user.inDialog("About", [&] {
            cameUp = true;
            actions();
        });
        user.choose("mnuAbout");
        EXPECT_TRUE(cameUp);
        EXPECT_FALSE(isLoaded<About>());
    }

    QTextBrowser opened; ///< replaces the desktop's mail program and browser; keeps its links
};

TEST_F(AboutBox, SaysWhatTheProgramIs)
{
    start();
    inAbout([this] {
        EXPECT_EQ(user.title(), "About Dunmoor");
        EXPECT_EQ(user.text("lblTitle"), "Dunmoor");
        EXPECT_EQ(user.text("lblVersion"), "Version 1.4.0");
        EXPECT_NE(user.text("lblCopyright"), "");
        EXPECT_NE(user.text("lblCompany"), "");
        EXPECT_EQ(user.text("lblDescription"), "");
        EXPECT_FALSE(user.isVisible("lblMoreDescription"));
        EXPECT_TRUE(user.isVisible("Line1"));
        EXPECT_EQ(user.text("cmdOK"), "OK");
        user.click("cmdOK");
    });
    EXPECT_EQ(user.window(), "MainForm");
}

TEST_F(AboutBox, ClosesByEnterAndByItsBox)
{
    start();
    inAbout([this] { user.key(Qt::Key_Return); });
    inAbout([this] { user.closeWindow(); });
    EXPECT_EQ(user.window(), "MainForm");
}

TEST_F(AboutBox, LetsNoOtherWindowTakeInputMeanwhile)
{
    start();
    inAbout([this] {
        EXPECT_EQ(User::findWindow("About")->windowModality(), Qt::ApplicationModal);
        user.click("cmdOK");
    });
}

TEST_F(AboutBox, OpensTheMailProgramAndTheBrowserAndStaysOpen)
{
    start();
    inAbout([this] {
        user.click("btnEMAIL");
        EXPECT_EQ(opened.source(), QUrl("mailto:support@dunmoor.example"));
        user.click("btnURL");
        EXPECT_EQ(opened.source(), QUrl("https://www.dunmoor.example/"));
        EXPECT_EQ(user.window(), "About");
        user.click("cmdOK");
    });
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(AboutBox, OpensLinksAlone)
{
    start();
    const auto execute = [](const char* verb) {
        return ShellExecuteA(form<About>(), verb, "https://www.dunmoor.example/", "", "", SW_SHOWNORMAL);
    };
    EXPECT_LE(execute("print"), 32);
    EXPECT_EQ(opened.source(), QUrl());
    EXPECT_GT(execute("open"), 32);
    EXPECT_EQ(opened.source(), QUrl("https://www.dunmoor.example/"));
}

TEST_F(AboutBox, SaysNothingWhereTheDesktopOpensNoLinks)
{
    for (const char* scheme : {"mailto", "https"})
        QDesktopServices::unsetUrlHandler(scheme);
    start();
    inAbout([this] {
        user.click("btnEMAIL");
        user.click("btnURL");
        EXPECT_LE(ShellExecuteA(form<About>(), "open", "https://www.dunmoor.example/", "", "", SW_SHOWNORMAL),
                  32);
        user.click("cmdOK");
    });
    EXPECT_TRUE(user.messages.empty());
}

/// The forms other than the main menu with an About entry, with the steps from the main menu to each.
struct Place
{
    const char* form;
    const char* button;
};

class AboutOnACalculator : public AboutBox, public testing::WithParamInterface<Place>
{};

INSTANTIATE_TEST_SUITE_P(Of, AboutOnACalculator,
                         testing::Values(Place{"AirPropertiesCalc", "btnAirCalc"},
                                         Place{"MixedAir", "btnMixedAir"},
                                         Place{"CoolingLoad1", "btnCooling"},
                                         Place{"HeatingLoad1", "btnHeating"}, Place{"Humid1", "btnHumidity"}),
                         [](const auto& place) { return std::string(place.param.form); });

TEST_P(AboutOnACalculator, ReturnsToItAndNotToTheMainMenu)
{
    start();
    user.click(GetParam().button);
    inAbout([this] { user.click("cmdOK"); });
    EXPECT_EQ(user.window(), GetParam().form);
    EXPECT_FALSE(User::findWindow("MainForm")->isVisible());
}

TEST_F(AboutBox, ReturnsToTheTableOfTheMixedAir)
{
    start();
    user.click("btnMixedAir");
    calculate("95", "txtRH", "40");
    answerVolume("btnSaveOSA", "1000");
    answerVolume("btnRA", "1000");
    user.click("btnMixedAir");
    ASSERT_EQ(user.window(), "Answers1");
    inAbout([this] { user.click("cmdOK"); });
    EXPECT_EQ(user.window(), "Answers1");
}

TEST_F(AboutBox, ReturnsToTheDesiredAirOfTheHumidification)
{
    start();
    user.click("btnHumidity");
    calculate("40", "txtRH", "50");
    user.inDialog("humid2", [this] {
        inAbout([this] { user.click("cmdOK"); });
        EXPECT_EQ(user.window(), "humid2");
        user.click("btnOK");
    });
    user.click("btnHumidityDesired");
    EXPECT_EQ(user.window(), "Humid1");
}
