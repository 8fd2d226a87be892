#include "tests/screens/CoolingFixture.h"

#include <QApplication>
#include <QMenuBar>
#include <QScreen>
#include <QWidget>

using namespace forms;

/// The dialog that asks for the air leaving the coil. The entering air is at 80 deg F with a dew point of
/// 59.8.
class CoolingLeavingAirDialog : public CoolingTest
{
protected:
    static inline const std::string prompt =
        "Enter the desired Cooling Leaving Air Temperature, then Enter or Tab key:";
    static inline const std::string tooWarm =
        "Leaving Air Temperature must be less than the Entering Air Temperature";
    static inline const std::string needsWetBulb =
        "Since the L.A.T. Dry Bulb is less than the Dew Point, you must enter a L.A.T. Wet Bulb.";

    void expectRefused(const std::string& dryBulb, const std::string& wetBulb, const std::string& words)
    {
        LeavingAirAccepted = True16;
        LeavingWetBulbGiven = True16;
        answer(dryBulb, wetBulb);
        EXPECT_TRUE(isLoaded<CoolingLoad2>());
        EXPECT_EQ(user.text("Label1"), words);
        EXPECT_EQ(LeavingAirAccepted, False16);
        EXPECT_EQ(LeavingWetBulbGiven, False16);
    }

    void expectAccepted(const std::string& dryBulb, const std::string& wetBulb, Boolean16 asWet)
    {
        LeavingWetBulbGiven = asWet == True16 ? False16 : True16;
        answer(dryBulb, wetBulb);
        EXPECT_FALSE(isLoaded<CoolingLoad2>());
        EXPECT_EQ(LeavingAirAccepted, True16);
        EXPECT_EQ(LeavingWetBulbGiven, asWet);
    }
};

TEST_F(CoolingLeavingAirDialog, AsksForBothTemperatures)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        EXPECT_EQ(user.title(), "Cooling Leaving Air Temp");
        EXPECT_EQ(user.text("Label1"), prompt);
        EXPECT_EQ(user.text("Label2"), " L.A.T.(dry bulb):");
        EXPECT_EQ(user.text("Label3"), "° F");
        EXPECT_EQ(user.text("Label4"), " L.A.T.(wet bulb):");
        EXPECT_EQ(user.text("Label5"), "° F");
        EXPECT_EQ(user.text("btnOK"), "OK");
        EXPECT_EQ(user.text("btnCancel"), "CANCEL");
        EXPECT_EQ(user.text("txtLATdb"), "");
        EXPECT_EQ(user.text("txtLATwb"), "");
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

TEST_F(CoolingLeavingAirDialog, SaysNothingToABlankDryBulbAndStays)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        expectRefused("", "", prompt);
        expectRefused("80", "", tooWarm);
        expectRefused("", "60", tooWarm); // the old message remains
        EXPECT_EQ(user.text("txtLATwb"), "60");
    });
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(CoolingLeavingAirDialog, RefusesWhatIsNotBelowTheEnteringAir)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        expectRefused("80", "", tooWarm);
        expectRefused("80.1", "", tooWarm);
        expectRefused("95", "60", tooWarm);
    });
}

TEST_F(CoolingLeavingAirDialog, AsksForTheWetBulbBelowTheDewPoint)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        expectRefused("59.7", "", needsWetBulb);
        expectRefused("59.7", "0", needsWetBulb);
        expectRefused("-39.9", "0.0", needsWetBulb);
        expectRefused("80", "", tooWarm);
    });
    expectButtons(false, false, true, false);
}

TEST_F(CoolingLeavingAirDialog, TakesTheDewPointItselfForADryCoil)
{
    openWithEnteringAir();
    inLeavingAir([this] { expectAccepted("59.8", "", False16); });
    EXPECT_EQ(user.text("txtTdb"), "59.8");
    expectButtons(false, false, false, true);
}

