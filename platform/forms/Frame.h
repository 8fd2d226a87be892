#pragma once

#include "platform/forms/Control.h"

namespace forms {

/// A frame with a caption around a group of controls; its layout is set on its widget.
class Frame : public Control
{
public:
    Frame(Form& owner, const std::string& name, const std::string& caption = {});

    void setCaption(const std::string& caption);
    std::string caption() const;
    /// Sets the caption in bold; the controls inside keep their own weight.
    void setBold();
    /// Shows the caption as a line of its own: the frame holds nothing, and no border is drawn.
    void showCaptionAlone();
};

} // namespace forms
