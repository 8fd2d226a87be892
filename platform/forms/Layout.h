#pragma once

#include "platform/forms/Form.h"
#include "platform/forms/Frame.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <initializer_list>

namespace forms {

/// A layout of the toolkit that takes controls. Without a form or a frame it goes into another layout.
template <class ToolkitLayout>
class ControlLayout : public ToolkitLayout
{
public:
    using ToolkitLayout::ToolkitLayout;
    explicit ControlLayout(const Form& form) : ToolkitLayout(form.area()) {}
    explicit ControlLayout(const Frame& frame) : ToolkitLayout(frame.widget()) {}

    /// @param place  as the toolkit's addWidget: row and column with their spans, or a stretch factor
    template <class... Place>
    void add(const Control& control, Place... place)
    {
        ToolkitLayout::addWidget(control.widget(), place...);
    }
};

using Grid = ControlLayout<QGridLayout>;
using Column = ControlLayout<QVBoxLayout>;
using Line = ControlLayout<QHBoxLayout>;

// Sizes by the control's own font, in pixels.
int widthOfCharacters(const Control& control, int count);
int heightOfLines(const Control& control, double count);
int naturalWidth(const Control& control);

void setFixedHeight(const Control& control, int height);
void setLeastHeight(const Control& control, int height);
void setLeastWidth(const Control& control, int width);

/// Tab visits the controls in this order.
void setTabOrder(std::initializer_list<const Control*> controls);

} // namespace forms
