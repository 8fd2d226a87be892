#pragma once

#include "platform/forms/Form.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QWidget>

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
inline int WidthOfCharacters(const Control& control, int count)
{
    return control.widget()->fontMetrics().averageCharWidth() * count;
}
inline int HeightOfLines(const Control& control, double count)
{
    return static_cast<int>(control.widget()->fontMetrics().height() * count);
}
inline int NaturalWidth(const Control& control) { return control.widget()->sizeHint().width(); }

inline void SetFixedHeight(const Control& control, int height) { control.widget()->setFixedHeight(height); }
inline void SetLeastHeight(const Control& control, int height) { control.widget()->setMinimumHeight(height); }
inline void SetLeastWidth(const Control& control, int width) { control.widget()->setMinimumWidth(width); }

/// Sets the tab order.
void SetTabOrder(const std::vector<const Control*>& controls);

} // namespace forms
