// The help window as its reader uses it: mouse and keyboard.

#include "tests/platform/Pdf.h"
#include "tests/platform/SilentServer.h"
#include "tests/platform/help/HelpTest.h"

#include <QClipboard>
#include <QComboBox>
#include <QDesktopServices>
#include <QLineEdit>
#include <QScrollBar>
#include <QTimer>

using namespace help;

namespace {

using Lines = std::vector<std::string>;

class HelpWindowTest : public HelpTest
{
protected:
    void SetUp() override
    {
        HelpTest::SetUp();
        ask(100);
    }
};

TEST_F(HelpWindowTest, ShowsTheContentsTreeWithTheLineOfThePage)
{
    EXPECT_EQ(lines("helpContents"),
              (Lines{"Welcome", "Calculators", "Air & its properties", "Mixed air", "Units"}))
        << "deeper lines are folded in";
    ask(105);
    EXPECT_EQ(lines("helpContents"),
              (Lines{"Welcome", "Calculators", "Air & its properties", "The range", "Mixed air", "Units"}));
    ask(100);
    EXPECT_EQ(currentLine("helpContents"), "Welcome");
    ask(110);
    EXPECT_EQ(currentLine("helpContents"), "Mixed air");
}

TEST_F(HelpWindowTest, OpensPagesFromTheContentsByMouse)
{
    clickLine("helpContents", "Units");
    EXPECT_EQ(heading(), "Units");
    clickLine("helpContents", "Calculators");
    EXPECT_EQ(heading(), "Units") << "a line that is a heading alone opens nothing";
    clickLine("helpContents", "Air & its properties");
    clickLine("helpContents", "The range");
    EXPECT_EQ(heading(), "Air properties");
    EXPECT_GT(page().verticalScrollBar()->value(), 0) << "it goes to the place on the page";
    EXPECT_EQ(currentLine("helpContents"), "The range");
}

TEST_F(HelpWindowTest, OpensPagesFromTheContentsByKeyboard)
{
    press(Qt::Key_F6);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(heading(), "Welcome");
    press(Qt::Key_Return);
    EXPECT_EQ(heading(), "Air properties");
    press(Qt::Key_F6);
    EXPECT_EQ(help().focusWidget(), &page());
}

TEST_F(HelpWindowTest, ListsTheIndexAndOpensItsPages)
{
    showPane(1);
    EXPECT_EQ(lines("helpIndex"),
              (Lines{"dew point", "mixture", "range of the air", "range of the units", "units"}));
    clickLine("helpIndex", "mixture");
    EXPECT_EQ(heading(), "Mixed air");
    clickLine("helpIndex", "range of the units");
    EXPECT_EQ(heading(), "Units");
}

TEST_F(HelpWindowTest, FiltersTheIndexAsTheReaderTypes)
{
    press(Qt::Key_I, Qt::AltModifier);
    press(Qt::Key_K, Qt::AltModifier);
    typeWords("UNIT");
    EXPECT_EQ(lines("helpIndex"), (Lines{"range of the units", "units"}));
    press(Qt::Key_Return);
    EXPECT_EQ(heading(), "Units");
    typeWords("x");
    EXPECT_EQ(lines("helpIndex"), Lines());
    press(Qt::Key_Return);
    EXPECT_EQ(heading(), "Units");
}

TEST_F(HelpWindowTest, SearchesAllPagesAndMarksWhatItFound)
{
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    typeWords("Psychrometer");
    press(Qt::Key_Return);
    EXPECT_EQ(lines("helpSearchResults"), Lines{"Air properties"});
    EXPECT_EQ(part<QLabel>("helpSearchSummary").text(), "1 page");
    press(Qt::Key_Return);
    EXPECT_EQ(heading(), "Air properties");
    EXPECT_EQ(page().marks(), 2);
}

TEST_F(HelpWindowTest, PutsPagesFirstWhoseTitleHasTheWord)
{
    press(Qt::Key_F3);
    typeWords("air");
    click(part<QWidget>("helpFind"), {10, 10});
    EXPECT_EQ(lines("helpSearchResults"), (Lines{"Mixed air", "Air properties", "Welcome", "Units"}));
}

TEST_F(HelpWindowTest, FindsPagesThatHoldAllTheWords)
{
    press(Qt::Key_F3);
    typeWords("english, METRIC");
    press(Qt::Key_Return);
    EXPECT_EQ(lines("helpSearchResults"), Lines{"Units"});
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    typeWords("english nowhere");
    press(Qt::Key_Return);
    EXPECT_EQ(lines("helpSearchResults"), Lines());
    EXPECT_EQ(part<QLabel>("helpSearchSummary").text(), "No page holds all these words.");
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    typeWords(" ?");
    press(Qt::Key_Return);
    EXPECT_EQ(lines("helpSearchResults"), Lines());
}

TEST_F(HelpWindowTest, FindsNoScripts)
{
    press(Qt::Key_F3);
    typeWords("scripted");
    press(Qt::Key_Return);
    EXPECT_EQ(lines("helpSearchResults"), Lines());
}

TEST_F(HelpWindowTest, GoesFromMarkToMark)
{
    press(Qt::Key_F3);
    typeWords("air");
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    EXPECT_EQ(heading(), "Mixed air");
    ASSERT_EQ(page().marks(), 2);
    const int first = page().textCursor().position();
    press(Qt::Key_F3);
    const int second = page().textCursor().position();
    EXPECT_GT(second, first);
    press(Qt::Key_F3);
    EXPECT_EQ(page().textCursor().position(), first);
    clickLink("first page");
    EXPECT_EQ(page().marks(), 0) << "another page begins without marks";
}

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

TEST_F(HelpWindowTest, PrintsThePage)
{
    qputenv("CUPS_SERVER", "/nonexistent/socket");
    ask(105);
    press(Qt::Key_P, Qt::ControlModifier);
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    printTo(folder.filePath("page.pdf"))(*dialog);
    comeToRest();
    std::string text;
    for (int number = 1; number <= pagesOf(folder.filePath("page.pdf")); ++number)
        text += textOf(folder.filePath("page.pdf"), number);
    EXPECT_NE(text.find("Air properties"), std::string::npos);
    EXPECT_NE(text.find("From 0 to 125."), std::string::npos);
}

TEST_F(HelpWindowTest, PrintsNothingOnCancel)
{
    qputenv("CUPS_SERVER", "/nonexistent/socket");
    clickButton("helpPrint");
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    cancel(*dialog);
    comeToRest();
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("sample.chm"));
}

TEST_F(HelpWindowTest, OffersAFileWhenThePrintServerNeverAnswers)
{
    const QString path = folder.filePath("cups.sock");
    const SilentServer server(path);
    qputenv("CUPS_SERVER", path.toUtf8());
    clickButton("helpPrint");
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(child<QComboBox>(*dialog, "printers").count(), 1);
    cancel(*dialog);
}

TEST_F(HelpWindowTest, OpensNoPrintDialogWhenClosedBeforeThePrintServerAnswers)
{
    const QString path = folder.filePath("cups.sock");
    const SilentServer server(path);
    qputenv("CUPS_SERVER", path.toUtf8());
    QTimer::singleShot(0, &help(), &QWidget::hide);
    clickButton("helpPrint");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
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

} // namespace
