// The main of the tests that need windows: an application on the offscreen platform, with settings of its
// own, so that no test sees the user's.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <sys/stat.h>

int main(int argc, char** argv)
{
    // Tests of a fatal end start anew in a process of their own: the toolkit paints with threads, which a
    // plain fork would lose. That process shares the settings, so that a test sees what it wrote.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    testing::InitGoogleTest(&argc, argv);
    umask(022); // the program leaves folders alone in which others may write
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
