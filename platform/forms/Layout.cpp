#include "platform/forms/Layout.h"

namespace forms {

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
