// Sizes, positions, colors and names of forms and controls.

#include "tests/platform/forms/TestForms.h"

#include <QAction>
#include <QFont>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QPalette>
#include <QScreen>

using namespace forms;

using FormSize = FormsTest;

TEST_F(FormSize, IsGivenInTwipsOfATenthOfAPixel)
{
    FirstScreen& screen = form<FirstScreen>();
    screen.setSize(8000, 6600);
    EXPECT_EQ(screen.window()->size(), QSize(800, 660));
    EXPECT_EQ(screen.width(), 8000);
    EXPECT_EQ(screen.height(), 6600);
}

TEST_F(FormSize, StaysWhenTheFormIsShown)
{
    form<FirstScreen>().setSize(8000, 6600);
    showFirstScreen();
    EXPECT_EQ(form<FirstScreen>().window()->size(), QSize(800, 660));
}

TEST_F(FormSize, NeverShrinks)
{
    FirstScreen& screen = showFirstScreen();
    screen.setSize(8000, 6600);
    screen.window()->resize(500, 300);
    comeToRest();
    EXPECT_EQ(screen.window()->size(), QSize(800, 660));
}

TEST_F(FormSize, MayBeEnlargedByTheUser)
{
    FirstScreen& screen = showFirstScreen();
    screen.setSize(8000, 6600);
    screen.window()->resize(1000, 900);
    comeToRest();
    EXPECT_EQ(screen.width(), 10000);
    EXPECT_EQ(screen.height(), 9000);
}

TEST_F(FormSize, IsLargerWhereTheControlsNeedMore)
{
    FirstScreen& screen = form<FirstScreen>();
    screen.lblFirst.setCaption(std::string(200, 'W'));
    screen.setSize(3000, 2000);
    screen.Show();
    comeToRest();
    EXPECT_GT(screen.width(), 3000);
    EXPECT_GE(screen.lblFirst.widget()->width(), screen.lblFirst.widget()->sizeHint().width());
}

TEST_F(FormSize, GrowsWhenTheControlsComeToNeedMore)
{
    FirstScreen& screen = showFirstScreen();
    screen.setSize(3000, 3500);
    screen.lblFirst.setCaption(std::string(200, 'W'));
    comeToRest();
    EXPECT_GE(screen.lblFirst.widget()->width(), screen.lblFirst.widget()->sizeHint().width());
    screen.lblFirst.setCaption("short");
    comeToRest();
    screen.window()->resize(10, 10);
    comeToRest();
    EXPECT_EQ(screen.window()->size(), QSize(300, 350)) << "what was asked for is still the least";
}

TEST_F(FormSize, HasRoomForLargeLetters)
{
    QFont large = QApplication::font();
    large.setPointSizeF(large.pointSizeF() * 4);
    QApplication::setFont(large);
    FirstScreen& screen = form<FirstScreen>();
    screen.setSize(2000, 1500);
    screen.Show();
    comeToRest();
    EXPECT_GT(screen.height(), 1500);
    EXPECT_GE(screen.btnFirst.widget()->height(), screen.btnFirst.widget()->minimumSizeHint().height());
}

TEST_F(FormSize, FitsItsControls)
{
    FirstDialog& dialog = form<FirstDialog>();
    dialog.fitToControls();
    EXPECT_EQ(dialog.window()->size(), dialog.area()->minimumSizeHint());
    EXPECT_GT(dialog.width(), 0);
}

using FormPlace = FormsTest;

TEST_F(FormPlace, IsGivenInTwips)
{
    FirstScreen& screen = form<FirstScreen>();
    screen.moveTo(1230, 450);
    EXPECT_EQ(screen.window()->pos(), QPoint(123, 45));
    screen.Show();
    comeToRest();
    EXPECT_EQ(screen.window()->pos(), QPoint(123, 45));
}

TEST_F(FormPlace, IsReckonedOnTheScreen)
{
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    EXPECT_EQ(Screen::width(), screen.width() * 10);
    EXPECT_EQ(Screen::height(), screen.height() * 10);
}

TEST_F(FormPlace, IsOnTheScreenWhereverTheProgramPutsIt)
{
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    FirstScreen& screen = form<FirstScreen>();
    screen.moveTo(-1000, -1000);
    EXPECT_EQ(screen.window()->pos(), room.topLeft());
    screen.moveTo(Screen::width(), Screen::height());
    EXPECT_TRUE(room.contains(screen.window()->frameGeometry()));
}

TEST_F(FormSize, IsAtMostThatOfTheScreenAndTheContentScrolls)
{
    FirstScreen& screen = form<FirstScreen>();
    screen.lblFirst.setCaption(std::string(2000, 'W'));
    screen.setSize(3000, 2000);
    screen.Show();
    comeToRest();
    EXPECT_LE(screen.width(), Screen::width());
    EXPECT_GT(screen.area()->width(), screen.window()->width());
}

