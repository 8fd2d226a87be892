#include "tests/screens/MixedAirFixture.h"

#include <QAction>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

using namespace forms;

using MixedAirScreen = MixedAirTest;

TEST_F(MixedAirScreen, OpensBlankWithAllButtonsOffAndNoVolumes)
{
    open();
    EXPECT_EQ(user.title(), " Adiabatic Mixing of Moist Air - (English Units)");
    expectButtons(false, false, false);
    for (const char* field : {"txtTdb", "txtTwb", "txttd", "txtRH", "txtW", "txtGrains", "txtSpVol", "txth"})
        EXPECT_EQ(user.text(field), "") << field;
    for (const char* hidden : {"Frame4", "lblcfm1", "lblcfm2", "lblcfm3", "txtcfm1", "txtcfm2", "txtCFM"})
        EXPECT_FALSE(user.isVisible(hidden)) << hidden;
    EXPECT_TRUE(isLoaded<cfmForm>()) << "loaded with the calculator, without being shown";
    EXPECT_EQ(User::findWindow("cfmForm")->isVisible(), false);
}

TEST_F(MixedAirScreen, ShowsItsCaptions)
{
    open();
    const std::pair<const char*, const char*> captions[] = {
        {"Frame5", "Actions:"},
        {"btnCALCULATE", "Calculate Properties"},
        {"btnSaveOSA", "Save Outside Air"},
        {"btnRA", "Save Return Air"},
        {"btnMixedAir", "Calculate Mixed Air"},
        {"Frame4", "Air Volumes:"},
        {"Frame2", "First Enter Dry Bulb Temperature and Pressure:"},
        {"Frame1", "Enter One of These 5 Items, Click \"Calculate Properties\""},
        {"lblTdb1", " Dry Bulb Temp"},
        {"lblP1", " Pressure"},
        {"lblTwb1", " Wet Bulb Temp"},
        {"lblRH1", " Relative Humidity"},
        {"lblDewPt1", " Dew Point Temp"},
        {"lblW1", " Humidity Ratio, W"},
        {"lblGrains1", " Humidity Ratio, gr"},
        {"lblEnthalpy1", " Enthalpy, h"},
        {"lblSpVol1", " Specific Volume, v"},
        {"lblcfm1", " Cfm Outside Air"},
        {"lblcfm2", " Cfm Return Air"},
        {"lblcfm3", " CFM Total Mixed Air"},
        {"lblW2", " lb. water/lb. dry air"},
        {"lblP2", " psi"},
    };
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(user.text(name), caption) << name;
}

TEST_F(MixedAirScreen, ShowsItsMetricCaptions)
{
    open(true);
    EXPECT_EQ(user.title(), " Adiabatic Mixing of Moist Air - (Metric Units)");
    EXPECT_EQ(user.text("lblcfm1"), " m3/h Outside Air");
    EXPECT_EQ(user.text("lblcfm2"), " m3/h Return Air");
    EXPECT_EQ(user.text("lblcfm3"), " m3/h Total Mixed Air");
    EXPECT_EQ(user.text("lblW2"), " g water/kg dry air");
    EXPECT_EQ(user.text("lblGrains1"), "  ");
    EXPECT_FALSE(user.isEnabled("txtGrains"));
}

TEST_F(MixedAirScreen, ShowsItsMenusWithTheReviewHidden)
{
    open();
    const std::pair<const char*, const char*> captions[] = {
        {"mnuFile", "&File"},
        {"mnuPrintDialog", "&Print Results"},
        {"mnuSave", "&Save Results to File"},
        {"mnuExit", "E&xit"},
        {"mnuMain1", "&Main Menu"},
        {"mnuReview", "&Review"},
        {"mnuReviewOutsideAir", "&Outside Air"},
        {"mnuReviewReturnAir", "&Return Air"},
        {"mnuReviewMixedAir", "&Mixed Air"},
        {"mnuHelp1", "&Help"},
        {"mnuHelpMixedAir", "Help for &Mixed Air"},
        {"mnuHSearch", "&Search for Help On"},
        {"mnuAbout", "&About Dunmoor"},
    };
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(user.menuEntry(name)->text().toStdString(), caption);
    EXPECT_TRUE(user.menuEntry("mnuFiledash2")->isSeparator());
    EXPECT_FALSE(user.menuEntry("mnuReview")->isVisible());
    EXPECT_FALSE(user.menuEntry("mnuReview")->isEnabled());
    EXPECT_FALSE(user.menuEntry("mnuReview")->menu()->isEnabled());
    EXPECT_FALSE(user.menuEntry("mnuReviewMixedAir")->isEnabled());
}

