#pragma once

#include "platform/forms/Control.h"

#include <functional>

namespace forms {

/// The characters of the keys that a KeyPress handler receives.
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

/// A single-line text field.
/// - Change is raised immediately, inside the caller's write, when the user edits the text or the program
///   writes a different text.
/// - MouseDown, then Click are raised only by the mouse, not when the focus moves here.
/// - KeyPress is raised before the user's key, paste, cut or drop edits the text. A handler that sets the key
///   to Key::Swallowed prevents the edit. Moving, selecting and copying raise nothing; nor does a key that
///   doesn't edit, such as a letter with Ctrl, Alt or Meta.
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

    void takeFocus() override;
    void alignRight();
    /// Removes the field from the tab order. It can still be clicked.
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
