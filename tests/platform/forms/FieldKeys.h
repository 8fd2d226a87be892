#pragma once

#include "platform/forms/LineEdit.h"
#include "tests/platform/forms/TestForms.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>

using namespace forms;

class FieldKeys : public FormsTest
{
protected:
    /// A screen with "70" in its first field, which records the keys of its KeyPress handler.
    FirstScreen& show(bool swallowing)
    {
        FirstScreen& screen = showFirstScreen();
        screen.txtFirst.setText("70");
        screen.txtFirst.onKeyPress([this, swallowing](int& key) {
            keys.push_back(key);
            if (swallowing)
                key = Key::Swallowed;
        });
        screen.txtFirst.takeFocus();
        QApplication::clipboard()->setText("99");
        return screen;
    }
    FirstScreen& showSwallowing() { return show(true); }
    FirstScreen& showPassing() { return show(false); }

    LineEdit& edit() const { return *static_cast<LineEdit*>(user.widget("txtFirst")); }

    void drop(const QString& text)
    {
        QMimeData dragged;
        dragged.setText(text);
        QDragEnterEvent arrival(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&edit(), &arrival);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&edit(), &event);
    }

    void composeByInputMethod(const QString& text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&edit(), &event);
    }

    /// A key that some keyboards have for an action and that is not a character.
    void pressActionKey(Qt::Key key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&edit(), &event);
    }

    /// A key as a keyboard sends it: its text may differ from its name.
    void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text)
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
        QApplication::sendEvent(&edit(), &event);
    }

    /// Opens the context menu and chooses an entry if it is enabled.
    void chooseFromContextMenu(const QString& caption)
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, edit().mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&edit(), &event);
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        EXPECT_FALSE(edit().isReadOnly()) << "the field is as before, while the menu is open too";
        for (QAction* entry : menu->actions()) {
            if (entry->text().remove('&').startsWith(caption))
                entry->trigger();
        }
        menu->close();
        comeToRest();
        EXPECT_EQ(edit().findChild<QMenu*>(), nullptr) << "no menu is left behind";
    }

    std::vector<int> keys;
};
