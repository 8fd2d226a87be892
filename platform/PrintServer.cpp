#include "platform/PrintServer.h"

#include <QEventLoop>
#include <QLibrary>
#include <QPointer>
#include <QPrinterInfo>
#include <QThread>
#include <QTimer>

#include <chrono>

namespace {

constexpr std::chrono::seconds longestWait(5);

/// Returns false on timeout. The asking thread can't be stopped: it keeps running, and no second one is
/// started.
bool answersInTime()
{
    static QPointer<QThread> asking;
    if (asking != nullptr && !asking->isFinished())
        return false;
    asking = QThread::create([] { QPrinterInfo::availablePrinterNames(); });
    QEventLoop wait;
    QObject::connect(asking, &QThread::finished, &wait, &QEventLoop::quit);
    QObject::connect(asking, &QThread::finished, asking, &QThread::deleteLater);
    QTimer::singleShot(longestWait, &wait, &QEventLoop::quit);
    asking->start();
    wait.exec(QEventLoop::ExcludeUserInputEvents);
    return asking == nullptr || asking->isFinished();
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