TEST_F(MixedAirScreen, TurnsItsButtonsOnAndOffAsTheStreamsComeAndGo)
{
    open();
    user.type("txtTdb", "95");
    expectButtons(false, false, false);
    user.click("txtRH");
    expectButtons(true, false, false);
    user.type("txtRH", "40");
    user.click("btnCALCULATE");
    expectButtons(true, true, false);
    save("btnSaveOSA", "1000");
    expectButtons(true, true, true);
    user.click("txtW");
    expectButtons(true, false, false);
    user.type("txtW", "0.01");
    user.click("btnCALCULATE");
    expectButtons(true, true, false);
    save("btnRA", "1000");
    expectButtons(true, true, true);
}

TEST_F(MixedAirScreen, HasChangeHandlersOnTheWetBulbAndTheDewPointAlone)
{
    open();
    for (const char* quiet : {"txtRH", "txtW", "txtGrains"}) {
        user.type(quiet, "5");
        EXPECT_FALSE(user.isEnabled("btnCALCULATE")) << quiet;
        EXPECT_EQ(HumiditySelector, "");
    }
    user.type("txtTwb", "5");
    EXPECT_TRUE(user.isEnabled("btnCALCULATE"));
    EXPECT_EQ(HumiditySelector, "Wetbulb");
    user.type("txttd", "5");
    EXPECT_EQ(HumiditySelector, "Dew Point");
}

TEST_F(MixedAirScreen, EndsACalculationAtTheDewPoint)
{
    open();
    calculate("95", "txtRH", "40");
    EXPECT_EQ(HumiditySelector, "Dew Point");
}

TEST_F(MixedAirScreen, HasNoShortcutsFromTheDryBulbOrByTheMouse)
{
    open();
    user.type("txtTdb", "95");
    user.key(Qt::Key_Return);
    EXPECT_EQ(user.focus(), "txtTdb");
    user.pressMouse("txtRH");
    EXPECT_EQ(HumiditySelector, "");
    user.releaseMouse("txtRH");
    EXPECT_EQ(HumiditySelector, "Rel");
}

TEST_F(MixedAirScreen, ThrowsAwayTypedGrainsForTheLastOnes)
{
    open();
    calculate("95", "txtGrains", "60");
    EXPECT_EQ(user.text("lblGrains2"), " grains clipped at 0.1") << "on a fresh screen the last ones are 0";
    EXPECT_EQ(user.text("txtGrains"), "0.1");
    calculate("95", "txtRH", "40");
    const std::string grains = user.text("txtGrains");
    user.click("txtGrains");
    user.type("txtGrains", "20");
    user.click("btnCALCULATE");
    EXPECT_EQ(user.text("txtGrains"), grains);
}

TEST_F(MixedAirScreen, OffersToSaveAStateThatTheMessageRefused)
{
    open();
    calculate("70", "txtW", "0.05");
    EXPECT_EQ(user.messages, (std::vector<Message>{{"Humidity Ratio Input is High, Try Again!", "Dunmoor"}}));
    EXPECT_TRUE(user.isEnabled("btnSaveOSA"));
    EXPECT_TRUE(user.isEnabled("btnRA"));
}

TEST_F(MixedAirScreen, KeepsTheSaveButtonsWhereTheDryBulbIsRefused)
{
    open();
    calculate("70", "txtRH", "40");
    user.type("txtTdb", "126");
    user.click("btnCALCULATE");
    expectButtons(false, true, false);
}

