// A print server that accepts connections and never answers, or answers again later.

#include "platform/PrintServer.h"

#include "platform/PrintDialog.h"
#include "platform/Printer.h"
#include "tests/platform/AnyForm.h"
#include "tests/platform/Dialogs.h"
#include "tests/platform/SilentServer.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <chrono>
#include <memory>
#include <string_view>
#include <thread>

using namespace forms;

namespace {

/// A server that goes away in the last moments of the process, after the toolkit.
struct LastServer
{
    ~LastServer()
    {
        if (server != nullptr) {
            server.reset();
            std::this_thread::sleep_for(std::chrono::milliseconds(300)); // time for the asking thread
        }
    }
    std::unique_ptr<SilentServer> server;
} lastServer;

/// Answers each request, but only after a while, that it knows nothing.
class SlowServer : public SilentServer
{
public:
    using SilentServer::SilentServer;
    ~SlowServer()
    {
        shutdown(socket, SHUT_RDWR); // ends accept()
        answering.join();
    }
    SlowServer(const SlowServer&) = delete;
    SlowServer& operator=(const SlowServer&) = delete;

private:
    void answerAll() const
    {
        for (int asking = accept(socket, nullptr, nullptr); asking >= 0;
             asking = accept(socket, nullptr, nullptr)) {
            char request[4096];
            while (recv(asking, request, sizeof request, 0) > 0) {
                std::this_thread::sleep_for(std::chrono::milliseconds(700));
                constexpr std::string_view answer = "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n";
                if (send(asking, answer.data(), answer.size(), MSG_NOSIGNAL) < 0)
                    break;
            }
            close(asking);
        }
    }

    std::thread answering{[this] { answerAll(); }};
};

/// Counts how often a widget is painted.
class Paintings : public QObject
{
public:
    explicit Paintings(QWidget& painted) : widget(painted)
    {
        widget.installEventFilter(this);
        ask.callOnTimeout([this] { widget.update(); });
        ask.start(50);
    }
    int count = 0;

private:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    QWidget& widget;
    QTimer ask;
};

class PrintServerTest : public testing::Test
{
protected:
    void SetUp() override
    {
        qputenv("CUPS_SERVER", path().toUtf8());
        form<AnyForm>().Show();
    }
    void TearDown() override
    {
        EXPECT_TRUE(dialogs.unexpected.empty()) << dialogs.unexpected.front().toStdString();
        FormRegistry::clear();
    }

    QString path() const { return folder.filePath("cups.sock"); }
    QString pdf() const { return folder.filePath("out.pdf"); }

    /// Opens the dialog, which offers the PDF file alone, and prints there.
    void printToFile()
    {
        dialogs.answer("PrintDialog", [this](QDialog& dialog) {
            EXPECT_EQ(Child<QComboBox>(dialog, "printers").count(), 1);
            EXPECT_EQ(Child<QComboBox>(dialog, "printers").currentText(), "Print to File (PDF)");
            PrintToFile(pdf())(dialog);
        });
        ASSERT_TRUE(ShowPrintDialog(form<AnyForm>()));
        EXPECT_TRUE(CurrentPrinter().printLine("text"));
        EXPECT_TRUE(CurrentPrinter().endDocument());
        EXPECT_TRUE(QFile::remove(pdf()));
    }

    Dialogs dialogs;
    QTemporaryDir folder;
};

TEST_F(PrintServerTest, ThatNeverAnswersLeavesPrintingToAFile)
{
    const SilentServer server(path());
    printToFile();
    printToFile(); // and is not waited for again
}

TEST_F(PrintServerTest, ThatNeverAnswersLeavesTheWindowPainted)
{
    const SilentServer server(path());
    int paintings = 0;
    Paintings window(*form<AnyForm>().area());
    dialogs.answer("PrintDialog", [&](QDialog& dialog) {
        paintings = window.count;
        Cancel(dialog);
    });
    EXPECT_FALSE(ShowPrintDialog(form<AnyForm>()));
    EXPECT_GT(paintings, 5);
}

TEST_F(PrintServerTest, ThatFallsSilentLaterLeavesPrintingToAFile)
{
    printToFile(); // nothing listens yet
    const SilentServer server(path());
    printToFile();
}

TEST_F(PrintServerTest, ThatIsSlowIsNotAskedByTheMainThread)
{
    const SlowServer server(path());
    AskPrintServer();
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(PrinterNames(), std::vector<std::string>{FilePrinter});
    EXPECT_LT(time.elapsed(), 600);
}

TEST_F(PrintServerTest, ThatGoesAwayAgainLeavesPrintingToAFile)
{
    {
        const SilentServer server(path());
        printToFile();
    }
    printToFile();
}

TEST_F(PrintServerTest, ThatNeverAnswersLetsTheWindowBeClosed)
{
    const SilentServer server(path());
    QTimer::singleShot(500, [] { form<AnyForm>().Hide(); });
    EXPECT_FALSE(ShowPrintDialog(form<AnyForm>())); // no dialog comes: see TearDown
}

TEST_F(PrintServerTest, ThatNeverAnswersLetsTheProcessEnd)
{
    EXPECT_EXIT(
        {
            const SilentServer server(path());
            AskPrintServer();
            FormRegistry::clear();
            std::exit(0);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(PrintServerTest, ThatGoesAwayWhileTheProcessEndsCrashesNothing)
{
    EXPECT_EXIT(
        {
            lastServer.server = std::make_unique<SilentServer>(path());
            AskPrintServer();
            FormRegistry::clear();
            qApp->~QCoreApplication();
            std::exit(0);
        },
        testing::ExitedWithCode(0), "");
}

} // namespace
