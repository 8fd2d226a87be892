#include "tests/support/User.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <iostream>
#include <memory>
#include <stdexcept>

namespace {

QString q(const std::string& text) { return QString::fromStdString(text); }

/// The window that accepts input: the modal one, else the one shown. The chart's window is beside it; its
/// tests name it.
QWidget* windowInUse()
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    for (QWidget* top : QApplication::topLevelWidgets()) {
        const bool isShown = qobject_cast<QMainWindow*>(top) != nullptr && top->isVisible();
        if (isShown && top->objectName() != "ChartWindow")
            return top;
    }
    throw std::runtime_error("no window is shown");
}

QPoint centre(const QWidget& widget) { return widget.rect().center(); }

/// Moves the mouse in several motions, as a hand does: a menu ignores a click if the mouse has hardly moved
/// since it opened.
void moveMouse(const QWidget& widget, QPoint place)
{
    const QPoint there = widget.mapTo(widget.window(), place);
    for (int left = 7; left >= 0; --left)
        QTest::mouseMove(widget.window()->windowHandle(), there + QPoint(left, 0));
}

void clickAt(const QWidget& widget, QPoint place)
{
    QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      widget.mapTo(widget.window(), place));
}

} // namespace

User::User() : looking(std::make_unique<QObject>()) { lookAgain(); }
User::~User() = default;

void User::lookAgain()
{
    // A new timer each time, so that it also fires inside the dialogs' event loops.
    QTimer::singleShot(1, looking.get(), [this] {
        lookAgain();
        lookAtScreen();
    });
}

void User::lookAtScreen()
{
    QWidget* const modal = QApplication::activeModalWidget();
    if (modal == nullptr || !modal->isVisible())
        return;
    auto* const box = qobject_cast<QMessageBox*>(modal);
    if (box != nullptr && box->button(QMessageBox::Ok) != nullptr) {
        messages.push_back({box->text().toStdString(), box->windowTitle().toStdString()});
        std::cerr << "message: " << messages.back().title << ": " << messages.back().text << '\n';
        if (const auto actions = std::exchange(messageActions, nullptr))
            actions();
        QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    } else if (!plans.empty() && q(plans.front().dialog) == modal->objectName()) {
        const DialogPlan plan = plans.front();
        plans.pop_front();
        plan.actions();
    }
}

QWidget* User::widget(const std::string& control) const
{
    auto* const found = windowInUse()->findChild<QWidget*>(q(control));
    if (found == nullptr)
        throw std::runtime_error("no control " + control + " in " + window());
    return found;
}

QAction* User::menuEntry(const std::string& name) const
{
    auto* const found = windowInUse()->findChild<QAction*>(q(name));
    if (found == nullptr)
        throw std::runtime_error("no menu entry " + name + " in " + window());
    return found;
}

QWidget* User::findWindow(const std::string& name)
{
    for (QWidget* top : QApplication::topLevelWidgets()) {
        if (top->objectName() == q(name))
            return top;
    }
    return nullptr;
}

void User::click(const std::string& control)
{
    QWidget* const target = widget(control);
    QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier, centre(*target));
}

void User::doubleClick(const std::string& control)
{
    // Sent through the window, which turns them into presses, releases and double clicks as for a real mouse.
    QWidget* const target = widget(control);
    QWidget* const window = target->window();
    QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       target->mapTo(window, centre(*target)));
}

void User::pressMouse(const std::string& control)
{
    QTest::mousePress(widget(control), Qt::LeftButton, Qt::NoModifier, centre(*widget(control)));
}

void User::releaseMouse(const std::string& control)
{
    QTest::mouseRelease(widget(control), Qt::LeftButton, Qt::NoModifier, centre(*widget(control)));
}

void User::middleClick(const std::string& control)
{
    QTest::mouseClick(widget(control), Qt::MiddleButton, Qt::NoModifier, centre(*widget(control)));
}

void User::type(const std::string& field, const std::string& text)
{
    widget(field)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(widget(field), Qt::Key_A, Qt::ControlModifier);
    if (text.empty())
        QTest::keyClick(widget(field), Qt::Key_Delete);
    QTest::keyClicks(widget(field), q(text));
}

void User::key(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QApplication::processEvents(); // access keys work only in the active window
    QWidget* const window = windowInUse();
    QWidget* const target = window->focusWidget() != nullptr ? window->focusWidget() : window;
    QTest::keyClick(target, key, modifiers);
}

void User::keys(const std::string& text) { QTest::keyClicks(windowInUse()->focusWidget(), q(text)); }

void User::choose(const std::string& menuEntryName)
{
    QAction* const entry = menuEntry(menuEntryName);
    auto* const bar = static_cast<QMainWindow*>(windowInUse())->menuBar();
    for (QAction* onBar : bar->actions()) {
        const bool isIt = onBar == entry;
        if (!isIt && (onBar->menu() == nullptr || !onBar->menu()->actions().contains(entry)))
            continue;
        QMenu* const menu = onBar->menu();
        const QPoint place = bar->actionGeometry(onBar).center();
        moveMouse(*bar, place);
        if (menu == nullptr || !menu->isVisible()) // moving there opens it if another menu is open
            clickAt(*bar, place);
        if (menu != nullptr && menu->isVisible())
            chooseFromMenu(*menu, entry);
        return;
    }
}

void User::chooseFromMenu(QMenu& menu, QAction* entry)
{
    const QPointer<QMenu> open = &menu; // the chosen entry may close the window
    const QPoint place = menu.actionGeometry(entry).center();
    moveMouse(menu, place);
    clickAt(menu, place);
    if (open != nullptr)
        open->close(); // a disabled entry leaves it open
}

void User::chooseFromList(const std::string& list, const std::string& entry)
{
    auto* const combo = qobject_cast<QComboBox*>(widget(list));
    combo->setFocus(Qt::TabFocusReason);
    const int wanted = combo->findText(q(entry));
    if (wanted < 0)
        throw std::runtime_error("no entry " + entry);
    combo->showPopup();
    QWidget* const popup = QApplication::activePopupWidget();
    QWidget* const target = popup->focusWidget() != nullptr ? popup->focusWidget() : popup;
    QTest::keyClick(target, Qt::Key_Home);
    for (int step = 0; step < wanted; ++step)
        QTest::keyClick(target, Qt::Key_Down);
    QTest::keyClick(target, Qt::Key_Return);
}

void User::closeWindow() { windowInUse()->close(); }

void User::inDialog(const std::string& dialog, std::function<void()> actions)
{
    plans.push_back({dialog, std::move(actions)});
}

std::string User::window() const { return windowInUse()->objectName().toStdString(); }
std::string User::title() const { return windowInUse()->windowTitle().toStdString(); }

std::string User::text(const std::string& control) const
{
    for (const char* property : {"text", "title", "currentText"}) {
        const QVariant value = widget(control)->property(property);
        if (value.isValid())
            return value.toString().toStdString();
    }
    throw std::runtime_error(control + " has no text");
}

std::string User::focus() const
{
    const QWidget* const focused = windowInUse()->focusWidget();
    return focused == nullptr ? std::string() : focused->objectName().toStdString();
}

bool User::isEnabled(const std::string& control) const { return widget(control)->isEnabled(); }
bool User::isVisible(const std::string& control) const { return widget(control)->isVisible(); }