TEST_F(MixedAirScreen, SavesTheOutsideAirWithItsVolumeAndShowsTheVolumes)
{
    open();
    calculate("95", "txtRH", "40");
    save("btnSaveOSA", "1000");
    EXPECT_TRUE(user.isVisible("Frame4"));
    for (const char* shown : {"lblcfm1", "lblcfm2", "lblcfm3", "txtcfm1", "txtcfm2", "txtCFM"})
        EXPECT_TRUE(user.isVisible(shown)) << shown;
    EXPECT_EQ(user.text("txtcfm1"), "1000");
    EXPECT_EQ(user.text("txtcfm2"), "");
    EXPECT_TRUE(user.menuEntry("mnuReview")->isVisible());
    EXPECT_TRUE(user.menuEntry("mnuReview")->isEnabled());
    EXPECT_TRUE(user.menuEntry("mnuReview")->menu()->isEnabled());

    EXPECT_EQ(MixedOutsideAir.AirVolume, 1000.0F);
    EXPECT_EQ(MixedOutsideAir.Tdb, 95.0F);
    EXPECT_EQ(MixedOutsideAir.RH, StatePoint.RH.asSingle());
    EXPECT_EQ(MixedOutsideAir.Grains, StatePoint.Grains.asSingle());
    EXPECT_EQ(MixedOutsideAir.h, StatePoint.h);
    EXPECT_EQ(MixedOutsideAir.P, 14.696F);
    // Fields that this calculator doesn't write remain 0.
    EXPECT_EQ(MixedOutsideAir.Mu, 0.0F);
    EXPECT_EQ(MixedOutsideAir.Pws, 0.0F);
    EXPECT_EQ(MixedOutsideAir.Pw, 0.0F);
    EXPECT_EQ(MixedOutsideAir.Ws, 0.0F);
}

TEST_F(MixedAirScreen, ShowsNoVolumesForTheReturnAirUntilTheOutsideAirIsSaved)
{
    open();
    calculate("75", "txtRH", "50");
    save("btnRA", "3000");
    EXPECT_TRUE(user.isVisible("Frame4"));
    for (const char* hidden : {"lblcfm1", "lblcfm2", "lblcfm3", "txtcfm1", "txtcfm2", "txtCFM"})
        EXPECT_FALSE(user.isVisible(hidden)) << hidden;
    EXPECT_EQ(user.text("txtcfm2"), "3000");
    EXPECT_EQ(MixedReturnAir.AirVolume, 3000.0F);
    save("btnSaveOSA", "1000");
    EXPECT_TRUE(user.isVisible("txtcfm2"));
}

TEST_F(MixedAirScreen, SavesWithNoVolumeOnCancel)
{
    open();
    calculate("95", "txtRH", "40");
    cancelSave("btnSaveOSA");
    EXPECT_EQ(MixedOutsideAir.AirVolume, 0.0F);
    EXPECT_EQ(MixedOutsideAir.Tdb, 95.0F);
    EXPECT_FALSE(user.isVisible("Frame4"));
    EXPECT_TRUE(user.isEnabled("btnMixedAir"));
    EXPECT_TRUE(user.menuEntry("mnuReview")->isVisible());
    EXPECT_FALSE(user.widget("txtcfm1")->isHidden()) << "shown, inside a frame that isn't";
}

TEST_F(MixedAirScreen, TakesATypedZeroForNoVolume)
{
    open();
    calculate("95", "txtRH", "40");
    save("btnSaveOSA", "0");
    EXPECT_FALSE(user.isVisible("Frame4"));
    EXPECT_EQ(user.text("txtcfm1"), "");
}

TEST_F(MixedAirScreen, SaysThatVolumesAreMissing)
{
    open();
    calculate("95", "txtRH", "40");
    cancelSave("btnSaveOSA");
    cancelSave("btnRA");
    user.click("btnMixedAir");
    EXPECT_EQ(
        user.messages,
        (std::vector<Message>{
            {"Air Volumes Must First Be Entered Before Attempting to calculate mixed air!", "Dunmoor"}}));
    EXPECT_EQ(user.window(), "MixedAir");
    EXPECT_FALSE(isLoaded<Answers1>());
}

