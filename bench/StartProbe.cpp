// Linked into a program, this measures one start of it: it waits for the first picture on the screen, prints
// "<nanoseconds from the start of the process to that picture> <processor nanoseconds spent until then>
// <PSS at rest in KiB>", and ends the process.
// A program without it is the same program: nothing of it has to call anything here.

#include "bench/StartProbe.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <string>

namespace {

long long nanosecondsNow()
{
    return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// What all threads of this process have used so far.
long long processorNanoseconds()
{
    timespec used{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return used.tv_sec * 1'000'000'000LL + used.tv_nsec;
}

/// This process's share of the memory it has mapped.
long long pssKiB()
{
    std::ifstream smaps("/proc/self/smaps_rollup");
    std::string line;
    while (std::getline(smaps, line)) {
        if (line.starts_with("Pss:"))
            return std::stoll(line.substr(4));
    }
    return 0;
}

/// Returns once the display server has done all that it was asked before: it answers in order.
void waitForDisplay() { QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, 1, 1); }

class StartProbe : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* const widget = event->type() == QEvent::Paint ? qobject_cast<QWidget*>(watched) : nullptr;
        if (widget != nullptr && widget->isWindow()) {
            QCoreApplication::instance()->removeEventFilter(this);
            // The window's widgets are painted in one go and then sent to the display: look after that.
            QTimer::singleShot(0, this, [this] { firstPictureSent(); });
        }
        return false;
    }

private:
    void firstPictureSent()
    {
        waitForDisplay();
        const long long elapsed = nanosecondsNow() - qEnvironmentVariable(startedAtVariable).toLongLong();
        const long long used = processorNanoseconds();
        QTimer::singleShot(restMilliseconds, this, [elapsed, used] {
            std::printf("%lld %lld %lld\n", elapsed, used, pssKiB());
            QCoreApplication::exit();
        });
    }
};

void watchStart()
{
    auto* const application = QCoreApplication::instance();
    application->installEventFilter(new StartProbe(application));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchStart)
