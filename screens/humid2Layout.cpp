// The appearance of the second humidification screen: frames, colors, tab order and accessible names.

#include "screens/humid2.h"

#include <algorithm>

using namespace forms;

namespace {

constexpr int fieldCharacters = 16;
constexpr int roomBesideButtonText = 28;

int entryHeight(const Control& control) { return HeightOfLines(control, 2); }

Grid& gridIn(Frame& frame) { return *new Grid(frame, {16, 14, 16, 14}, 10); }

/// A grid of captions, fields and units. The columns of the two entry frames line up.
Grid& entryGridIn(Frame& frame, int captionWidth)
{
    Grid& grid = gridIn(frame);
    grid.setColumnMinimumWidth(0, captionWidth);
    grid.setColumnMinimumWidth(1, WidthOfCharacters(frame, fieldCharacters));
    grid.setColumnStretch(2, 1);
    return grid;
}

void giveRoom(Button& button)
{
    SetLeastWidth(button, NaturalWidth(button) + roomBesideButtonText);
    SetLeastHeight(button, entryHeight(button));
}

} // namespace

void humid2::layOut()
{
    layOutDesired();
    layOutQuantities();
    layOutMoisture();

    giveRoom(btnCalcHumid);
    giveRoom(btnOK);

    auto* const whole = new Column(*this, {16, 16, 16, 16}, 16);
    whole->add(Frame2);
    whole->add(Frame1);
    whole->addLayout(ButtonRow({&btnCalcHumid}, {&btnOK}));
    whole->add(Frame3);
    whole->addStretch();

    // The humidity comes before the temperature.
    SetTabOrder({&txtDesH, &txtDesT, &txtVol, &txtAC, &txtOSA});
}

int humid2::captionWidth() const
{
    int widest = 0;
    for (const Label* caption : {&Label13, &Label1, &Label2, &Label3})
        widest = std::max(widest, NaturalWidth(*caption));
    return widest;
}

void humid2::layOutDesired()
{
    Grid& grid = entryGridIn(Frame2, captionWidth());
    AddRow(grid, 0, {Label13, txtDesT, lblT});
    AddRow(grid, 1, {Label1, txtDesH, lblRH});
    ColourEntries({&txtDesT, &txtDesH}, Colours::LightCyan);
}

void humid2::layOutQuantities()
{
    Grid& grid = entryGridIn(Frame1, captionWidth());
    grid.add(Label17, 0, 0, 1, 3);
    grid.add(Label8, 1, 0, 1, 3);
    AddRow(grid, 2, {Label2, txtVol, lblSpaceVol});
    AddRow(grid, 3, {Label3, txtAC, lblAC});
    grid.add(Label16, 4, 0, 1, 3);
    AddRow(grid, 5, {lblOSAFlow1, txtOSA, lblOSAFlow2});
    ColourEntries({&txtVol, &txtAC, &txtOSA}, Colours::LightGreen);
}

void humid2::layOutMoisture()
{
    Grid& grid = gridIn(Frame3);
    const auto add = [&grid](int row, int column, TextField& field, Label& unit) {
        SetFixedHeight(field, entryHeight(field));
        grid.add(field, row, column);
        grid.add(unit, row, column + 1);
        ColourEntries({&field}, Colours::LightYellow);
        field.leaveTabOrder();
    };
    add(0, 0, txtMassPerHour, lblMassPerHour);
    add(0, 2, txtMassPerDay, lblMassPerDay);
    add(1, 0, txtFlowPerHour, lblFlowPerHour);
    add(1, 2, txtFlowPerDay, lblFlowPerDay);
    grid.setColumnStretch(1, 1);
    grid.setColumnStretch(3, 1);
}

void humid2::nameFields()
{
    NameWithUnit(txtDesT, "Desired space temperature", lblT.caption());
    NameWithUnit(txtDesH, "Desired relative humidity", lblRH.caption());
    NameWithUnit(txtVol, "Volume of space", lblSpaceVol.caption());
    NameWithUnit(txtAC, "Estimated air changes", lblAC.caption());
    NameWithUnit(txtOSA, "Volume of outside air", lblOSAFlow2.caption());
    NameWithUnit(txtMassPerHour, "Required moisture", lblMassPerHour.caption());
    NameWithUnit(txtMassPerDay, "Required moisture", lblMassPerDay.caption());
    NameWithUnit(txtFlowPerHour, "Required moisture", lblFlowPerHour.caption());
    NameWithUnit(txtFlowPerDay, "Required moisture", lblFlowPerDay.caption());
}