TEST_F(FormSize, KeepsTheContentTogetherInALargerWindow)
{
    FirstScreen& screen = form<FirstScreen>();
    screen.setSize(6000, 4000);
    screen.keepTogether();
    screen.Show();
    screen.window()->resize(1800, 1200);
    comeToRest();
    EXPECT_EQ(screen.area()->width(), 750);
    EXPECT_EQ(screen.area()->x(), (1800 - 750) / 2);
}

TEST_F(FormPlace, StaysOverHidingAndShowing)
{
    FirstScreen& screen = form<FirstScreen>();
    screen.moveTo(1230, 450);
    screen.Show();
    screen.Hide();
    screen.Show();
    comeToRest();
    EXPECT_EQ(screen.window()->pos(), QPoint(123, 45));
}

class Colouring : public FormsTest
{
protected:
    /// The color at the right end of a control, beside its text.
    static QColor drawnBack(const Control& control)
    {
        comeToRest();
        const QImage picture = control.widget()->grab().toImage();
        return picture.pixelColor(picture.width() - 8, picture.height() / 2);
    }

    static QColor textColour(const Control& control)
    {
        return control.widget()->palette().color(control.widget()->isEnabled() ? QPalette::Active
                                                                               : QPalette::Disabled,
                                                 control.widget()->foregroundRole());
    }

    static void useDarkDesktop()
    {
        QPalette dark(QColor(45, 45, 45));
        dark.setColor(QPalette::Disabled, QPalette::Text, QColor(110, 110, 110));
        QApplication::setPalette(dark);
        ASSERT_EQ(dark.color(QPalette::Text), QColor(Qt::white));
    }
};

TEST_F(Colouring, OfALabelIsDrawn)
{
    FirstScreen& screen = showFirstScreen();
    screen.lblFirst.setBackColour(Colours::Red);
    screen.lblFirst.setForeColour(Colours::White);
    EXPECT_EQ(drawnBack(screen.lblFirst), QColor(255, 0, 0));
    EXPECT_EQ(textColour(screen.lblFirst), QColor(255, 255, 255));
    EXPECT_EQ(screen.lblFirst.backColour(), Colours::Red);
    EXPECT_EQ(screen.lblFirst.foreColour(), Colours::White);
    screen.lblFirst.setBackColour(Colours::Grey);
    EXPECT_EQ(drawnBack(screen.lblFirst), QColor(192, 192, 192));
}

TEST_F(Colouring, OfAFieldIsDrawn)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.setBackColour(Colours::LightGreen);
    EXPECT_EQ(drawnBack(screen.txtFirst), QColor(128, 255, 128));
    EXPECT_EQ(screen.txtFirst.backColour(), Colours::LightGreen);
    screen.txtFirst.disable();
    EXPECT_EQ(drawnBack(screen.txtFirst), QColor(128, 255, 128));
}

TEST_F(Colouring, IsDrawnInABoldFrameToo)
{
    FirstScreen& screen = showFirstScreen();
    Frame frame(screen, "Frame1", "Entering air");
    frame.setBold();
    screen.area()->layout()->addWidget(frame.widget());
    auto* const inside = new QVBoxLayout(frame.widget());
    inside->addWidget(screen.lblFirst.widget());
    inside->addWidget(screen.txtFirst.widget());
    screen.lblFirst.setBackColour(Colours::Red);
    screen.txtFirst.setBackColour(Colours::LightGreen);
    EXPECT_EQ(drawnBack(screen.lblFirst), QColor(255, 0, 0));
    EXPECT_EQ(drawnBack(screen.txtFirst), QColor(128, 255, 128));
    EXPECT_TRUE(frame.widget()->font().bold());
    EXPECT_FALSE(screen.lblFirst.widget()->font().bold());
    EXPECT_FALSE(screen.txtFirst.widget()->font().bold());
}

TEST_F(Colouring, KeepsTheTextReadableOnADarkDesktop)
{
    useDarkDesktop();
    FirstScreen& screen = showFirstScreen();
    EXPECT_EQ(textColour(screen.txtFirst), QColor(Qt::white)) << "a field without a colour is the desktop's";
    for (const Colour colour :
         {Colours::LightGreen, Colours::LightCyan, Colours::LightYellow, Colours::Grey}) {
        screen.txtFirst.setBackColour(colour);
        screen.lblFirst.setBackColour(colour);
        EXPECT_EQ(textColour(screen.txtFirst), QColor(Qt::black));
        EXPECT_EQ(textColour(screen.lblFirst), QColor(Qt::black));
    }
}

TEST_F(Colouring, KeepsTheTextOfADisabledFieldReadable)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.disable();
    screen.txtFirst.setBackColour(Colours::Grey);
    EXPECT_EQ(textColour(screen.txtFirst), QColor(Qt::black));
}

TEST_F(Colouring, TakesTheTextsColourFromTheProgramInEitherOrder)
{
    FirstScreen& screen = showFirstScreen();
    screen.lblFirst.setForeColour(Colours::White);
    screen.lblFirst.setBackColour(Colours::LightYellow);
    EXPECT_EQ(screen.lblFirst.foreColour(), Colours::White);
}

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