TEST_F(MixedAirScreen, SaysNothingWhereOneStreamIsMissing)
{
    open();
    calculate("95", "txtRH", "40");
    save("btnSaveOSA", "1000");
    user.click("btnMixedAir");
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(user.window(), "MixedAir");
    EXPECT_EQ(user.text("txtTdb"), "95");
    EXPECT_EQ(MixedResultAir.AirVolume, 1000.0F) << "written before the fault";
    EXPECT_EQ(MixedResultAir.Tdb, 0.0F);
}

TEST_F(MixedAirScreen, MixesTheTwoStreams)
{
    open();
    saveBothStreams();
    user.click("btnMixedAir");
    EXPECT_EQ(user.window(), "Answers1");
    EXPECT_EQ(MixedResultAir.AirVolume, 4000.0F);
    // The return air is denser, so the mixture is closer to it than the plain mean of 80.
    EXPECT_NEAR(MixedResultAir.Tdb, 79.8, 0.1);
    const double outsideMass = 1000.0 / MixedOutsideAir.SpVol;
    const double returnMass = 3000.0 / MixedReturnAir.SpVol;
    const double w =
        (MixedOutsideAir.W * outsideMass + MixedReturnAir.W * returnMass) / (outsideMass + returnMass);
    EXPECT_NEAR(MixedResultAir.W, w, 1e-8);
    EXPECT_EQ(MixedResultAir.h, StatePoint.h);
    EXPECT_EQ(StatePoint.W.kind(), NumberKind::Single);
    EXPECT_EQ(StatePoint.Grains.kind(), NumberKind::Double) << "worked out again by the solver";
}

TEST_F(MixedAirScreen, ShowsTheMixedDryBulbBesideTheLastItemsOnComingBack)
{
    open();
    saveBothStreams();
    const std::string rh = user.text("txtRH");
    user.click("btnMixedAir");
    user.click("btnOK");
    EXPECT_EQ(user.window(), "MixedAir");
    EXPECT_EQ(user.text("txtTdb"), PlainText(MixedResultAir.Tdb));
    EXPECT_EQ(user.text("txtCFM"), "4000");
    EXPECT_EQ(user.text("txtRH"), rh);
    expectButtons(true, true, true);
}

TEST_F(MixedAirScreen, MixesEqualAirToTheSameAirAndTwiceTheVolume)
{
    open();
    calculate("75", "txtRH", "50");
    save("btnSaveOSA", "1500");
    save("btnRA", "1500");
    user.click("btnMixedAir");
    EXPECT_EQ(MixedResultAir.AirVolume, 3000.0F);
    EXPECT_NEAR(MixedResultAir.Tdb, 75.0, 1e-4);
    EXPECT_NEAR(MixedResultAir.RH, 0.5, 1e-5);
    EXPECT_NEAR(MixedResultAir.W, MixedOutsideAir.W, 1e-8);
}

TEST_F(MixedAirScreen, MixesToTheReturnAirWhereTheOutsideAirHasNoVolume)
{
    open();
    calculate("75", "txtRH", "50");
    save("btnRA", "3000");
    calculate("95", "txtRH", "40");
    cancelSave("btnSaveOSA");
    user.click("btnMixedAir");
    EXPECT_EQ(MixedResultAir.AirVolume, 3000.0F);
    EXPECT_NEAR(MixedResultAir.Tdb, 75.0, 1e-4);
}

TEST_F(MixedAirScreen, IgnoresAVolumeTypedForTheReturnAir)
{
    open();
    saveBothStreams();
    user.type("txtcfm2", "9");
    EXPECT_EQ(MixedReturnAir.AirVolume, 3000.0F);
    user.click("btnMixedAir");
    EXPECT_EQ(MixedResultAir.AirVolume, 4000.0F);
}

TEST_F(MixedAirScreen, TakesAVolumeTypedForTheOutsideAirKeyByKey)
{
    open();
    calculate("95", "txtRH", "40");
    save("btnSaveOSA", "1000");
    user.type("txtcfm1", "250");
    EXPECT_EQ(MixedOutsideAir.AirVolume, 250.0F);
    EXPECT_EQ(AirVolume.text(), "250");
    user.type("txtcfm1", "");
    EXPECT_EQ(user.text("txtcfm1"), "");
    EXPECT_EQ(MixedOutsideAir.AirVolume, 250.0F) << "emptying keeps the old volume";
}

