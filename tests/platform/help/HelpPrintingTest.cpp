// Pages of the help on paper.

#include "tests/platform/Pdf.h"
#include "tests/platform/SilentServer.h"
#include "tests/platform/help/HelpWindowTest.h"

#include <QComboBox>
#include <QTimer>

/// The print dialog. @throws std::runtime_error if no dialog is open
static QDialog& openDialog()
{
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr)
        throw std::runtime_error("no dialog");
    return *dialog;
}

TEST_F(HelpWindowTest, PrintsThePage)
{
    qputenv("CUPS_SERVER", "/nonexistent/socket");
    ask(105);
    press(Qt::Key_P, Qt::ControlModifier);
    PrintToFile(folder.filePath("page.pdf"))(openDialog());
    comeToRest();
    std::string text;
    for (int number = 1; number <= PagesOf(folder.filePath("page.pdf")); ++number)
        text += TextOf(folder.filePath("page.pdf"), number);
    EXPECT_NE(text.find("Air properties"), std::string::npos);
    EXPECT_NE(text.find("From 0 to 125."), std::string::npos);
}

TEST_F(HelpWindowTest, PrintsNothingOnCancel)
{
    qputenv("CUPS_SERVER", "/nonexistent/socket");
    clickButton("helpPrint");
    Cancel(openDialog());
    comeToRest();
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("sample.chm"));
}

TEST_F(HelpWindowTest, OffersAFileWhenThePrintServerNeverAnswers)
{
    const QString path = folder.filePath("cups.sock");
    const SilentServer server(path);
    qputenv("CUPS_SERVER", path.toUtf8());
    clickButton("helpPrint");
    EXPECT_EQ(Child<QComboBox>(openDialog(), "printers").count(), 1);
    Cancel(openDialog());
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
