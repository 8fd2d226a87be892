#include "screens/Rows.h"

#include <QString>

using namespace forms;

namespace {

// Wide enough for the longest text of each column. The clip warnings are in the units column.
constexpr int captionCharacters = 20;
constexpr int fieldCharacters = 16;
constexpr int unitCharacters = 28;

constexpr double linesPerRow = 2;

} // namespace

void addRow(Grid& grid, int line, const Row& row)
{
    int column = 0;
    for (const Control* const cell :
         std::initializer_list<const Control*>{&row.caption, &row.field, &row.unit}) {
        setFixedHeight(*cell, heightOfLines(*cell, linesPerRow));
        grid.add(*cell, line, column++);
    }
    row.caption.describe(row.field);
}

void layOutInFrame(Frame& frame, const std::vector<Row>& rows)
{
    auto* const grid = new Grid(frame);
    grid->setVerticalSpacing(11);
    grid->setHorizontalSpacing(10);
    grid->setContentsMargins(16, 14, 16, 14);
    int line = 0;
    for (const Row& row : rows)
        addRow(*grid, line++, row);
    grid->setRowStretch(line, 1);
    grid->setColumnMinimumWidth(0, widthOfCharacters(frame, captionCharacters));
    grid->setColumnMinimumWidth(1, widthOfCharacters(frame, fieldCharacters));
    grid->setColumnMinimumWidth(2, widthOfCharacters(frame, unitCharacters));
    grid->setColumnStretch(2, 1);
}

void layOutPairs(Frame& frame, const std::vector<Pair>& pairs)
{
    auto* const grid = new Grid(frame);
    grid->setVerticalSpacing(6);
    grid->setContentsMargins(14, 12, 14, 14);
    int line = 0;
    for (const Pair& pair : pairs) {
        setFixedHeight(pair.field, heightOfLines(pair.field, linesPerRow));
        pair.field.alignRight();
        grid->add(pair.unit, line++, 0);
        grid->add(pair.field, line++, 0);
    }
}

void layOutBelowBanner(const Form& form, Frame& banner, Grid& panel)
{
    banner.showCaptionAlone();
    auto* const line = new Line;
    line->setContentsMargins(16, 0, 16, 0);
    line->add(banner);

    auto* const whole = new Column(form);
    whole->setContentsMargins(0, 12, 0, 0);
    whole->setSpacing(0);
    whole->addLayout(line);
    whole->addLayout(&panel, 1);
}

Line* buttonRow(std::initializer_list<Button*> left, std::initializer_list<Button*> right)
{
    auto* const row = new Line;
    row->setSpacing(10);
    for (const Button* button : left)
        row->add(*button);
    row->addStretch();
    for (const Button* button : right)
        row->add(*button);
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
