// The leaving air dialog of the cooling load: its look and its keys.

#include "tests/screens/CoolingLeavingAirDialog.h"

#include <QApplication>
#include <QMenuBar>
#include <QScreen>

TEST_F(CoolingLeavingAirDialog, AsksForBothTemperatures)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        EXPECT_EQ(user.title(), "Cooling Leaving Air Temp");
        EXPECT_EQ(user.text("Label1"), prompt);
        expectCaptions({{"Label2", " L.A.T.(dry bulb):"},
                        {"Label3", "° F"},
                        {"Label4", " L.A.T.(wet bulb):"},
                        {"Label5", "° F"},
                        {"btnOK", "OK"},
                        {"btnCancel", "CANCEL"},
                        {"txtLATdb", ""},
                        {"txtLATwb", ""}});
        EXPECT_EQ(User::findWindow("CoolingLoad2")->findChild<QMenuBar*>(), nullptr);
    });
}

TEST_F(CoolingLeavingAirDialog, SpeaksOfDegreesCelsiusInMetricWithTheSameWords)
{
    openWithEnteringAir(true);
    inLeavingAir([this] {
        EXPECT_EQ(user.text("Label3"), "° C");
        EXPECT_EQ(user.text("Label5"), "° C");
        expectRefused("30", "", tooWarm);
        expectRefused("18.4", "", needsWetBulb);
        expectRefused("-39.9", "", needsWetBulb);
        answer("-40", "");
        EXPECT_TRUE(isLoaded<CoolingLoad2>());
    });
}

TEST_F(CoolingLeavingAirDialog, MeetsTheRightEdgeOfTheCalculator)
{
    openWithEnteringAir();
    inLeavingAir([] {
        const QWidget* const dialog = User::findWindow("CoolingLoad2");
        const QWidget* const calculator = User::findWindow("CoolingLoad1");
        EXPECT_EQ(dialog->x() + dialog->width(), calculator->x() + calculator->width());
        EXPECT_EQ(dialog->y(), dialog->screen()->geometry().height() / 4 + 330 - dialog->height() + 50);
    });
}

TEST_F(CoolingLeavingAirDialog, IsTabbedThroughFromTheDryBulbToCancel)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        EXPECT_EQ(tabOrder(), (Texts{"txtLATdb", "txtLATwb", "btnOK", "btnCancel"}));
        QApplication::processEvents(); // the focus comes with the window's activation
        EXPECT_EQ(user.focus(), "txtLATdb");
        user.widget("txtLATwb")->setFocus();
        user.key(Qt::Key_Tab);
        EXPECT_EQ(user.focus(), "btnOK");
        user.key(Qt::Key_Tab);
        EXPECT_EQ(user.focus(), "btnCancel");
    });
}

TEST_F(CoolingLeavingAirDialog, GoesToOkByEnterOrTabAboveTheDewPoint)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab}) {
            user.type("txtLATdb", "59.9");
            user.key(key);
            EXPECT_EQ(user.focus(), "btnOK");
            EXPECT_EQ(user.text("txtLATdb"), "59.9");
        }
    });
}

TEST_F(CoolingLeavingAirDialog, StaysByEnterAndGoesToTheWetBulbByTabAtOrBelowTheDewPoint)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        for (const char* notAbove : {"59.8", "59.7", "55"}) {
            user.type("txtLATdb", notAbove);
            user.key(Qt::Key_Return);
            EXPECT_EQ(user.focus(), "txtLATdb") << notAbove;
            user.key(Qt::Key_Tab);
            EXPECT_EQ(user.focus(), "txtLATwb") << notAbove;
        }
    });
}

TEST_F(CoolingLeavingAirDialog, HasNoDefaultButtonAndNoCancelByEscape)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        LeavingAirAccepted = True16;
        user.type("txtLATdb", "65");
        user.type("txtLATwb", "60");
        user.key(Qt::Key_Return);
        EXPECT_EQ(user.focus(), "txtLATwb");
        user.key(Qt::Key_Escape);
        EXPECT_TRUE(isLoaded<CoolingLoad2>());
        EXPECT_EQ(user.window(), "CoolingLoad2");
        EXPECT_EQ(user.text("Label1"), prompt);
        LeavingAirAccepted = False16;
    });
}

TEST_F(CoolingLeavingAirDialog, IsConfirmedByEnterOnOk)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        user.type("txtLATdb", "65");
        user.key(Qt::Key_Return);
        user.key(Qt::Key_Return);
        EXPECT_FALSE(isLoaded<CoolingLoad2>());
    });
    EXPECT_EQ(user.text("txtTdb"), "65");
}
