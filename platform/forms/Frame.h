#pragma once

#include "platform/forms/Control.h"

namespace forms {

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

} // namespace forms
