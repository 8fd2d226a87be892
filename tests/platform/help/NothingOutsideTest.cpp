// A help page reads nothing outside the help file when shown, searched, printed or copied.

#include "tests/platform/help/HelpTest.h"

#include <QClipboard>
#include <QMimeData>
#include <QPrinter>

#include <sys/inotify.h>
#include <unistd.h>

#include <array>

using namespace help;

namespace {

/// A page that refers to files in the working folder in every possible way, and a watch that reports when
/// they are opened.
class NothingOutside : public HelpTest
{
protected:
    void SetUp() override
    {
        HelpTest::SetUp();
        ASSERT_TRUE(QImage(60, 60, QImage::Format_RGB32).save(path("secret.png")));
        QFile sheet(path("secret.css"));
        ASSERT_TRUE(sheet.open(QIODevice::WriteOnly));
        sheet.write("p { color: #ff0000 }");
        sheet.close();
        QDir::setCurrent(outside.path());
        ASSERT_GE(inotify_add_watch(watch, outside.path().toLocal8Bit().constData(), IN_OPEN), 0);
        showPage(hostilePage());
    }
    void TearDown() override
    {
        EXPECT_FALSE(wasRead());
        BytesOf("secret.css");
        EXPECT_TRUE(wasRead()) << "the watch works";
        close(watch);
        HelpTest::TearDown();
    }

    QString path(const char* name) const { return outside.filePath(name); }
    bool wasRead() const
    {
        std::array<char, 4096> events{};
        return read(watch, events.data(), events.size()) > 0;
    }

private:
    QByteArray hostilePage() const
    {
        QString head;
        QString body;
        for (const QString& folderName : {"file://" + outside.path() + "/", outside.path() + "/", QString(),
                                          "../" + outside.path() + "/", "/../.." + outside.path() + "/"}) {
            const QString sheet = folderName + "secret.css";
            head += "<link rel=\"stylesheet\" type=\"text/css\" href=\"" + sheet + "\">";
            head += "<style>@import url(" + sheet + ");</style>";
            body += QString("<img src=\"%1secret.png\"><img width=\"40\" src=\"%1secret.png\">"
                            "<table background=\"%1secret.png\"><tr><td>x</td></tr></table>"
                            "<p style=\"background-image: url(%1secret.png)\">x</p>")
                        .arg(folderName);
        }
        return ("<head>" + head + "</head><p>Words of a page.</p>" + body).toUtf8();
    }

    QTemporaryDir outside;
    const int watch = inotify_init1(IN_NONBLOCK);
};

TEST_F(NothingOutside, IsShown)
{
    EXPECT_TRUE(page().toPlainText().startsWith("Words of a page."));
    page().viewport()->grab();
    press(Qt::Key_End, Qt::ControlModifier);
    page().viewport()->grab();
}

TEST_F(NothingOutside, IsSearched)
{
    press(Qt::Key_F3);
    typeWords("words");
    press(Qt::Key_Return);
    EXPECT_EQ(lines("helpSearchResults").size(), 1U);
}

TEST_F(NothingOutside, IsPrinted)
{
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder.filePath("page.pdf"));
    page().print(printer);
    EXPECT_TRUE(QFile::exists(folder.filePath("page.pdf")));
}

TEST_F(NothingOutside, IsCopied)
{
    page().selectAll();
    page().copy();
    const QMimeData& copied = *QGuiApplication::clipboard()->mimeData();
    EXPECT_TRUE(copied.text().startsWith("Words of a page."));
    for (const QString& format : copied.formats())
        EXPECT_FALSE(copied.data(format).isEmpty()) << format.toStdString();
}

TEST_F(NothingOutside, IsLoadedByAnyAddress)
{
    const QVariant missing = page().loadResource(QTextDocument::ImageResource, QUrl("missing.png"));
    EXPECT_FALSE(missing.isNull()) << "the toolkit looks elsewhere otherwise";
    for (const QUrl& address :
         {QUrl::fromLocalFile(path("secret.png")), QUrl("http://127.0.0.1/a.png"),
          QUrl("qrc:/qt-project.org/qmessagebox/images/qtlogo-64.png"),
          QUrl("data:image/gif;base64,R0lGODlhAQABAIAAAAAAAP///yH5BAEAAAAALAAAAAABAAEAAAIBRAA7")})
        EXPECT_EQ(page().loadResource(QTextDocument::ImageResource, address), missing);
    for (const int type : {int(QTextDocument::StyleSheetResource), int(QTextDocument::HtmlResource), 99}) {
        const QVariant loaded = page().loadResource(type, QUrl::fromLocalFile(path("secret.css")));
        EXPECT_FALSE(loaded.isNull()) << type;
        EXPECT_EQ(loaded.toString(), "");
    }
}

} // namespace
