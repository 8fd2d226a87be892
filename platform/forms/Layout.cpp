#include "platform/forms/Layout.h"

#include <QFontMetrics>
#include <QWidget>

namespace forms {

int WidthOfCharacters(const Control& control, int count)
{
    return control.widget()->fontMetrics().averageCharWidth() * count;
}

int HeightOfLines(const Control& control, double count)
{
    return static_cast<int>(control.widget()->fontMetrics().height() * count);
}

int NaturalWidth(const Control& control) { return control.widget()->sizeHint().width(); }

void SetFixedHeight(const Control& control, int height) { control.widget()->setFixedHeight(height); }
void SetLeastHeight(const Control& control, int height) { control.widget()->setMinimumHeight(height); }
void SetLeastWidth(const Control& control, int width) { control.widget()->setMinimumWidth(width); }

void AddCells(Grid& grid, int row, std::initializer_list<const Control*> cells)
{
    int column = 0;
    for (const Control* const cell : cells)
        grid.add(*cell, row, column++);
}

void SetTabOrder(const std::vector<const Control*>& controls)
{
    const Control* before = nullptr;
    for (const Control* const next : controls) {
        if (before != nullptr)
            QWidget::setTabOrder(before->widget(), next->widget());
        before = next;
    }
}

} // namespace forms
