// Names, captions and visibility of controls.

#include "tests/platform/forms/TestForms.h"

#include <QLabel>

using namespace forms;

using Names = FormsTest;

TEST_F(Names, AreThoseOfTheControls)
{
    FirstScreen& screen = showFirstScreen();
    Label txtBTU(screen, "txtBTU(1)");
    Frame frame(screen, "Frame1");
    EXPECT_EQ(User::findWindow("FirstScreen"), screen.window());
    EXPECT_EQ(user.widget("txtFirst"), screen.txtFirst.widget());
    EXPECT_EQ(user.widget("btnFirst"), screen.btnFirst.widget());
    EXPECT_EQ(user.widget("lblFirst"), screen.lblFirst.widget());
    EXPECT_EQ(user.widget("Combo1"), screen.Combo1.widget());
    EXPECT_EQ(user.widget("txtBTU(1)"), txtBTU.widget());
    EXPECT_EQ(user.widget("Frame1"), frame.widget());
}

TEST_F(Names, ReachAssistiveTechnology)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.setAccessibleName("Dry bulb temperature, degrees Fahrenheit");
    screen.btnFirst.setToolTip("Psychrometric Calculation");
    EXPECT_EQ(user.widget("txtFirst")->accessibleName(), "Dry bulb temperature, degrees Fahrenheit");
    EXPECT_EQ(user.widget("btnFirst")->toolTip(), "Psychrometric Calculation");
}

using Captions = FormsTest;

TEST_F(Captions, KeepTheirBlanksAndMarkup)
{
    FirstScreen& screen = showFirstScreen();
    screen.setCaption(" Air Properties Calculator - (English Units)");
    screen.lblFirst.setCaption(" <b>\u00B0 F & more</b> ");
    screen.btnFirst.setCaption("&Heating Load ");
    EXPECT_EQ(user.title(), " Air Properties Calculator - (English Units)");
    EXPECT_EQ(screen.caption(), user.title());
    EXPECT_EQ(user.text("lblFirst"), " <b>\u00B0 F & more</b> ");
    EXPECT_EQ(screen.lblFirst.caption(), user.text("lblFirst"));
    EXPECT_EQ(qobject_cast<QLabel*>(user.widget("lblFirst"))->textFormat(), Qt::PlainText);
    EXPECT_EQ(user.text("btnFirst"), "&Heating Load ");
}

TEST_F(Captions, OfAFrameChange)
{
    FirstScreen& screen = showFirstScreen();
    Frame frame(screen, "Frame1", "Enter One of These 5 Items");
    EXPECT_EQ(user.text("Frame1"), "Enter One of These 5 Items");
    frame.setCaption("Verify");
    EXPECT_EQ(user.text("Frame1"), "Verify");
    EXPECT_EQ(frame.caption(), "Verify");
}

TEST_F(Captions, OfALabelGrowInSteps)
{
    FirstScreen& screen = showFirstScreen();
    const double normal = screen.lblFirst.widget()->font().pointSizeF();
    screen.lblFirst.setFontSize(150, true);
    EXPECT_NEAR(screen.lblFirst.widget()->font().pointSizeF(), normal * 1.5, 0.1);
    EXPECT_TRUE(screen.lblFirst.widget()->font().bold());
}

using Visibility = FormsTest;

TEST_F(Visibility, OfAControlFollowsTheProgram)
{
    FirstScreen& screen = form<FirstScreen>();
    screen.txtFirst.hide();
    showFirstScreen();
    EXPECT_FALSE(user.isVisible("txtFirst"));
    EXPECT_TRUE(user.isVisible("txtSecond"));
    screen.txtFirst.show();
    EXPECT_TRUE(user.isVisible("txtFirst"));
}
