#include "screens/Rows.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QString>
#include <QVBoxLayout>
#include <QWidget>

namespace {

// Widths that hold the longest text of each column, the clip warnings among the units.
constexpr int captionCharacters = 20;
constexpr int fieldCharacters = 16;
constexpr int unitCharacters = 28;

int widthOf(const QWidget& widget, int characters)
{
    return widget.fontMetrics().averageCharWidth() * characters;
}

int rowHeight(const QWidget& widget) { return widget.fontMetrics().height() * 2; }

} // namespace

void addRow(QGridLayout& grid, int line, const Row& row)
{
    int column = 0;
    for (QWidget* const cell : {row.caption.widget(), row.field.widget(), row.unit.widget()}) {
        cell->setFixedHeight(rowHeight(*cell));
        grid.addWidget(cell, line, column++);
    }
    row.caption.describe(row.field);
}

void layOutInFrame(Frame& frame, const std::vector<Row>& rows)
{
    auto* const grid = new QGridLayout(frame.widget());
    grid->setVerticalSpacing(11);
    grid->setHorizontalSpacing(10);
    grid->setContentsMargins(16, 14, 16, 14);
    int line = 0;
    for (const Row& row : rows)
        addRow(*grid, line++, row);
    grid->setRowStretch(line, 1);
    grid->setColumnMinimumWidth(0, widthOf(*frame.widget(), captionCharacters));
    grid->setColumnMinimumWidth(1, widthOf(*frame.widget(), fieldCharacters));
    grid->setColumnMinimumWidth(2, widthOf(*frame.widget(), unitCharacters));
    grid->setColumnStretch(2, 1);
}

void layOutPairs(Frame& frame, const std::vector<Pair>& pairs)
{
    auto* const grid = new QGridLayout(frame.widget());
    grid->setVerticalSpacing(6);
    grid->setContentsMargins(14, 12, 14, 14);
    int line = 0;
    for (const Pair& pair : pairs) {
        pair.field.widget()->setFixedHeight(rowHeight(*pair.field.widget()));
        pair.field.alignRight();
        grid->addWidget(pair.unit.widget(), line++, 0);
        grid->addWidget(pair.field.widget(), line++, 0);
    }
}

void layOutBelowBanner(QWidget& area, Frame& banner, QWidget& panel)
{
    // No frame is drawn around nothing, and its caption stands where those of the panel's frames do.
    banner.widget()->setStyleSheet(banner.widget()->styleSheet() +
                                   "QGroupBox { border: none; }"
                                   "QGroupBox::title { subcontrol-origin: margin; left: 0px; }");
    banner.widget()->setFixedHeight(banner.widget()->fontMetrics().height() + 4);
    auto* const line = new QHBoxLayout;
    line->setContentsMargins(16, 0, 16, 0);
    line->addWidget(banner.widget());

    auto* const whole = new QVBoxLayout(&area);
    whole->setContentsMargins(0, 12, 0, 0);
    whole->setSpacing(0);
    whole->addLayout(line);
    whole->addWidget(&panel, 1);
}

QHBoxLayout* buttonRow(std::initializer_list<Button*> left, std::initializer_list<Button*> right)
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(10);
    for (const Button* button : left)
        row->addWidget(button->widget());
    row->addStretch();
    for (const Button* button : right)
        row->addWidget(button->widget());
    return row;
}

void colourEntry(TextField& field, Colour colour)
{
    field.setBackColour(colour);
    field.setForeColour(Colours::Black);
    field.alignRight();
}

void nameWithUnit(Control& field, const std::string& what, const std::string& unit)
{
    field.setAccessibleName(what + ", " + QString::fromStdString(unit).trimmed().toStdString());
}
