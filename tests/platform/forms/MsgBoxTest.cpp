// Message boxes as the user sees them.

#include "tests/platform/forms/TestForms.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolTip>

using namespace forms;

class MessageBoxes : public testing::Test
{
protected:
    MessageBoxes() { QCoreApplication::setApplicationName("Dunmoor"); }

    /// Shows a message box, inspects it, and closes it in the given way.
    static void show(const std::string& text, const std::string& title,
                     std::function<void(QMessageBox&)> look)
    {
        bool seen = false;
        QTimer::singleShot(0, qApp, [&seen, look] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            QApplication::processEvents(); // activation moves the focus
            seen = true;
            look(*box);
        });
        MsgBox(text, title);
        EXPECT_TRUE(seen) << "it waits until it is closed";
    }
};

TEST_F(MessageBoxes, ShowTheirTextAndTitle)
{
    show("Input Out of Range, Try Again!", " ERROR", [](QMessageBox& box) {
        EXPECT_EQ(box.text(), "Input Out of Range, Try Again!");
        EXPECT_EQ(box.windowTitle(), " ERROR");
        box.close();
    });
}

TEST_F(MessageBoxes, CarryTheNameOfTheApplicationWithoutATitleOfTheirOwn)
{
    show("a text", "", [](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Dunmoor");
        box.close();
    });
}

TEST_F(MessageBoxes, HaveOneButtonAndNoIcon)
{
    show("a text", "", [](QMessageBox& box) {
        EXPECT_EQ(box.buttons().size(), 1);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
        EXPECT_TRUE(box.iconPixmap().isNull());
        EXPECT_TRUE(box.isModal());
        box.close();
    });
}

TEST_F(MessageBoxes, ShowMarkupAndAmpersandsAsTheyStand)
{
    show("<b>R&H</b>\n100 %", "", [](QMessageBox& box) {
        const auto* const shown = box.findChild<QLabel*>("qt_msgbox_label");
        ASSERT_NE(shown, nullptr);
        EXPECT_EQ(shown->text(), "<b>R&H</b>\n100 %");
        EXPECT_EQ(shown->textFormat(), Qt::PlainText);
        box.close();
    });
}

TEST_F(MessageBoxes, CloseByTheButton)
{
    show("a text", "",
         [](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton); });
}

TEST_F(MessageBoxes, CloseByEscape)
{
    show("a text", "", [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
}

TEST_F(MessageBoxes, CloseByEnterAndSpace)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        show("a text", "", [key](QMessageBox& box) {
            EXPECT_EQ(QApplication::focusWidget(), box.button(QMessageBox::Ok));
            QTest::keyClick(box.button(QMessageBox::Ok), key);
        });
    }
}

TEST_F(MessageBoxes, FollowEachOther)
{
    show("first", "", [](QMessageBox& box) { box.close(); });
    show("second", "", [](QMessageBox& box) {
        EXPECT_EQ(box.text(), "second");
        box.close();
    });
}

TEST_F(MessageBoxes, StandOverTheFormThatIsInUse)
{
    form<FirstScreen>().Show();
    QApplication::processEvents();
    show("a text", "", [](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), form<FirstScreen>().window());
        box.close();
    });
    FormRegistry::clear();
}

TEST_F(MessageBoxes, OutlastATipThatIsTheOnlyWindowInSight)
{
    QToolTip::showText({5, 5}, "a tip");
    ASSERT_TRUE(QToolTip::isVisible());
    show("a text", "", [](QMessageBox& box) {
        QToolTip::hideText();
        ASSERT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(box.text(), "a text");
        box.close();
    });
}
