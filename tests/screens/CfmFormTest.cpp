#include "tests/screens/MixedAirFixture.h"

#include <QAction>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

using namespace forms;

/// The air volume dialog, opened from the mixed air calculator.
class AirVolumeDialog : public MixedAirTest
{
protected:
    void openWithAState(bool metric = false)
    {
        open(metric);
        calculate(metric ? "30" : "95", "txtRH", "40");
    }

    void inVolume(const std::string& button, std::function<void()> actions)
    {
        user.inDialog("cfmForm", std::move(actions));
        user.click(button);
    }

    /// Types without a click into the field.
    void expectReplacedByTyping()
    {
        inVolume("btnSaveOSA", [this] {
            user.keys("5000");
            user.click("btnOK");
        });
        EXPECT_EQ(MixedOutsideAir.AirVolume, 5000.0F);
    }
};

TEST_F(AirVolumeDialog, AsksForTheVolumeInTheMiddleOfTheScreen)
{
    openWithAState();
    inVolume("btnSaveOSA", [this] {
        EXPECT_EQ(user.title(), "Air Volume Input");
        expectCaptions({{"Label1", "Enter the Air Volume:"},
                        {"label2", " CFM "},
                        {"btnOK", "OK"},
                        {"btnCancel", "Cancel"}});
        EXPECT_EQ(user.menuEntry("mnuHelp")->text(), "&Help");
        EXPECT_EQ(user.menuEntry("mnuSearch")->text(), "&Search for Help on ...");
        EXPECT_EQ(user.focus(), "txtCFMinput");
        const QWidget* const window = User::findWindow("cfmForm");
        const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
        EXPECT_EQ(window->x(), (screen.width() - window->width()) / 2);
        EXPECT_EQ(window->y(), (screen.height() - window->height()) / 2);
        user.click("btnCancel");
    });
}

TEST_F(AirVolumeDialog, AsksForCubicMetersInMetric)
{
    openWithAState(true);
    inVolume("btnSaveOSA", [this] {
        EXPECT_EQ(user.text("label2"), " cubic meter per hour");
        user.click("btnCancel");
    });
}

TEST_F(AirVolumeDialog, LeavesTheTextAsItWasTyped)
{
    openWithAState();
    save("btnSaveOSA", "1,000.50");
    EXPECT_EQ(user.text("txtcfm1"), "1,000.50");
    EXPECT_EQ(AirVolume.kind(), NumberKind::Text);
    EXPECT_EQ(MixedOutsideAir.AirVolume, 1000.5F);
}

TEST_F(AirVolumeDialog, GivesTheSameAnswerForAnEmptyFieldAndForCancel)
{
    openWithAState();
    inVolume("btnSaveOSA", [this] {
        user.type("txtCFMinput", "5");
        user.click("btnCancel");
    });
    EXPECT_EQ(AirVolume.kind(), NumberKind::Int16);
    EXPECT_EQ(AirVolume, 0.0);
    save("btnSaveOSA", "");
    EXPECT_EQ(AirVolume.kind(), NumberKind::Int16);
    EXPECT_EQ(AirVolume, 0.0);
}

TEST_F(AirVolumeDialog, IsConfirmedByEnter)
{
    openWithAState();
    inVolume("btnSaveOSA", [this] {
        user.type("txtCFMinput", "1200");
        user.key(Qt::Key_Return);
    });
    EXPECT_EQ(MixedOutsideAir.AirVolume, 1200.0F);
}

TEST_F(AirVolumeDialog, OffersItsTextAgain)
{
    openWithAState();
    save("btnSaveOSA", "1200");
    cancelSave("btnSaveOSA");
    EXPECT_EQ(offeredVolume, "1200");
}

TEST_F(AirVolumeDialog, ReplacesTheOfferedTextByTyping)
{
    openWithAState();
    save("btnSaveOSA", "1000");
    expectReplacedByTyping();
}

TEST_F(AirVolumeDialog, ReplacesTheOfferedReturnVolumeByTyping)
{
    openWithAState();
    save("btnRA", "3000");
    save("btnRA", "3500");
    expectReplacedByTyping();
}

TEST_F(AirVolumeDialog, OffersTheReturnVolumeInPlaceOfItsTextOnceItIsSet)
{
    openWithAState();
    save("btnRA", "3000");
    save("btnRA", "3500"); // showing it sets the volume that is offered from now on
    cancelSave("btnSaveOSA");
    EXPECT_EQ(offeredVolume, "3000");
}

TEST_F(AirVolumeDialog, LeavesTheVolumeAloneByItsCloseBoxAndComesBackEmpty)
{
    openWithAState();
    save("btnSaveOSA", "1200");
    inVolume("btnSaveOSA", [this] {
        user.type("txtCFMinput", "7");
        user.closeWindow();
    });
    EXPECT_FALSE(isLoaded<cfmForm>());
    EXPECT_EQ(MixedOutsideAir.AirVolume, 1200.0F) << "saved with the previous volume";
    offeredVolume = "?";
    cancelSave("btnSaveOSA");
    EXPECT_EQ(offeredVolume, "");
}
