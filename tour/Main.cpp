// dunmoor-tour FOLDER [dark] [FONT-POINTS]: runs the program on the display, drives it with real mouse and
// key events, and saves pictures of its windows in the folder.

#include "platform/forms/Forms.h"
#include "shell/Program.h"
#include "tour/Hand.h"
#include "tour/Tour.h"

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QPalette>
#include <QTemporaryDir>

#include <cstdio>
#include <thread>

using namespace forms;

namespace {

/// Sets what a dark desktop sets for its programs.
void darken()
{
    QPalette palette(QColor(45, 45, 48));
    palette.setColor(QPalette::Base, QColor(30, 30, 32));
    QApplication::setPalette(palette);
}

void setUp(const QStringList& wishes)
{
    for (const QString& wish : wishes) {
        if (wish == "dark")
            darken();
        else if (wish.toInt() > 0)
            QApplication::setFont(QFont(QApplication::font().family(), wish.toInt()));
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir settings; // the tour starts as on a new machine
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    QApplication application(argc, argv);
    QApplication::setCursorFlashTime(0); // so that pictures don't depend on the blinking cursor
    const QStringList arguments = QApplication::arguments().mid(1);
    if (arguments.isEmpty()) {
        std::fprintf(stderr, "usage: dunmoor-tour FOLDER [dark] [FONT-POINTS]\n");
        return 2;
    }
    const QString folder = QDir(arguments.front()).absolutePath();
    QDir().mkpath(folder);
    setUp(arguments.mid(1));

    StartProgram();
    std::thread walker([&folder] {
        Hand hand(folder);
        WalkThroughProgram(hand);
    });
    const int status = QApplication::exec();
    walker.join();
    FormRegistry::clear();
    return status;
}
