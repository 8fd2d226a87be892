// What a reader copies from the tables of the help.

#include "tests/platform/help/HelpTest.h"

#include <QClipboard>
#include <QMimeData>

using namespace help;

namespace {

class HelpCopy : public HelpTest
{
protected:
    /// Drags the mouse from the first character of one text to the end of another, and copies.
    static std::string copyFromTo(const QString& from, const QString& to)
    {
        QTextCursor start = page().document()->find(from);
        start.setPosition(start.selectionStart());
        const QTextCursor end = page().document()->find(to);
        QWidget& view = *page().viewport();
        const QPoint first = page().cursorRect(start).center();
        const QPoint last = page().cursorRect(end).center();
        QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, first);
        QTest::mouseMove(&view, (first + last) / 2);
        QTest::mouseMove(&view, last);
        QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, last);
        comeToRest();
        press(Qt::Key_C, Qt::ControlModifier);
        return QGuiApplication::clipboard()->text().toStdString();
    }
};

TEST_F(HelpCopy, KeepsTheColumnsOfATable)
{
    ask(105);
    EXPECT_EQ(copyFromTo("Dry bulb", "35"), "Dry bulb\tSomething\n20\t33\n21\t35");
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->html().contains("<table"));
}

TEST_F(HelpCopy, CopiesOneColumnOfATable)
{
    ask(105);
    EXPECT_EQ(copyFromTo("20", "22"), "20\n21\n22");
}

TEST_F(HelpCopy, KeepsTheTextAroundATable)
{
    showPage("<p>Before<br>it</p><table><tr><td>a</td><td>b</td></tr><tr><td>c</td><td>d</td></tr></table>"
             "<p>After&nbsp;it</p>");
    EXPECT_EQ(copyFromTo("Before", "After it"), "Before\nit\na\tb\nc\td\nAfter it");
}

TEST_F(HelpCopy, KeepsTheColumnsOfEmptyTallAndWideCells)
{
    showPage("<table><tr><td rowspan=\"2\">tall</td><td>b</td><td>c</td></tr><tr><td></td><td>f</td></tr>"
             "<tr><td colspan=\"2\"><p>wide</p><p>cell<br>here</p></td><td>last</td></tr></table>");
    EXPECT_EQ(copyFromTo("tall", "last"), "tall\tb\tc\n\t\tf\nwide cell here\t\tlast");
}

TEST_F(HelpCopy, CopiesPartOfACellAsItIs)
{
    ask(105);
    EXPECT_EQ(copyFromTo("Something", "Someth"), "Someth");
}

} // namespace
