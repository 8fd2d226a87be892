// Only the mouse raises Click and MouseDown of a text field.

#include "tests/platform/forms/TestForms.h"

#include <QTest>

using namespace forms;

class FieldClick : public FormsTest
{
protected:
    static FirstScreen& showRecordingScreen()
    {
        FirstScreen& screen = showFirstScreen();
        screen.txtFirst.onMouseDown(Recorder("MouseDown"));
        screen.txtFirst.onClick(Recorder("Click"));
        return screen;
    }

    void click(Qt::MouseButton button)
    {
        QWidget* const field = user.widget("txtFirst");
        QTest::mouseClick(field, button, Qt::NoModifier, field->rect().center());
    }
};

TEST_F(FieldClick, ComesAfterMouseDown)
{
    showRecordingScreen();
    user.pressMouse("txtFirst");
    EXPECT_EQ(calls, Calls{"MouseDown"});
    user.releaseMouse("txtFirst");
    EXPECT_EQ(calls, (Calls{"MouseDown", "Click"}));
    EXPECT_EQ(user.focus(), "txtFirst");
}

TEST_F(FieldClick, ComesOnEveryClick)
{
    showRecordingScreen();
    user.click("txtFirst");
    user.click("txtFirst");
    EXPECT_EQ(calls, (Calls{"MouseDown", "Click", "MouseDown", "Click"}));
}

TEST_F(FieldClick, ComesOnceForADoubleClick)
{
    showRecordingScreen();
    user.doubleClick("txtFirst");
    EXPECT_EQ(calls, (Calls{"MouseDown", "Click"}));
}

TEST_F(FieldClick, DoesNotComeWithTheTabKey)
{
    FirstScreen& screen = showRecordingScreen();
    screen.Combo1.takeFocus();
    user.key(Qt::Key_Tab); // wraps from the last control to the first
    EXPECT_EQ(user.focus(), "txtFirst");
    EXPECT_TRUE(calls.empty());
}

TEST_F(FieldClick, DoesNotComeWithTheFocusByTheProgram)
{
    showRecordingScreen().txtFirst.takeFocus();
    EXPECT_EQ(user.focus(), "txtFirst");
    EXPECT_TRUE(calls.empty());
}

TEST_F(FieldClick, DoesNotComeWithTheAccessKeyOfItsLabel)
{
    FirstScreen& screen = showRecordingScreen();
    screen.lblFirst.setCaption("&Dry bulb");
    screen.lblFirst.describe(screen.txtFirst);
    screen.btnFirst.takeFocus();
    user.key(Qt::Key_D, Qt::AltModifier);
    EXPECT_EQ(user.focus(), "txtFirst");
    EXPECT_TRUE(calls.empty());
}

TEST_F(FieldClick, DoesNotComeWithTheSpaceBar)
{
    FirstScreen& screen = showRecordingScreen();
    screen.txtFirst.takeFocus();
    user.key(Qt::Key_Space);
    EXPECT_TRUE(calls.empty());
}

TEST_F(FieldClick, DoesNotComeWhenTheMouseIsReleasedOutside)
{
    showRecordingScreen();
    QWidget* const field = user.widget("txtFirst");
    QTest::mousePress(field, Qt::LeftButton, Qt::NoModifier, field->rect().center());
    QTest::mouseRelease(field, Qt::LeftButton, Qt::NoModifier, field->rect().bottomLeft() + QPoint(5, 30));
    EXPECT_EQ(calls, Calls{"MouseDown"});
}

TEST_F(FieldClick, DoesNotComeWhenTheMouseWasPressedElsewhere)
{
    showRecordingScreen();
    user.releaseMouse("txtFirst");
    EXPECT_TRUE(calls.empty());
}

TEST_F(FieldClick, DoesNotComeFromTheOtherButtons)
{
    showRecordingScreen();
    click(Qt::RightButton);
    click(Qt::MiddleButton);
    EXPECT_EQ(Only({"Click"}), Calls{});
}

TEST_F(FieldClick, DoesNotComeFromADisabledField)
{
    FirstScreen& screen = showRecordingScreen();
    screen.txtFirst.disable();
    user.click("txtFirst");
    user.doubleClick("txtFirst");
    EXPECT_TRUE(calls.empty());
    EXPECT_NE(user.focus(), "txtFirst");
}

TEST_F(FieldClick, DoesNotComeFromAFieldInADisabledFrame)
{
    FirstScreen& screen = showRecordingScreen();
    Frame frame(screen, "Frame1", "Frame");
    screen.area()->layout()->addWidget(frame.widget());
    auto* const inside = new QVBoxLayout(frame.widget());
    inside->addWidget(screen.txtFirst.widget());
    comeToRest();
    frame.disable();
    user.click("txtFirst");
    EXPECT_TRUE(calls.empty());
    frame.enable();
    user.click("txtFirst");
    EXPECT_EQ(calls, (Calls{"MouseDown", "Click"}));
}

TEST_F(FieldClick, DoesNotComeWhenMouseDownDisablesTheField)
{
    FirstScreen& screen = showRecordingScreen();
    screen.txtFirst.onMouseDown([&screen] { screen.txtFirst.disable(); });
    user.click("txtFirst");
    EXPECT_TRUE(calls.empty());
}

TEST_F(FieldClick, FindsTheFocusInItsField)
{
    FirstScreen& screen = showRecordingScreen();
    screen.btnFirst.takeFocus();
    screen.txtFirst.onClick([this] { calls.push_back("focus in " + user.focus()); });
    user.click("txtFirst");
    EXPECT_EQ(calls.back(), "focus in txtFirst");
}

TEST_F(FieldClick, KeepsTheTextOfItsField)
{
    FirstScreen& screen = showRecordingScreen();
    screen.txtFirst.setText("50");
    user.click("txtFirst");
    EXPECT_EQ(screen.txtFirst.text(), "50");
}

TEST_F(FieldClick, ReachesAFieldThatLeftTheTabOrder)
{
    FirstScreen& screen = showRecordingScreen();
    screen.txtFirst.leaveTabOrder();
    screen.Combo1.takeFocus();
    user.key(Qt::Key_Tab);
    EXPECT_EQ(user.focus(), "txtSecond");
    user.click("txtFirst");
    EXPECT_EQ(calls, (Calls{"MouseDown", "Click"}));
    EXPECT_EQ(user.focus(), "txtFirst");
}
