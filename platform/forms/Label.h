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

} // namespace forms