TEST_F(MixedAirScreen, LeavesNothingToBeTypedIntoTheTotal)
{
    open();
    saveBothStreams();
    user.widget("txtCFM")->setFocus();
    user.keys("12");
    EXPECT_EQ(user.text("txtCFM"), "");
}

TEST_F(MixedAirScreen, OffersTheFirstReturnVolumeAgain)
{
    open();
    calculate("75", "txtRH", "50");
    save("btnRA", "3000");
    std::string offered;
    user.inDialog("cfmForm", [&] {
        offered = user.text("txtCFMinput");
        user.click("btnOK");
    });
    user.click("btnRA");
    EXPECT_EQ(offered, "3000");
    EXPECT_EQ(AirVolumePreset, 3000.0);
}

TEST_F(MixedAirScreen, EndsTheProgramOnAVolumeThatIsNoNumber)
{
    open();
    calculate("95", "txtRH", "40");
    EXPECT_EXIT(save("btnSaveOSA", "abc"), testing::ExitedWithCode(1),
                "message: Dunmoor: Run-time error '13':\nType mismatch");
    EXPECT_EXIT(save("btnRA", "abc"), testing::ExitedWithCode(1), "Run-time error '13'");
}

TEST_F(MixedAirScreen, EndsTheProgramAtTheKeyThatMakesTheOutsideVolumeNoNumber)
{
    open();
    calculate("95", "txtRH", "40");
    save("btnSaveOSA", "1000");
    EXPECT_EXIT(user.type("txtcfm1", "-"), testing::ExitedWithCode(1), "Run-time error '13'");
}

TEST_F(MixedAirScreen, ReviewsAStream)
{
    open();
    saveBothStreams();
    user.choose("mnuReviewOutsideAir");
    EXPECT_EQ(user.text("txtTdb"), "95");
    EXPECT_EQ(user.text("txtcfm1"), "1000");
    EXPECT_EQ(user.text("txtRH"), "40.0");
    EXPECT_EQ(StatePoint.Tdb, 95.0F);
    EXPECT_EQ(HumiditySelector, "Dew Point");
    expectButtons(true, false, false);

    user.choose("mnuReviewReturnAir");
    EXPECT_EQ(user.text("txtTdb"), "75");
    EXPECT_EQ(user.text("txtcfm2"), "3000");
    EXPECT_EQ(user.text("txtCFM"), "");
}

TEST_F(MixedAirScreen, LeavesTheTotalAloneInTheOutsideAirsReviewOnly)
{
    open();
    saveBothStreams();
    user.click("btnMixedAir");
    user.click("btnOK");
    user.choose("mnuReviewOutsideAir");
    EXPECT_EQ(user.text("txtCFM"), "4000");
    user.choose("mnuReviewReturnAir");
    EXPECT_EQ(user.text("txtCFM"), "");
}

TEST_F(MixedAirScreen, ReviewsAtThePressureOfTheLastCalculation)
{
    open();
    calculate("95", "txtRH", "40");
    save("btnSaveOSA", "1000");
    StatePoint.P = 12.0F;
    user.choose("mnuReviewOutsideAir");
    EXPECT_EQ(MixedOutsideAir.P, 12.0F);
}

TEST_F(MixedAirScreen, EndsTheProgramOnTheReviewOfAStreamThatWasNeverSaved)
{
    open();
    calculate("95", "txtRH", "40");
    save("btnSaveOSA", "1000");
    EXPECT_EXIT(user.choose("mnuReviewReturnAir"), testing::ExitedWithCode(1),
                "message: Dunmoor: Run-time error '5':\nInvalid procedure call or argument");
}

TEST_F(MixedAirScreen, NeverReviewsTheMixture)
{
    open();
    saveBothStreams();
    user.click("btnMixedAir");
    user.click("btnOK");
    const std::string before = user.text("txtTdb");
    user.choose("mnuReviewMixedAir");
    EXPECT_EQ(user.text("txtTdb"), before);
    EXPECT_FALSE(user.menuEntry("mnuReviewMixedAir")->isEnabled());
}

