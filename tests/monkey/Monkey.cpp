#include "tests/monkey/Monkey.h"

#include "platform/forms/Dispatcher.h"
#include "tests/monkey/DialogsOfTheToolkit.h"
#include "tests/monkey/PlacesToEnd.h"
#include "tests/monkey/Texts.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <cstdlib>
#include <iostream>

namespace {

constexpr Qt::Key ordinaryKeys[] = {
    Qt::Key_Tab,      Qt::Key_Backtab,   Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Left,
    Qt::Key_Right,    Qt::Key_Up,        Qt::Key_Down,   Qt::Key_Home,  Qt::Key_End,    Qt::Key_Delete,
    Qt::Key_F1,       Qt::Key_Backspace, Qt::Key_PageUp, Qt::Key_Space, Qt::Key_Plus,   Qt::Key_Minus,
    Qt::Key_PageDown, Qt::Key_Menu,      Qt::Key_F10,    Qt::Key_0};
constexpr Qt::KeyboardModifier modifiers[] = {Qt::NoModifier,      Qt::NoModifier,  Qt::NoModifier,
                                              Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier};

/// The windows that accept input, or the open menu.
QWidget* windowInUse(int choice)
{
    if (QWidget* const popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget* const modal = QApplication::activeModalWidget())
        return modal;
    QWidgetList shown;
    for (QWidget* const top : QApplication::topLevelWidgets()) {
        if (top->isVisible() && top->windowType() != Qt::ToolTip)
            shown.append(top);
    }
    return shown.isEmpty() ? nullptr : shown[choice % shown.size()];
}

QWidget& focused(QWidget& window) { return window.focusWidget() != nullptr ? *window.focusWidget() : window; }

bool canBeChosen(const QAction& entry)
{
    const QObjectList places = entry.associatedObjects();
    return entry.isVisible() && entry.isEnabled() && std::ranges::all_of(places, [](const QObject* object) {
               const auto* const menu = qobject_cast<const QMenu*>(object);
               return menu == nullptr || menu->menuAction()->isVisible();
           });
}

QString nameOf(const QWidget& widget)
{
    return widget.objectName().isEmpty() ? widget.metaObject()->className() : widget.objectName();
}

} // namespace

Monkey::Monkey(unsigned seed, int numberOfActions) : random(seed), last(numberOfActions) { goOn(); }

/// A new timer each time, started before the action, so that it fires within the dialogs' event loops.
void Monkey::goOn()
{
    QTimer::singleShot(1, this, [this] {
        if (count == last) {
            forms::EndProcess();
            return;
        }
        goOn();
        const int level = QThread::currentThread()->loopLevel();
        if (level <= levelOfAction)
            return; // the last action is not over, and no dialog is open
        const QScopedValueRollback acting(levelOfAction, level);
        ++count;
        act();
    });
}

void Monkey::act()
{
    QWidget* const window = windowInUse(below(8));
    if (window == nullptr || window->windowHandle() == nullptr)
        return;
    if (const auto* const box = qobject_cast<QMessageBox*>(window)) {
        if (box->text().startsWith("Run-time error"))
            endAt(box->text());
    }
    if (UseDialogOfTheToolkit(*window, below(3) == 0))
        return;
    actIn(*window);
}

void Monkey::actIn(QWidget& window)
{
    place = nameOf(window) + " " + nameOf(focused(window));
    ++actionsIn[nameOf(window)];
    const int choice = below(100);
    if (choice < 30)
        clickSomewhere(window);
    else if (choice < 45)
        pressButton(window);
    else if (choice < 50)
        chooseEntry(window);
    else if (choice < 70)
        typeNumber(window);
    else if (choice < 86)
        useKey(window);
    else if (choice < 90)
        paste(window);
    else if (choice < 93)
        turnWheel(window);
    else if (choice < 96)
        drag(window);
    else if (choice < 99)
        changeWindow(window);
    else
        changeDesktop();
}

void Monkey::clickSomewhere(QWidget& window)
{
    QWidgetList targets{&window};
    for (QWidget* const each : window.findChildren<QWidget*>()) {
        if (each->isVisible() && each->window() == &window)
            targets.append(each);
    }
    QWidget& target = *oneOf(targets);
    place = nameOf(window) + " " + nameOf(target);
    const QPoint inside(below(target.width() + 1), below(target.height() + 1));
    const QPoint there = target.mapTo(&window, inside);
    constexpr Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::LeftButton,  Qt::LeftButton,
                                           Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
    const Qt::MouseButton button = oneOf(buttons);
    const QPointer<QWindow> handle = window.windowHandle();
    QTest::mouseMove(handle, there);
    QTest::mousePress(handle, button, Qt::NoModifier, there);
    if (handle != nullptr) // a handler may have destroyed it
        QTest::mouseRelease(handle, button, Qt::NoModifier, there);
    if (handle != nullptr && below(8) == 0)
        QTest::mouseDClick(handle, button, Qt::NoModifier, there);
}

