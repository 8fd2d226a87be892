#include "platform/PrintServer.h"

#include <QEventLoop>
#include <QLibrary>
#include <QPrinterInfo>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <thread>

namespace {

using std::chrono::milliseconds;

constexpr milliseconds longestWait(5000);
constexpr milliseconds longestAnswer(500); // to one more question
constexpr milliseconds betweenLooks(20);

enum class Pace
{
    unknown,
    slow,
    quick
};

/// Set by the asking thread.
std::atomic<Pace> pace;

/// The library of the print system, the same as the toolkit's. It is never unloaded.
QFunctionPointer resolveInCups(const char* function)
{
    constexpr int version = 2;
    QLibrary cups("cups", version);
    cups.setLoadHints(QLibrary::PreventUnloadHint);
    return cups.resolve(function);
}

/// The print system's functions that list the printers, and release the list.
struct PrinterList
{
    int (*get)(void** printers);
    void (*release)(int count, void* printers);

    void ask() const
    {
        void* printers = nullptr;
        const int count = get(&printers);
        release(count, printers);
    }
};

/// Asks twice. The second time measures the pace: the first answer may have waited for the server to start.
void measurePace(PrinterList list)
{
    list.ask();
    const auto start = std::chrono::steady_clock::now();
    list.ask();
    pace = std::chrono::steady_clock::now() - start < longestAnswer ? Pace::quick : Pace::slow;
}

/// Returns false on timeout, or if the server is so slow that the dozens of questions from the main thread
/// would block the window. The asking thread can't be stopped: it keeps running, and no second one is
/// started. It may outlive the toolkit when the process ends, so it uses nothing of the toolkit.
bool answersInTime()
{
    static bool isAsking = false;
    if (isAsking && pace == Pace::unknown)
        return false;
    const PrinterList list{.get = reinterpret_cast<int (*)(void**)>(resolveInCups("cupsGetDests")),
                           .release = reinterpret_cast<void (*)(int, void*)>(resolveInCups("cupsFreeDests"))};
    if (list.get == nullptr || list.release == nullptr)
        return true; // no print system
    isAsking = true;
    pace = Pace::unknown;
    std::thread(measurePace, list).detach();

    QEventLoop wait;
    QTimer look;
    look.callOnTimeout(&wait, [&wait] {
        if (pace != Pace::unknown)
            wait.quit();
    });
    look.start(betweenLooks);
    QTimer::singleShot(longestWait, &wait, &QEventLoop::quit);
    wait.exec(QEventLoop::ExcludeUserInputEvents);
    return pace == Pace::quick;
}

/// Sets the server that the toolkit asks from the main thread, since CUPS keeps one per thread. Null is the
/// user's server.
void setServer(const char* server)
{
    if (const auto set = reinterpret_cast<void (*)(const char*)>(resolveInCups("cupsSetServer")))
        set(server);
}

} // namespace

void AskPrintServer()
{
    setServer("/dev/null/no-server");
    QPrinterInfo::availablePrinterNames(); // loads the toolkit's plugin, which must happen in the main thread
    if (answersInTime())
        setServer(nullptr);
}