TEST_F(CoolingLeavingAirDialog, TakesAnythingBetweenDewPointAndEnteringAirForADryCoil)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        StatePoint.W = 0.5F;
        StatePoint.P = 1.0F;
        expectAccepted("79.9", "0", False16);
        EXPECT_EQ(StatePoint.Tdb, 79.9F);
        EXPECT_EQ(StatePoint.W, CoolingEnteringAir.W);
        EXPECT_EQ(StatePoint.P, CoolingEnteringAir.P);
        EXPECT_EQ(CoolingLeavingAir.Tdb, 79.9F);
        EXPECT_EQ(CoolingLeavingAir.W, CoolingEnteringAir.W);
        EXPECT_EQ(CoolingLeavingAir.P, CoolingEnteringAir.P);
    });
}

TEST_F(CoolingLeavingAirDialog, TakesAnyWetBulbForAWetCoil)
{
    openWithEnteringAir();
    const std::pair<const char*, const char*> entries[] = {
        {"65", "60"},     // above the dew point
        {"59.8", "58"},   // at it
        {"55", "54"},     // below it
        {"55", "70"},     // a wet bulb above the dry bulb
        {"-39.9", "-40"}, // the lowest temperatures
    };
    for (const auto& [dryBulb, wetBulb] : entries) {
        calculate("80", "txtRH", "50");
        saveEntering();
        inLeavingAir([this, dry = dryBulb, wet = wetBulb] { expectAccepted(dry, wet, True16); });
        expectButtons(false, false, false, true);
    }
}

TEST_F(CoolingLeavingAirDialog, LeavesTheWetStateToTheCalculator)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        StatePoint.P = 1.0F;
        expectAccepted("65", "60", True16);
        EXPECT_EQ(StatePoint.Tdb, 65.0F);
        EXPECT_EQ(StatePoint.Twb, 60.0F);
        EXPECT_EQ(StatePoint.P, CoolingEnteringAir.P);
        EXPECT_EQ(CoolingLeavingAir.Tdb, 65.0F);
        EXPECT_EQ(CoolingLeavingAir.Twb, 60.0F);
        EXPECT_EQ(CoolingLeavingAir.P, CoolingEnteringAir.P);
        EXPECT_EQ(StatePoint.PwsWet, SaturationPressure(FahrenheitToRankine(60.0F)));
        EXPECT_EQ(StatePoint.Pws, SaturationPressure(FahrenheitToRankine(65.0F)));
        EXPECT_EQ(CoolingLeavingAir.W, StatePoint.W.asSingle());
        EXPECT_NEAR(CoolingLeavingAir.W, 0.009888867, 1e-8);
    });
    EXPECT_NEAR(CoolingLeavingAir.W, 0.009888867, 1e-8);
}

TEST_F(CoolingLeavingAirDialog, KeepsTheFahrenheitScaleBelowTheDewPointInMetricForAMoment)
{
    openWithEnteringAir(true);
    inLeavingAir([this] {
        expectAccepted("12", "11.5", True16);
        EXPECT_EQ(StatePoint.PwsWet, SaturationPressure(FahrenheitToRankine(11.5F)));
        EXPECT_EQ(StatePoint.Pws, SaturationPressure(FahrenheitToRankine(12.0F)));
    });
    EXPECT_EQ(StatePoint.PwsWet, SaturationPressure(ToAbsolute(11.5F))) << "the calculator works it out anew";
    EXPECT_NEAR(CoolingLeavingAir.W, 0.008235618, 1e-8);

    calculate("30", "txtRH", "50");
    saveEntering("3600");
    inLeavingAir([this] {
        expectAccepted("20", "19", True16);
        EXPECT_EQ(StatePoint.PwsWet, SaturationPressure(ToAbsolute(19.0F))) << "not so above the dew point";
    });
}

