#include "tour/Hand.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPixmap>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QThread>

#include <cstdio>
#include <cstdlib>
#include <functional>

namespace {

/// Runs a task on the program's thread and waits for it. Also works while a dialog is open.
void onProgramThread(const std::function<void()>& task)
{
    QMetaObject::invokeMethod(qApp, task, Qt::BlockingQueuedConnection);
}

[[noreturn]] void giveUp(const QString& what)
{
    std::fprintf(stderr, "The tour stops: %s\n", qPrintable(what));
    std::_Exit(EXIT_FAILURE);
}

void xdotool(const QStringList& arguments)
{
    if (QProcess::execute("xdotool", arguments) != 0)
        giveUp("xdotool failed: " + arguments.join(' '));
}

QWidget* windowInUse()
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    if (QWidget* active = QApplication::activeWindow(); qobject_cast<QMainWindow*>(active) != nullptr)
        return active;
    for (QWidget* top : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMainWindow*>(top) != nullptr && top->isVisible())
            return top;
    }
    giveUp("no window is shown");
}

/// A screenshot of the frame.
QImage grab(const std::function<QRect()>& frame)
{
    QImage shown;
    onProgramThread([&] {
        const QRect there = frame();
        shown = QGuiApplication::primaryScreen()
                    ->grabWindow(0, there.x(), there.y(), there.width(), there.height())
                    .toImage();
    });
    return shown;
}

QPoint centreOnScreen(const QWidget& widget) { return widget.mapToGlobal(widget.rect().center()); }

} // namespace

void Hand::settle() { QThread::msleep(250); }

void Hand::clickAt(QPoint place)
{
    const double scale = qApp->devicePixelRatio();
    xdotool({"mousemove", QString::number(qRound(place.x() * scale)),
             QString::number(qRound(place.y() * scale)), "click", "1"});
    settle();
}

void Hand::click(const QString& control)
{
    QPoint place;
    onProgramThread([&] {
        auto* const found = windowInUse()->findChild<QWidget*>(control);
        if (found == nullptr || !found->isVisible())
            giveUp("no control " + control);
        place = centreOnScreen(*found);
    });
    clickAt(place);
}

void Hand::choose(const QString& entry)
{
    QPoint onBar;
    QMenu* menu = nullptr;
    QAction* wanted = nullptr;
    onProgramThread([&] {
        auto* const window = static_cast<QMainWindow*>(windowInUse());
        wanted = window->findChild<QAction*>(entry);
        for (QAction* action : window->menuBar()->actions()) {
            const bool holdsIt = action->menu() != nullptr && action->menu()->actions().contains(wanted);
            if (action == wanted || holdsIt) {
                onBar = window->menuBar()->mapToGlobal(window->menuBar()->actionGeometry(action).center());
                menu = action->menu();
            }
        }
    });
    if (onBar.isNull())
        giveUp("no menu entry " + entry);
    clickAt(onBar);
    if (menu == nullptr)
        return;
    QPoint inMenu;
    onProgramThread([&] { inMenu = menu->mapToGlobal(menu->actionGeometry(wanted).center()); });
    clickAt(inMenu);
}

void Hand::clickOk()
{
    QPoint place;
    onProgramThread([&] {
        const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr)
            giveUp("no message box is open");
        place = centreOnScreen(*box->button(QMessageBox::Ok));
    });
    clickAt(place);
}

void Hand::type(const QString& text)
{
    xdotool({"type", "--delay", "15", text});
    settle();
}

void Hand::enter(const QString& field, const QString& text)
{
    click(field);
    key("ctrl+a");
    type(text);
}

void Hand::key(const QString& key)
{
    xdotool({"key", key});
    settle();
}

QString Hand::reportFile(const QString& name) const
{
    QDir(folder).mkpath("reports");
    QString path = folder + "/reports/" + name;
    QFile::remove(path); // the print dialog would ask whether to replace it
    return path;
}

void Hand::picture(const QString& name)
{
    save(name, [] { return windowInUse()->frameGeometry(); });
}

void Hand::pictureOfAll(const QString& name)
{
    save(name, [] {
        QRect frame;
        for (const QWidget* top : QApplication::topLevelWidgets()) {
            if (top->isVisible())
                frame |= top->frameGeometry();
        }
        return frame;
    });
}

void Hand::save(const QString& name, const std::function<QRect()>& frame)
{
    QImage before;
    for (QImage shown = grab(frame); shown != before; shown = grab(frame)) {
        before = shown; // until nothing changes
        settle();
    }
    if (!before.save(folder + "/" + name + ".png"))
        giveUp("can't write into " + folder);
}
