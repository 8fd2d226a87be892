#include "screens/FormParts.h"

#include <QString>

using namespace forms;

namespace {

// Wide enough for the longest text of each column. The clip warnings are in the units column.
constexpr int captionCharacters = 20;
constexpr int fieldCharacters = 16;
constexpr int unitCharacters = 28;

constexpr double linesPerRow = 2;

} // namespace

void PlaceScreen(Form& screen)
{
    screen.setSize(8000, 6600);
    screen.keepTogether();
    screen.placeInTheMiddle(4);
}

void AddRow(Grid& grid, int line, const Row& row)
{
    const std::initializer_list<const Control*> cells{&row.caption, &row.field, &row.unit};
    for (const Control* const cell : cells)
        SetFixedHeight(*cell, HeightOfLines(*cell, linesPerRow));
    AddCells(grid, line, cells);
    row.caption.describe(row.field);
}

void LayOutInFrame(Frame& frame, const std::vector<Row>& rows)
{
    auto* const grid = new Grid(frame, {16, 14, 16, 14}, 10);
    grid->setVerticalSpacing(11);
    int line = 0;
    for (const Row& row : rows)
        AddRow(*grid, line++, row);
    grid->setRowStretch(line, 1);
    grid->setColumnMinimumWidth(0, WidthOfCharacters(frame, captionCharacters));
    grid->setColumnMinimumWidth(1, WidthOfCharacters(frame, fieldCharacters));
    grid->setColumnMinimumWidth(2, WidthOfCharacters(frame, unitCharacters));
    grid->setColumnStretch(2, 1);
}

void LayOutPairs(Frame& frame, const std::vector<Pair>& pairs)
{
    auto* const grid = new Grid(frame, {14, 12, 14, 14}, 6);
    int line = 0;
    for (const Pair& pair : pairs) {
        SetFixedHeight(pair.field, HeightOfLines(pair.field, linesPerRow));
        pair.field.alignRight();
        grid->add(pair.unit, line++, 0);
        grid->add(pair.field, line++, 0);
    }
}

Line* ButtonRow(std::initializer_list<Button*> left, std::initializer_list<Button*> right)
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

void EnableAll(const std::vector<Button*>& buttons, bool enabled)
{
    for (Button* const button : buttons)
        button->setEnabled(enabled);
}

void ColourLabels(std::initializer_list<Label*> labels, Colour colour)
{
    for (Label* label : labels) {
        label->setBackColour(colour);
        label->setForeColour(Colours::Black);
    }
}

void ColourEntries(std::initializer_list<TextField*> fields, Colour colour)
{
    for (TextField* field : fields) {
        field->setBackColour(colour);
        field->setForeColour(Colours::Black);
        field->alignRight();
    }
}

void NameWithUnit(Control& field, const std::string& what, const std::string& unit)
{
    field.setAccessibleName(what + ", " + QString::fromStdString(unit).trimmed().toStdString());
}
