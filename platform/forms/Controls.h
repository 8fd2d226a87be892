#pragma once

#include "platform/forms/Control.h"

namespace forms {

/// A line of text on a form.
class Label : public Control
{
public:
    Label(Form& owner, const std::string& name, const std::string& caption = {});

    void setCaption(const std::string& caption);
    std::string caption() const;

    /// Makes this the label of a control.
    void describe(Control& control);
    /// Draws the label as a box for a value.
    void setBoxed();
    void alignRight();
    void center();
    void setWrapped();
    /// Uses Arial, or its metric-compatible substitute.
    void setArial(int pixels);
    /// The size in Arial at which the text fits the label's place: that of the desktop's text, or less, but
    /// at least the size for which fixed places were designed.
    int fittingArial() const;
    void setPointSize(int points);
    void setFontSize(int percentOfNormal, bool bold);
};

/// A push button. An ampersand in its caption marks the access key, which focuses and presses the button.
class Button : public Control
{
public:
    Button(Form& owner, const std::string& name, const std::string& caption = {}, Handler onClick = {});

    void onClick(Handler handler) { click = std::move(handler); }

    void setCaption(const std::string& caption);
    std::string caption() const;
    /// Presses the button, as a user's click does.
    void press();
    void showAsDefault();

private:
    Handler click;
};

/// A list of fixed entries, one of which is chosen. Choosing raises Click, whether the user or the program
/// chooses. The user's choice raises it even if the entry was already chosen.
class DropDownList : public Control
{
public:
    DropDownList(Form& owner, const std::string& name);

    void onClick(Handler handler) { click = std::move(handler); }

    void addItem(const std::string& entry);
    void select(int index);
    /// The chosen entry, or empty before the first choice.
    std::string text() const;

private:
    Handler click;
    bool raisedByChange = false;
};

/// A frame with a caption around a group of controls. Set its layout on its widget.
class Frame : public Control
{
public:
    Frame(Form& owner, const std::string& name, const std::string& caption = {});

    void setCaption(const std::string& caption);
    std::string caption() const;
    /// Sets only the caption in bold.
    void setBold();
    /// Shows only the caption, without a border, for an empty frame.
    void showCaptionAlone();
};

/// A horizontal line.
class Rule : public Control
{
public:
    Rule(Form& owner, const std::string& name);
};

} // namespace forms
