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

    /// Names the control that this label describes.
    void describe(Control& control);
    /// Draws the label as a box that a value stands in.
    void setBoxed();
    void alignRight();
    void setWrapped();
    /// Sets the label in Arial, or in its metric twin, at a size that its fixed place is made for.
    void setArial();
    void setPointSize(int points);
    void setFontSize(int percentOfNormal, bool bold);
};

} // namespace forms
