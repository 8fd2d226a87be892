// Measures one start of the program it is linked into. It waits for the first frame on the screen, prints
// "<nanoseconds from process start to that frame> <processor nanoseconds until then> <PSS at rest in KiB>",
// and ends the process.
// The program needs no changes: it doesn't call anything here.

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

/// The processor time of all threads of this process so far.
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

/// Returns when the display server has processed all earlier requests. It answers in order.
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
            // The window's widgets are painted together and then sent to the display. Continue after that.
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
