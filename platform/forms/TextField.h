#pragma once

#include "platform/forms/Control.h"

#include <functional>

namespace forms {

/// The keys that a KeyPress handler asks about, by their character.
namespace Key {
constexpr int Swallowed = 0;
constexpr int Backspace = 8;
constexpr int Tab = 9;
constexpr int Enter = 13;
constexpr int Paste = 22;
constexpr int Cut = 24;
constexpr int Redo = 25;
constexpr int Undo = 26;
constexpr int Delete = 127;
} // namespace Key

/// A field of one line of text.
///  - Change is raised at once, inside the writer's call, when the user edits the text and when the program
///    writes a text that differs.
///  - MouseDown, then Click are raised by the mouse alone, never by moving the focus here.
///  - KeyPress is raised before the user's key, paste, cut or drop edits the text; a handler that sets the
///    key to Key::Swallowed keeps the text as it is. Moving, selecting and copying raise nothing, nor does a
///    key that edits nothing, such as a letter with Ctrl, Alt or Meta.
class TextField : public Control
{
public:
    using KeyHandler = std::function<void(int& key)>;

    TextField(Form& owner, const std::string& name);

    void onChange(Handler handler) { change = std::move(handler); }
    void onClick(Handler handler) { click = std::move(handler); }
    void onMouseDown(Handler handler) { mouseDown = std::move(handler); }
    void onKeyPress(KeyHandler handler) { keyPress = std::move(handler); }

    std::string text() const;
    void setText(const std::string& text);
    void clear() { setText({}); }
    bool isEmpty() const { return text().empty(); }

    void alignRight();
    /// Takes the field out of the tab order; it can still be clicked.
    void leaveTabOrder();

private:
    friend class LineEdit;

    bool swallows(int key);
    void noteText();

    std::string knownText;
    Handler change;
    Handler click;
    Handler mouseDown;
    KeyHandler keyPress;
};

} // namespace forms
