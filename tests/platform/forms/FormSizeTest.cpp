// Sizes and positions of forms.

#include "tests/platform/forms/TestForms.h"

#include <QFont>
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
