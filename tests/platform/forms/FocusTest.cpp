// Where the focus goes by the program.

#include "tests/platform/forms/TestForms.h"

#include <QLineEdit>
#include <QMenuBar>
#include <QTest>

namespace {

std::string selectedText(const TextField& field)
{
    return static_cast<QLineEdit*>(field.widget())->selectedText().toStdString();
}

} // namespace

using FocusByTheProgram = FormsTest;

TEST_F(FocusByTheProgram, SelectsTheTextOfAField)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtSecond.setText("1000");
    screen.txtSecond.takeFocus();
    EXPECT_EQ(selectedText(screen.txtSecond), "1000");
    user.keys("5");
    EXPECT_EQ(user.text("txtSecond"), "5");
}

TEST_F(FocusByTheProgram, SelectsTheTextOfAFieldThatAlreadyHasTheFocus)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtSecond.takeFocus();
    screen.txtSecond.setText("1000");
    screen.txtSecond.takeFocus();
    user.keys("5");
    EXPECT_EQ(user.text("txtSecond"), "5");
}

class FocusAfterAHandler : public FormsTest
{
protected:
    /// Presses the first button, whose handler is given.
    void press(const Handler& handler)
    {
        FirstScreen& screen = form<FirstScreen>();
        screen.btnFirst.onClick(handler);
        screen.btnFirst.takeFocus();
        user.key(Qt::Key_Space);
    }
};

TEST_F(FocusAfterAHandler, GoesToTheButtonThatItEnabled)
{
    FirstScreen& screen = showFirstScreen();
    screen.btnSecond.disable();
    press([&screen] {
        screen.btnFirst.disable();
        screen.btnSecond.enable();
    });
    EXPECT_EQ(user.focus(), "btnSecond");
}

TEST_F(FocusAfterAHandler, StaysWhereTheHandlerPutIt)
{
    FirstScreen& screen = showFirstScreen();
    screen.btnSecond.disable();
    press([&screen] {
        screen.btnFirst.disable();
        screen.btnSecond.enable();
        screen.txtThird.takeFocus();
    });
    EXPECT_EQ(user.focus(), "txtThird");
}

TEST_F(FocusAfterAHandler, StaysOnAControlThatWasNotDisabled)
{
    FirstScreen& screen = showFirstScreen();
    screen.btnSecond.disable();
    press([&screen] { screen.btnSecond.enable(); });
    EXPECT_EQ(user.focus(), "btnFirst");
}

TEST_F(FocusAfterAHandler, IgnoresAButtonThatIsDisabledAgain)
{
    FirstScreen& screen = showFirstScreen();
    screen.btnSecond.disable();
    press([&screen] {
        screen.btnFirst.disable();
        screen.btnSecond.enable();
        screen.btnSecond.disable();
    });
    EXPECT_NE(user.focus(), "btnSecond");
}

TEST_F(FocusAfterAHandler, GoesToAButtonThatWasEnabledBefore)
{
    FirstScreen& screen = showFirstScreen();
    screen.btnSecond.onClick([&screen] {
        screen.btnSecond.disable();
        screen.btnFirst.enable();
    });
    screen.btnSecond.takeFocus();
    user.key(Qt::Key_Space);
    EXPECT_EQ(user.focus(), "btnFirst");
}

TEST_F(FocusAfterAHandler, DoesNotGoToAButtonThatAnEarlierHandlerEnabled)
{
    FirstScreen& screen = showFirstScreen();
    screen.btnSecond.onClick([&screen] { screen.btnFirst.enable(); });
    screen.btnSecond.takeFocus();
    user.key(Qt::Key_Space);
    screen.btnSecond.onClick([&screen] { screen.btnSecond.disable(); });
    user.key(Qt::Key_Space);
    EXPECT_EQ(user.focus(), "Combo1"); // the next control
}

TEST_F(FocusAfterAHandler, DoesNotGoToAButtonThatNoHandlerEnabled)
{
    FirstScreen& screen = showFirstScreen();
    screen.btnFirst.enable();
    screen.btnSecond.onClick([&screen] { screen.btnSecond.disable(); });
    screen.btnSecond.takeFocus();
    user.key(Qt::Key_Space);
    EXPECT_EQ(user.focus(), "Combo1"); // the next control
}

/// A screen with a command directly on its menu bar.
class CommandForm : public Form
{
public:
    CommandForm() : Form("CommandForm", FormKind::Screen)
    {
        addToMenuBar(mnuCommand);
        setSize(3000, 2000);
    }

    MenuCommand mnuCommand{*this, "mnuCommand", "&Command"};
};

using CommandOnTheMenuBar = FormsTest;

TEST_F(CommandOnTheMenuBar, IsNotHighlightedWhileItsHandlerRuns)
{
    CommandForm& screen = form<CommandForm>();
    screen.Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(screen.window()));
    auto* const bar = screen.window()->findChild<QMenuBar*>();
    bool wasHighlighted = true;
    screen.mnuCommand.onClick([&] { wasHighlighted = bar->activeAction() != nullptr; });
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier,
                      bar->actionGeometry(screen.mnuCommand.action()).center());
    EXPECT_FALSE(wasHighlighted);
}
