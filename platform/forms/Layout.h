#pragma once

#include "platform/forms/Form.h"
#include "platform/forms/Frame.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <initializer_list>
#include <vector>

namespace forms {

/// One of the toolkit's layouts, which accepts controls. Without a form or a frame it is nested in another
/// layout.
template <class ToolkitLayout>
class ControlLayout : public ToolkitLayout
{
public:
    using ToolkitLayout::ToolkitLayout;
    explicit ControlLayout(const Form& form) : ToolkitLayout(form.area()) {}
    explicit ControlLayout(const Frame& frame) : ToolkitLayout(frame.widget()) {}

    /// @param gap  between the cells, in pixels
    template <class Owner>
    ControlLayout(const Owner& owner, const QMargins& margins, int gap) : ControlLayout(owner)
    {
        ToolkitLayout::setContentsMargins(margins);
        ToolkitLayout::setSpacing(gap);
    }

    /// @param place  as for the toolkit's addWidget: row, column and spans, or a stretch factor
    template <class... Place>
    void add(const Control& control, Place... place)
    {
        ToolkitLayout::addWidget(control.widget(), place...);
    }
};

using Grid = ControlLayout<QGridLayout>;
using Column = ControlLayout<QVBoxLayout>;
using Line = ControlLayout<QHBoxLayout>;

/// Adds controls to a row, from its first column.
void AddCells(Grid& grid, int row, std::initializer_list<const Control*> cells);

// Sizes in pixels, based on the control's font.
int WidthOfCharacters(const Control& control, int count);
int HeightOfLines(const Control& control, double count);
int NaturalWidth(const Control& control);

void SetFixedHeight(const Control& control, int height);
void SetLeastHeight(const Control& control, int height);
void SetLeastWidth(const Control& control, int width);

/// Sets the tab order.
void SetTabOrder(const std::vector<const Control*>& controls);

} // namespace forms
