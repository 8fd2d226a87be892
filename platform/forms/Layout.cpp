#include "platform/forms/Layout.h"

#include <QFontMetrics>
#include <QWidget>

namespace forms {

int widthOfCharacters(const Control& control, int count)
{
    return control.widget()->fontMetrics().averageCharWidth() * count;
}

int heightOfLines(const Control& control, double count)
{
    return static_cast<int>(control.widget()->fontMetrics().height() * count);
}

int naturalWidth(const Control& control) { return control.widget()->sizeHint().width(); }

void setFixedHeight(const Control& control, int height) { control.widget()->setFixedHeight(height); }
void setLeastHeight(const Control& control, int height) { control.widget()->setMinimumHeight(height); }
void setLeastWidth(const Control& control, int width) { control.widget()->setMinimumWidth(width); }

void addCells(Grid& grid, int row, std::initializer_list<const Control*> cells)
{
    int column = 0;
    for (const Control* const cell : cells)
        grid.add(*cell, row, column++);
}

void setTabOrder(std::initializer_list<const Control*> controls)
{
    const Control* before = nullptr;
    for (const Control* const next : controls) {
        if (before != nullptr)
            QWidget::setTabOrder(before->widget(), next->widget());
        before = next;
    }
}

} // namespace forms