/// Leads deeper into the program than clicks somewhere.
void Monkey::pressButton(QWidget& window)
{
    auto buttons = window.findChildren<QAbstractButton*>();
    if (buttons.isEmpty())
        return;
    QAbstractButton& button = *oneOf(buttons);
    place = nameOf(window) + " " + nameOf(button);
    if (button.isVisible() && button.isEnabled())
        QTest::mouseClick(&button, Qt::LeftButton);
}

void Monkey::chooseEntry(QWidget& window)
{
    auto entries = window.findChildren<QAction*>();
    if (entries.isEmpty())
        return;
    QAction& entry = *oneOf(entries);
    place = nameOf(window) + " " + entry.objectName();
    if (canBeChosen(entry))
        entry.trigger();
}

/// Letters alone are rare: some fields end the program at once.
void Monkey::useKey(QWidget& window)
{
    const Qt::KeyboardModifier modifier = oneOf(modifiers);
    const bool isLetter = modifier == Qt::NoModifier ? below(40) == 0 : below(3) == 0;
    const Qt::Key letter = static_cast<Qt::Key>(Qt::Key_A + below(26));
    QTest::keyClick(&focused(window), isLetter ? letter : oneOf(ordinaryKeys), modifier);
}

/// Mostly what makes sense in the field.
void Monkey::typeNumber(QWidget& window)
{
    if (below(3) > 0) {
        auto fields = window.findChildren<QLineEdit*>();
        if (!fields.isEmpty())
            oneOf(fields)->setFocus(Qt::TabFocusReason);
    }
    const QPointer<QWidget> field = &focused(window);
    place = nameOf(window) + " " + nameOf(*field);
    if (below(2) == 0)
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    for (const QChar letter : QString(below(20) == 0 ? oneOf(OddTexts) : oneOf(UsualTexts))) {
        if (field == nullptr || !field->isVisible())
            return;
        QTest::keyClick(field, letter.toLatin1());
    }
}

void Monkey::paste(QWidget& window)
{
    QApplication::clipboard()->setText(PastedText(below(NumberOfPastedTexts)));
    QTest::keyClick(&focused(window), Qt::Key_V, Qt::ControlModifier);
    QApplication::clipboard()->clear();
}

void Monkey::turnWheel(QWidget& window)
{
    const QPoint there(below(window.width() + 1), below(window.height() + 1));
    QWheelEvent event(there, window.mapToGlobal(there), {}, {0, below(2) == 0 ? 120 : -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(window.windowHandle(), &event);
}

void Monkey::drag(QWidget& window)
{
    QPointer<QWindow> handle = window.windowHandle();
    const auto somewhere = [&] { return QPoint(below(window.width() + 1), below(window.height() + 1)); };
    const QPoint from = somewhere();
    const QPoint to = somewhere();
    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, from);
    if (handle != nullptr)
        QTest::mouseMove(handle, to);
    if (handle != nullptr)
        QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, to);
}

void Monkey::changeWindow(QWidget& window)
{
    switch (below(4)) {
    case 0:
        window.close();
        break;
    case 1:
        window.resize(below(2000), below(1400));
        break;
    case 2:
        window.showMaximized();
        break;
    default:
        window.showNormal();
    }
}

void Monkey::changeDesktop()
{
    const QColor background = oneOf(Backgrounds);
    QApplication::setPalette(QPalette(background));
    QFont font = QApplication::font();
    font.setPointSize(7 + below(14));
    QApplication::setFont(font);
}

void Monkey::tell(const QString& end) const
{
    std::cerr << "monkey: " << count << " actions, " << end.toStdString() << "; in";
    for (const auto& [window, actions] : actionsIn)
        std::cerr << ' ' << window.toStdString() << ' ' << actions;
    std::cerr << '\n';
}

void Monkey::endAt(const QString& report) const
{
    const bool isAllowed = MayEndAt(place, report);
    tell("at " + place + ": " + QString(report).replace('\n', ' ') +
         (isAllowed ? "" : " The program must not end here."));
    std::_Exit(isAllowed ? EXIT_SUCCESS : EXIT_FAILURE);
}
