// The page of the help window as its reader uses it: mouse and keyboard.

#include "tests/platform/help/HelpWindowTest.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QScrollBar>

TEST_F(HelpWindowTest, GoesBackAndForwardByMouse)
{
    EXPECT_FALSE(button("helpBack").isEnabled());
    clickLink("mixed air");
    clickLink("first page");
    clickButton("helpBack");
    EXPECT_EQ(heading(), "Mixed air");
    clickButton("helpBack");
    EXPECT_EQ(heading(), "Welcome");
    EXPECT_EQ(currentLine("helpContents"), "Welcome");
    EXPECT_FALSE(button("helpBack").isEnabled());
    clickButton("helpForward");
    EXPECT_EQ(heading(), "Mixed air");
    EXPECT_TRUE(button("helpForward").isEnabled());
}

TEST_F(HelpWindowTest, GoesBackForwardAndHomeByKeyboard)
{
    ask(110);
    ask(105);
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(heading(), "Mixed air");
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(heading(), "Air properties");
    press(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(heading(), "Welcome");
    ask(110);
    clickButton("helpHome");
    EXPECT_EQ(heading(), "Welcome");
}

TEST_F(HelpWindowTest, FollowsLinksToPagesPlacesAndFolders)
{
    clickLink("range");
    EXPECT_EQ(heading(), "Air properties");
    EXPECT_GT(page().verticalScrollBar()->value(), 0);
    ask(100);
    clickLink("units");
    EXPECT_EQ(heading(), "Units");
    clickLink("Air");
    EXPECT_EQ(heading(), "Air properties");
}

TEST_F(HelpWindowTest, FollowsLinksByKeyboard)
{
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_EQ(heading(), "Air properties");
}

TEST_F(HelpWindowTest, SaysThatALinkLeadsNowhere)
{
    clickLink("link to nowhere");
    EXPECT_EQ(page().toPlainText().toStdString(), "No such page\nThis help has no page \"missing.html\".");
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(heading(), "Welcome");
}

TEST_F(HelpWindowTest, OpensMailLinksInTheUsersProgram)
{
    QTextBrowser program; // replaces the user's mail program
    QDesktopServices::setUrlHandler("mailto", &program, "setSource");
    clickLink("the support");
    QDesktopServices::unsetUrlHandler("mailto");
    EXPECT_EQ(program.source(), QUrl("mailto:support@example.com"));
    EXPECT_EQ(heading(), "Welcome");
}

TEST_F(HelpWindowTest, ShowsPicturesAsWideAsThePageAsks)
{
    const QVariant asked = page().loadResource(QTextDocument::ImageResource, QUrl("images/chart.png"));
    EXPECT_EQ(asked.value<QImage>().deviceIndependentSize(), QSizeF(48, 48));
    ask(4000);
    const QVariant own = page().loadResource(QTextDocument::ImageResource, QUrl("../images/chart.png"));
    EXPECT_EQ(own.value<QImage>().deviceIndependentSize(), QSizeF(64, 64));
    const QImage shown = page().viewport()->grab().toImage();
    EXPECT_NE(shown.pixelColor(30, 110), page().palette().color(QPalette::Base)) << "it is on the page";
}

TEST_F(HelpWindowTest, MakesTheTextLargerSmallerAndNormal)
{
    const auto size = [] { return page().document()->defaultFont().pointSizeF(); };
    const double normal = size();
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_NEAR(size(), normal * 1.1, 1e-9);
    press(Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_NEAR(size(), normal * 1.2, 1e-9);
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_NEAR(size(), normal, 1e-9);
    press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_NEAR(size(), normal * 0.9, 1e-9);
    clickButton("helpNormal");
    clickButton("helpLarger");
    EXPECT_NEAR(size(), normal * 1.1, 1e-9);
    clickButton("helpSmaller");
    clickButton("helpSmaller");
    EXPECT_NEAR(size(), normal * 0.9, 1e-9);
    for (int press = 0; press < 50; ++press)
        clickButton("helpSmaller");
    EXPECT_GT(size(), normal * 0.5);
    ask(105);
    EXPECT_LT(size(), normal) << "the next page keeps it";
}

TEST_F(HelpWindowTest, CopiesTheTextChosen)
{
    EXPECT_FALSE(button("helpCopy").isEnabled());
    ask(110);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains("Two streams of air meet."));
    QGuiApplication::clipboard()->clear();
    clickButton("helpCopy");
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains("Two streams of air meet."));
}

TEST_F(HelpWindowTest, ClosesOnEscapeFromEverywhere)
{
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    typeWords("air");
    press(Qt::Key_Escape);
    EXPECT_EQ(findHelp(), nullptr);
}

TEST_F(HelpWindowTest, HasNamesForEverybodyAndNoTwoAccessKeysAlike)
{
    QStringList keys;
    for (const QWidget* widget : help().findChildren<QWidget*>()) {
        const bool isControl = widget->objectName().startsWith("help") &&
                               widget->focusPolicy() != Qt::NoFocus &&
                               qobject_cast<const QTabWidget*>(widget) == nullptr;
        const QString name = widget->accessibleName() + widget->property("text").toString();
        EXPECT_TRUE(!isControl || !name.isEmpty()) << widget->objectName().toStdString();
        const QString key = QKeySequence::mnemonic(widget->property("text").toString()).toString();
        if (!key.isEmpty())
            keys.append(key);
    }
    const auto& panes = part<QTabWidget>("helpPanes");
    for (int pane = 0; pane < panes.count(); ++pane)
        keys.append(QKeySequence::mnemonic(panes.tabText(pane)).toString());
    EXPECT_EQ(keys.size(), 6);
    EXPECT_EQ(keys.removeDuplicates(), 0) << keys.join(' ').toStdString();
}
