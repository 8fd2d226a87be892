#include "platform/forms/LineEdit.h"

#include "platform/forms/Form.h"
#include "platform/forms/TextField.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace forms {

namespace {

bool isEnter(const QKeyEvent& event) { return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter; }

/// The character for each editing command, or 0.
int characterOfCommand(const QKeyEvent& event)
{
    constexpr std::pair<QKeySequence::StandardKey, int> commands[] = {
        {QKeySequence::Paste, Key::Paste},
        {QKeySequence::Cut, Key::Cut},
        {QKeySequence::Undo, Key::Undo},
        {QKeySequence::Redo, Key::Redo},
        {QKeySequence::Delete, Key::Delete},
        {QKeySequence::DeleteStartOfWord, Key::Delete},
        {QKeySequence::DeleteEndOfWord, Key::Delete},
        {QKeySequence::DeleteEndOfLine, Key::Delete},
        {QKeySequence::DeleteCompleteLine, Key::Delete},
    };
    const auto* const found =
        std::find_if(std::begin(commands), std::end(commands),
                     [&event](const auto& entry) { return event.matches(entry.first); });
    return found == std::end(commands) ? 0 : found->second;
}

/// True for a key that moves, selects or copies, given that it doesn't edit. Most such keys have no text.
bool movesSelectsOrCopies(const QKeyEvent& event)
{
    constexpr QKeySequence::StandardKey withText[] = {QKeySequence::Copy, QKeySequence::SelectAll,
                                                      QKeySequence::Deselect, QKeySequence::MoveToEndOfLine};
    return event.text().isEmpty() || std::any_of(std::begin(withText), std::end(withText),
                                                 [&event](auto key) { return event.matches(key); });
}

/// True for a key alone, with Shift, or with AltGr, which some systems report as Ctrl+Alt. With Ctrl, Alt or
/// Meta a key is a command, although the toolkit gives it a character.
bool canType(const QKeyEvent& event)
{
    const auto commanding = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool isAltGr = commanding == (Qt::ControlModifier | Qt::AltModifier);
    return commanding == Qt::NoModifier || (isAltGr && event.text().front().isPrint());
}

/// The character of a key, or 0 for a key that doesn't edit. Tab is handled earlier, in event().
int characterOf(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Tab)
        return 0;
    if (const int command = characterOfCommand(event))
        return command;
    if (event.key() == Qt::Key_Backspace)
        return Key::Backspace;
    return event.text().isEmpty() || !canType(event) ? 0 : event.text().front().unicode();
}

} // namespace

LineEdit::LineEdit(QWidget* parent, TextField& owner) : QLineEdit(parent), field(owner) {}

bool LineEdit::event(QEvent* event)
{
    // The toolkit moves the focus on Tab before the key reaches keyPressEvent.
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Tab) {
        const QWidget* const focusBefore = window()->focusWidget();
        field.swallows(Key::Tab); // ignored: Tab always moves on, even if the field swallows it
        if (window()->focusWidget() != focusBefore)
            return true;
    }
    return QLineEdit::event(event);
}

void LineEdit::keyPressEvent(QKeyEvent* event)
{
    if (isEnter(*event)) {
        if (!field.owner().pressDefaultButton())
            field.swallows(Key::Enter); // result ignored: Enter doesn't edit
        return;
    }
    const int character = characterOf(*event);
    if (character == 0 && !movesSelectsOrCopies(*event))
        event->ignore(); // leaves it to the window; the toolkit would type or edit with some of these
    else if (character == 0 || !field.swallows(character))
        QLineEdit::keyPressEvent(event);
}

void LineEdit::inputMethodEvent(QInputMethodEvent* event)
{
    const QString typed = event->commitString() + event->preeditString();
    const bool edits = !typed.isEmpty() || event->replacementLength() > 0;
    if (!edits || !field.swallows(typed.isEmpty() ? Key::Delete : typed.front().unicode()))
        QLineEdit::inputMethodEvent(event);
}

void LineEdit::mousePressEvent(QMouseEvent* event)
{
    pressed = true;
    field.raise(field.mouseDown);
    QLineEdit::mousePressEvent(event);
}

void LineEdit::mouseReleaseEvent(QMouseEvent* event)
{
    const bool pastes = event->button() == Qt::MiddleButton;
    if (!pastes || !field.swallows(Key::Paste))
        QLineEdit::mouseReleaseEvent(event);
    const bool clicked =
        pressed && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint());
    pressed = false;
    if (clicked)
        field.raise(field.click);
}

void LineEdit::mouseDoubleClickEvent(QMouseEvent* event)
{
    pressed = false; // the first press has already raised Click
    QLineEdit::mouseDoubleClickEvent(event);
}

void LineEdit::contextMenuEvent(QContextMenuEvent* event)
{
    // A field that swallows keys offers a read-only menu.
    setReadOnly(field.swallows(Key::Paste));
    QLineEdit::contextMenuEvent(event); // doesn't block: the form may close under the menu
    setReadOnly(false);
}

void LineEdit::dropEvent(QDropEvent* event)
{
    if (!field.swallows(Key::Paste))
        QLineEdit::dropEvent(event);
}

} // namespace forms
