#include "platform/PrintServer.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QLibrary>
#include <QPointer>
#include <QPrinterInfo>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <chrono>

namespace {

constexpr std::chrono::seconds longestWait(5);
constexpr qint64 longestAnswer = 500; // milliseconds, to one more question

std::atomic<bool> isQuick = false;

/// Asks for the printers, and then one question more to measure the pace: the first answer may have waited
/// for the server to start.
void ask()
{
    QPrinterInfo::availablePrinterNames();
    QElapsedTimer pace;
    pace.start();
    QPrinterInfo::defaultPrinterName();
    isQuick = pace.elapsed() < longestAnswer;
}

/// Returns false on timeout, or if the server is so slow that the dozens of questions from the main thread
/// would block the window. The asking thread can't be stopped: it keeps running, and no second one is
/// started.
bool answersInTime()
{
    static QPointer<QThread> asking;
    if (asking != nullptr && !asking->isFinished())
        return false;
    asking = QThread::create(ask);
    QEventLoop wait;
    QObject::connect(asking, &QThread::finished, &wait, &QEventLoop::quit);
    QObject::connect(asking, &QThread::finished, asking, &QThread::deleteLater);
    QTimer::singleShot(longestWait, &wait, &QEventLoop::quit);
    asking->start();
    wait.exec(QEventLoop::ExcludeUserInputEvents);
    return (asking == nullptr || asking->isFinished()) && isQuick;
}

/// Sets the server that the toolkit asks from the main thread, since CUPS keeps one per thread. Null is the
/// user's server.
void setServer(const char* server)
{
    constexpr int version = 2;
    QLibrary cups("cups", version); // the same library as the toolkit's
    cups.setLoadHints(QLibrary::PreventUnloadHint);
    using CupsSetServer = void (*)(const char*);
    if (const auto cupsSetServer = reinterpret_cast<CupsSetServer>(cups.resolve("cupsSetServer")))
        cupsSetServer(server);
}

} // namespace

void AskPrintServer()
{
    setServer("/dev/null/no-server");
    QPrinterInfo::availablePrinterNames(); // loads the toolkit's plugin, which must happen in the main thread
    if (answersInTime())
        setServer(nullptr);
}