TEST_F(CoolingLeavingAirDialog, SaysNothingAtAllToFortyBelowOrColder)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        for (const char* wetBulb : {"", "0", "20"}) {
            for (const char* dryBulb : {"-40", "-50"}) {
                LeavingAirAccepted = True16;
                LeavingWetBulbGiven = True16;
                answer(dryBulb, wetBulb);
                EXPECT_TRUE(isLoaded<CoolingLoad2>());
                EXPECT_EQ(user.text("Label1"), prompt);
                EXPECT_EQ(LeavingAirAccepted, True16);
                EXPECT_EQ(LeavingWetBulbGiven, True16);
            }
        }
        LeavingAirAccepted = False16;
    });
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(CoolingLeavingAirDialog, WipesTheWetBulbWithTheDryBulb)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        user.type("txtLATdb", "55");
        user.type("txtLATwb", "54");
        user.type("txtLATdb", "56");
        EXPECT_EQ(user.text("txtLATwb"), "54");
        user.type("txtLATdb", "");
        EXPECT_EQ(user.text("txtLATwb"), "");
    });
}

TEST_F(CoolingLeavingAirDialog, TakesNothingBackByCancelButTheAcceptance)
{
    openWithEnteringAir();
    const AirSnapshot before = CoolingLeavingAir;
    inLeavingAir([this] {
        LeavingAirAccepted = True16;
        LeavingWetBulbGiven = True16;
        user.type("txtLATdb", "65");
        user.click("btnCancel");
        EXPECT_FALSE(isLoaded<CoolingLoad2>());
    });
    EXPECT_EQ(LeavingAirAccepted, False16);
    EXPECT_EQ(LeavingWetBulbGiven, True16);
    EXPECT_EQ(StatePoint.Tdb, 80.0F);
    EXPECT_EQ(CoolingLeavingAir.Tdb, before.Tdb);
}

TEST_F(CoolingLeavingAirDialog, ChangesNoFlagByItsCloseBox)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        LeavingWetBulbGiven = True16;
        user.type("txtLATdb", "65");
        user.closeWindow();
        EXPECT_FALSE(isLoaded<CoolingLoad2>());
    });
    EXPECT_EQ(LeavingAirAccepted, False16);
    EXPECT_EQ(LeavingWetBulbGiven, True16);
    expectButtons(false, false, true, false);
}

TEST_F(CoolingLeavingAirDialog, LeavesTheStateAloneByARefusalAndOpensBlankAgain)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        expectRefused("55", "", needsWetBulb);
        EXPECT_EQ(StatePoint.Tdb, 80.0F);
    });
    inLeavingAir([this] {
        EXPECT_EQ(user.text("Label1"), prompt);
        EXPECT_EQ(user.text("txtLATdb"), "");
        EXPECT_EQ(user.text("txtLATwb"), "");
    });
}

TEST_F(CoolingLeavingAirDialog, EndsTheProgramOnATextThatIsNoNumber)
{
    openWithEnteringAir();
    const auto mismatch = "message: Dunmoor: Run-time error '13':\nType mismatch";
    EXPECT_EXIT(setLeaving("abc"), testing::ExitedWithCode(1), mismatch);
    EXPECT_EXIT(setLeaving("65", "abc"), testing::ExitedWithCode(1), mismatch);
    const auto enter = [this] {
        user.type("txtLATdb", "abc");
        user.key(Qt::Key_Return);
    };
    EXPECT_EXIT(inLeavingAir(enter), testing::ExitedWithCode(1), mismatch);
}

TEST_F(CoolingLeavingAirDialog, EndsTheProgramOnAWetBulbOfLessThanNoWater)
{
    openWithEnteringAir();
    const auto invalid = "message: Dunmoor: Run-time error '5':\nInvalid procedure call or argument";
    EXPECT_EXIT(setLeaving("55", "35"), testing::ExitedWithCode(1), invalid);
    EXPECT_EXIT(setLeaving("62", "35"), testing::ExitedWithCode(1), invalid) << "above the dew point too";
    setLeaving("55", "38");
    EXPECT_EQ(LeavingAirAccepted, True16) << "hardly any water, and taken without a word";
    EXPECT_GT(CoolingLeavingAir.W, 0.0F);
    EXPECT_TRUE(user.messages.empty());
}