TEST_F(MixedAirScreen, LeavesTheGrainsOfAStreamAloneInMetric)
{
    open(true);
    MixedOutsideAir.Grains = 77.0F;
    calculate("35", "txtRH", "40");
    save("btnSaveOSA", "1000");
    EXPECT_EQ(MixedOutsideAir.Grains, 77.0F);
    EXPECT_EQ(user.text("lblcfm1"), " m3/h Outside Air");
}

TEST_F(MixedAirScreen, GoesOnWithAMixtureAboveSaturation)
{
    open();
    calculate("32.5", "txtRH", "100");
    save("btnSaveOSA", "1000");
    calculate("100", "txtRH", "99");
    save("btnRA", "1000");
    const Single staleVolume = StatePoint.SpVol.asSingle();
    user.click("btnMixedAir");
    EXPECT_EQ(user.messages, (std::vector<Message>{{"Humidity Ratio Input is High, Try Again!", "Dunmoor"}}));
    EXPECT_EQ(user.window(), "Answers1");
    EXPECT_GT(MixedResultAir.RH, 1.0F);
    EXPECT_EQ(MixedResultAir.SpVol, staleVolume) << "left behind by the last state";
    EXPECT_EQ(user.text("lblRH(2)"), FormatNumber(TaggedNumber(MixedResultAir.RH) * 100, "##0.0"));
    EXPECT_EQ(user.text("lblTwb(2)"), user.text("lblTwb(1)"));
    EXPECT_EQ(user.text("lbltd(2)"), user.text("lbltd(1)"));
    EXPECT_EQ(user.text("lblSpVol(2)"), user.text("lblSpVol(1)"));
}

TEST_F(MixedAirScreen, KeepsItsStreamsWhenItIsLeft)
{
    open();
    saveBothStreams();
    user.choose("mnuExit");
    EXPECT_EQ(user.window(), "MainForm");
    EXPECT_FALSE(isLoaded<MixedAir>());
    EXPECT_EQ(MixedOutsideAir.AirVolume, 1000.0F);
    user.click("btnMixedAir");
    EXPECT_EQ(user.text("txtTdb"), "");
    EXPECT_FALSE(user.menuEntry("mnuReview")->isVisible());
}

TEST_F(MixedAirScreen, LeavesForTheMainMenuByEveryWay)
{
    start();
    expectToLeaveByEveryWay<MixedAir>("btnMixedAir");
}

TEST_F(MixedAirScreen, StandsAQuarterDownInTheMiddleOfTheScreen)
{
    open();
    const QWidget* const window = User::findWindow("MixedAir");
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    EXPECT_EQ(window->size(), QSize(800, 660));
    EXPECT_EQ(window->pos(), QPoint((screen.width() - 800) / 2, (screen.height() - 660) / 4));
    calculate("95", "txtRH", "40");
    save("btnSaveOSA", "1000");
    EXPECT_EQ(window->size(), QSize(800, 660)) << "the volumes have their room";
}

TEST_F(MixedAirScreen, TurnsTheButtonsOffByAClickOnAnyHumidityItem)
{
    open();
    for (const char* field : {"txtTwb", "txttd", "txtRH", "txtW", "txtGrains"}) {
        calculate("95", "txtRH", "40");
        save("btnSaveOSA", "1000");
        expectButtons(true, true, true);
        user.click(field);
        expectButtons(true, false, false);
    }
}

TEST_F(MixedAirScreen, TurnsTheButtonsOffByAChangeOfTheWetBulbOrTheDewPointAlone)
{
    open();
    calculate("95", "txtRH", "40");
    save("btnSaveOSA", "1000");
    for (const char* quiet : {"txtRH", "txtW", "txtGrains"}) {
        user.type(quiet, "3");
        expectButtons(true, true, true);
    }
    user.type("txtTwb", "60");
    expectButtons(true, false, false);
    calculate("95", "txtRH", "40");
    save("btnSaveOSA", "1000");
    user.type("txttd", "60");
    expectButtons(true, false, false);
}

