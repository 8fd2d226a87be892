// What the chart's window stores, and its life beside the other windows.

#include "tests/chart/ChartInWindow.h"

#include <QFile>
#include <QStandardPaths>

namespace {

QByteArray settingsFile()
{
    QFile file(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Dunmoor.ini");
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The text of a group of the settings file.
QByteArray group(const QByteArray& name)
{
    const QByteArray all = settingsFile();
    const auto start = all.indexOf("[" + name + "]\n");
    const auto end = all.indexOf("\n[", start);
    return start < 0 ? "" : all.mid(start, end < 0 ? -1 : end + 1 - start).trimmed();
}

} // namespace

TEST_F(ChartInWindow, StoresTheSwitchesInAGroupOfTheirOwn)
{
    store("Pressure_psi", "13.5");
    start();
    const QByteArray required = group("Settings");
    open();
    EXPECT_EQ(group("Chart"), "");
    toggle("chkMollier");
    toggle("chkEnthalpy");
    EXPECT_EQ(group("Chart"), "[Chart]\nEnthalpy=False\nMollier=True");
    EXPECT_EQ(group("Settings"), required);
}

TEST_F(ChartInWindow, StartsWithTheStoredSwitches)
{
    SaveSetting("Dunmoor", "Chart", "Mollier", "True");
    SaveSetting("Dunmoor", "Chart", "WetBulb", "False");
    SaveSetting("Dunmoor", "Chart", "Enthalpy", "perhaps");
    start();
    open();
    EXPECT_TRUE(part<QAbstractButton>("chkMollier").isChecked());
    EXPECT_FALSE(part<QAbstractButton>("chkWetBulb").isChecked());
    EXPECT_TRUE(part<QAbstractButton>("chkEnthalpy").isChecked());
    EXPECT_TRUE(layout().plane.isMollier) << "the menu's chart";
}

TEST_F(ChartInWindow, IsSilentIfTheSettingsCannotBeRead)
{
    const QString config = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    ASSERT_TRUE(QDir().mkpath(config + "/Dunmoor.ini"));
    start();
    shown();
    EXPECT_EQ(user.messages.size(), 1U) << "of the start";
    open();
    toggle("chkEnthalpy");
    EXPECT_FALSE(chart::Choices::inForce().switches().enthalpy);
    EXPECT_EQ(user.messages.size(), 1U);
    EXPECT_TRUE(QDir(config + "/Dunmoor.ini").isEmpty());
}

TEST_F(ChartInWindow, IsClosedAndOpenedAgainWithItsPins)
{
    start();
    open();
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    window()->close();
    EXPECT_TRUE(QTest::qWaitFor([] { return window() == nullptr; }));
    runHeating();
    EXPECT_EQ(pins().size(), 1U);
    open();
    EXPECT_EQ(part<QTableWidget>("tblStates").rowCount(), 3);
}

TEST_F(ChartInWindow, IsBlockedByAModalFormAndStaysBesideACalculator)
{
    start();
    open();
    bool isBlocked = false;
    inOptions([&] {
        const auto before = pins().size();
        QTest::mouseClick(window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          canvas().mapTo(window(), canvas().rect().center() + QPoint(80, 60)));
        isBlocked = pins().size() == before;
        user.click("btnCancel");
    });
    EXPECT_TRUE(isBlocked);
    user.click("btnAirCalc");
    EXPECT_FALSE(User::findWindow("MainForm")->isVisible());
    EXPECT_TRUE(window()->isVisible());
    QTest::mouseClick(window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      canvas().mapTo(window(), canvas().rect().center() + QPoint(80, 60)));
    EXPECT_EQ(pins().size(), 1U);
}

TEST_F(ChartInWindow, DoesNotKeepTheProgramRunning)
{
    start();
    open();
    QTimer::singleShot(0, qApp, [this] { user.choose("mnuExit"); });
    EXPECT_EQ(QApplication::exec(), 0);
    FormRegistry::clear();
    EXPECT_EQ(window(), nullptr);
}
