// The main function of tests that need windows: an application on the offscreen platform with its own
// settings, so that no test sees the user's.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <sys/stat.h>

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
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("XDG_DATA_HOME", (home.path() + "/data").toUtf8());
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
