// bench_calculate: the time from a press of "Calculate Properties" until all the fields that it fills are
// painted and sent to the display server.

#include "bench/Quantiles.h"
#include "bench/Scratch.h"
#include "platform/forms/Forms.h"
#include "screens/AirPropertiesCalc.h"
#include "shell/MainForm.h"
#include "shell/Program.h"
#include "shell/Store.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPixmap>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <map>
#include <set>
#include <stdexcept>
#include <string>

using namespace forms;

namespace {

constexpr int presses = 300;
constexpr double frameMilliseconds = 1000.0 / 60;

/// The input for one calculation: a humidity item that depends on the dry bulb.
struct Item
{
    const char* field;
    double atNoughtDryBulb;
    double perDegree; ///< per degree of dry bulb
};

struct Units
{
    const char* title;
    const char* storedMetric;
    double lowestTdb;
    double tdbSpan;
    std::vector<Item> items;
};

const Units english{
    "English",
    "False",
    60,
    60,
    {{"txtTwb", -6.5, 1}, {"txttd", -18.7, 1}, {"txtRH", 47, 0}, {"txtW", 0.0061, 0}, {"txtGrains", 41, 0}}};
const Units metric{
    "Metric", "True", 16, 33, {{"txtTwb", -3.1, 1}, {"txttd", -10.7, 1}, {"txtRH", 47, 0}, {"txtW", 6.1, 0}}};

/// Records which of the fields were painted.
class PaintWatch : public QObject
{
public:
    std::set<const QObject*> painted;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            painted.insert(watched);
        return false;
    }
};

/// Returns when the display server has processed all earlier requests. It answers in order.
void waitForDisplay() { QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, 1, 1); }

/// The calculator on the screen and its user.
class Calculator
{
public:
    Calculator() : window(openCalculator())
    {
        messageCloser.callOnTimeout([] { closeMessage(); });
        messageCloser.start(1000);
        if (!QTest::qWaitForWindowExposed(window))
            throw std::runtime_error("the window was not shown");
        for (QLineEdit* field : window->findChildren<QLineEdit*>())
            field->installEventFilter(&watch);
    }

    void enter(double tdb, const Item& item)
    {
        QTest::mouseClick(field(item.field), Qt::LeftButton); // clears the other items
        type("txtTdb", tdb);
        type(item.field, item.atNoughtDryBulb + item.perDegree * tdb);
        QTest::qWait(1);
    }

    /// Presses the button.
    /// @return milliseconds until every field with a new text was painted
    double press()
    {
        const std::map<QLineEdit*, QString> before = texts();
        watch.painted.clear();
        QElapsedTimer clock;
        clock.start();
        QTest::mouseClick(window->findChild<QWidget*>("btnCALCULATE"), Qt::LeftButton);
        const std::set<const QObject*> awaited = changedSince(before);
        while (!std::includes(watch.painted.begin(), watch.painted.end(), awaited.begin(), awaited.end()))
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        waitForDisplay();
        return static_cast<double>(clock.nsecsElapsed()) / 1e6;
    }

private:
    static QWidget* openCalculator()
    {
        StartProgram();
        QTest::mouseClick(form<MainForm>().window()->findChild<QWidget*>("btnAirCalc"), Qt::LeftButton);
        return form<AirPropertiesCalc>().window();
    }

    QLineEdit* field(const char* name) const { return window->findChild<QLineEdit*>(name); }

    void type(const char* name, double number) const
    {
        field(name)->selectAll();
        QTest::keyClicks(field(name), QString::number(number, 'g', 4));
    }

    std::map<QLineEdit*, QString> texts() const
    {
        std::map<QLineEdit*, QString> all;
        for (QLineEdit* each : window->findChildren<QLineEdit*>())
            all.emplace(each, each->text());
        return all;
    }

    /// The fields whose text has changed. All but two are empty before a press.
    std::set<const QObject*> changedSince(const std::map<QLineEdit*, QString>& before) const
    {
        constexpr std::size_t fewest = 5;
        std::set<const QObject*> changed;
        for (const auto& [each, text] : before) {
            if (each->text() != text && each->isVisible())
                changed.insert(each);
        }
        if (changed.size() < fewest)
            throw std::runtime_error("a press did not fill the fields");
        return changed;
    }

    /// Closes a message box, which would otherwise stay open forever.
    static void closeMessage()
    {
        if (QWidget* const box = QApplication::activeModalWidget())
            box->close();
    }

    PaintWatch watch;
    QTimer messageCloser;
    QWidget* window;
};

void measure(const Units& units)
{
    StoreText("Metric_Units", units.storedMetric);
    Calculator calculator;
    std::vector<double> times;
    for (int count = 0; count < presses; ++count) {
        const Item& item = units.items[static_cast<std::size_t>(count) % units.items.size()];
        calculator.enter(units.lowestTdb + units.tdbSpan * count / presses, item);
        times.push_back(calculator.press());
    }
    std::printf("  %-8s %7.2f %7.2f %7.2f   %5.1f %%\n", units.title, Median(times), Quantile(times, 0.99),
                Quantile(times, 1), 100 * Quantile(times, 1) / frameMilliseconds);
    FormRegistry::clear();
}

void measureAll()
{
    const ScratchSettings settings;
    UseOffscreenWithoutDisplay();
    int argumentCount = 1;
    char name[] = "bench_calculate";
    char* arguments[] = {name, nullptr};
    const QApplication application(argumentCount, arguments);
    std::printf("Calculate Properties: %d presses, until all fields are shown, on %s\n", presses,
                DisplayInUse());
    std::printf("  %-8s %7s %7s %7s   worst of a frame of %.1f ms\n", "ms", "median", "99 %", "worst",
                frameMilliseconds);
    measure(english);
    measure(metric);
}

} // namespace

int main()
{
    try {
        measureAll();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "bench_calculate: %s\n", failure.what());
        return EXIT_FAILURE;
    }
}
