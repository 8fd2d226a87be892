// The main function of tests that need windows: an application on the offscreen platform with its own
// settings, so that no test sees the user's.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <sys/stat.h>

/// Read by the leak checker. The font library keeps its configuration when a test ends its process within.
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig\n"; }

namespace {

/// The simulated screens, the primary one first, as "x,y,width,height/...". They are in pixels of the device.
/// A fifth number is the scaling of the screen.
QByteArray screens()
{
    QJsonArray all;
    for (const QString& screen : qEnvironmentVariable("DUNMOOR_TEST_SCREENS", "0,0,2560,1600").split('/')) {
        const QStringList numbers = screen.split(',');
        all.append(QJsonObject{{"name", "screen " + QString::number(all.size() + 1)},
                               {"x", numbers[0].toInt()},
                               {"y", numbers[1].toInt()},
                               {"width", numbers[2].toInt()},
                               {"height", numbers[3].toInt()},
                               {"logicalDpi", 96},
                               {"logicalBaseDpi", 96},
                               {"dpr", numbers.size() > 4 ? numbers[4].toDouble() : 1}});
    }
    return QJsonDocument(QJsonObject{{"screens", all}}).toJson();
}

/// Simulates the screens from now on.
void setScreens(const QString& file)
{
    QFile config(file);
    EXPECT_TRUE(config.open(QIODevice::WriteOnly));
    config.write(screens());
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.toUtf8());
}

} // namespace

int main(int argc, char** argv)
{
    // Death tests run in a fresh process: the toolkit paints with threads, which a plain fork would lose.
    // That process shares the settings, so that a test sees what it wrote.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    testing::InitGoogleTest(&argc, argv);
    umask(022); // the program ignores folders that others may write to
    const QTemporaryDir ownHome;
    const QDir home(qEnvironmentVariable("DUNMOOR_TEST_HOME", ownHome.path()));
    qputenv("DUNMOOR_TEST_HOME", home.path().toUtf8());
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", (home.path() + "/config").toUtf8());
    qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
    if (!qEnvironmentVariableIsSet("DUNMOOR_TEST_ON_DISPLAY"))
        setScreens(home.filePath("screens.json"));
    qputenv("XDG_DATA_HOME", (home.path() + "/data").toUtf8());
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