TEST_F(MixedAirScreen, EmptiesTheTwoResultsOnAClickOnTheDryBulbAndLeavesTheButtons)
{
    open();
    calculate("95", "txtRH", "40");
    save("btnSaveOSA", "1000");
    user.click("txtTdb");
    EXPECT_EQ(user.text("txth"), "");
    EXPECT_EQ(user.text("txtSpVol"), "");
    EXPECT_EQ(user.text("txtTdb"), "95");
    EXPECT_EQ(user.text("txtRH"), "40.0");
    expectButtons(true, true, true);
}

TEST_F(MixedAirScreen, LeavesNothingToBeTypedIntoTheResults)
{
    open();
    calculate("95", "txtRH", "40");
    for (const char* field : {"txth", "txtSpVol"}) {
        const std::string before = user.text(field);
        user.widget(field)->setFocus();
        user.keys("12");
        EXPECT_EQ(user.text(field), before);
    }
}

TEST_F(MixedAirScreen, RefusesADryBulbThatIsNoNumberAndKeepsTheSaveButtons)
{
    open();
    calculate("95", "txtRH", "40");
    user.type("txtTdb", "abc");
    user.click("btnCALCULATE");
    EXPECT_EQ(user.messages, std::vector{outOfRange});
    expectButtons(false, true, false);
}

TEST_F(MixedAirScreen, TakesTheWholeRangeOfDryBulbsInMetric)
{
    open(true);
    for (const char* tdb : {"125", "-40"}) {
        calculate(tdb, "txtRH", "10");
        EXPECT_TRUE(user.messages.empty()) << tdb;
        EXPECT_NE(user.text("txth"), "") << tdb;
    }
}

TEST_F(MixedAirScreen, ClearsTheStateWhenItOpens)
{
    start();
    user.click("btnAirCalc");
    calculate("70", "txtRH", "50");
    user.choose("mnuMain1");
    user.click("btnMixedAir");
    EXPECT_EQ(StatePoint.Tdb, 0.0F);
    EXPECT_EQ(StatePoint.Grains.kind(), NumberKind::Int16);
    EXPECT_EQ(AirVolume.kind(), NumberKind::Int16);
}

TEST_F(MixedAirScreen, OffersTheReturnVolumeOnTheOtherScreensToo)
{
    open();
    calculate("75", "txtRH", "50");
    save("btnRA", "3000");
    save("btnRA", "3500");
    user.choose("mnuMain1");

    user.click("btnCooling");
    calculate("95", "txtRH", "40");
    answerVolume("btnSaveEA", "0");
    EXPECT_EQ(offeredVolume, "3000");
    EXPECT_EQ(CoolingEnteringAir.AirVolume, 0.0F);
    user.choose("mnuMain1");

    user.click("btnHeating");
    calculate("70", "txtRH", "50");
    answerVolume("btnSaveEnteringAir", "0");
    EXPECT_EQ(offeredVolume, "3000");
    EXPECT_EQ(user.text("txtAirVolume"), "0") << "a typed 0 is a volume like any other here";
    EXPECT_EQ(HeatingEnteringAir.AirVolume, 0.0F);
}

TEST_F(MixedAirScreen, LiesNearerToTheColderStreamAtEqualVolumes)
{
    open();
    calculate("95", "txtRH", "40");
    save("btnSaveOSA", "1000");
    calculate("50", "txtRH", "50");
    save("btnRA", "1000");
    user.click("btnMixedAir");
    const AirSnapshot& warm = MixedOutsideAir;
    const AirSnapshot& cold = MixedReturnAir;
    const double warmMass = 1000.0 / warm.SpVol;
    const double coldMass = 1000.0 / cold.SpVol;
    EXPECT_LT(MixedResultAir.W, (warm.W + cold.W) / 2);
    EXPECT_LT(MixedResultAir.h, (warm.h + cold.h) / 2);
    EXPECT_NEAR(MixedResultAir.h, (warm.h * warmMass + cold.h * coldMass) / (warmMass + coldMass), 1e-4);
}
