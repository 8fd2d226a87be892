// How the humidification's second screen looks: its frames, its colours, its tab order, its spoken names.

#include "screens/Rows.h"
#include "screens/humid2.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int fieldCharacters = 16;
constexpr int roomBesideButtonText = 28;

int lineHeight(const QWidget& widget) { return widget.fontMetrics().height() * 2; }

QGridLayout& gridIn(Frame& frame)
{
    auto* const grid = new QGridLayout(frame.widget());
    grid->setContentsMargins(16, 14, 16, 14);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(10);
    return *grid;
}

/// Captions, fields and units, so that those of the two frames of entries line up.
QGridLayout& entryGridIn(Frame& frame, int captionWidth)
{
    QGridLayout& grid = gridIn(frame);
    grid.setColumnMinimumWidth(0, captionWidth);
    grid.setColumnMinimumWidth(1, frame.widget()->fontMetrics().averageCharWidth() * fieldCharacters);
    grid.setColumnStretch(2, 1);
    return grid;
}

void giveRoom(Button& button)
{
    QWidget* const shown = button.widget();
    shown->setMinimumSize(shown->sizeHint().width() + roomBesideButtonText, lineHeight(*shown));
}

} // namespace

void humid2::layOut()
{
    layOutDesired();
    layOutQuantities();
    layOutMoisture();

    giveRoom(btnCalcHumid);
    giveRoom(btnOK);

    auto* const whole = new QVBoxLayout(area());
    whole->setContentsMargins(16, 16, 16, 16);
    whole->setSpacing(16);
    whole->addWidget(Frame2.widget());
    whole->addWidget(Frame1.widget());
    whole->addLayout(buttonRow({&btnCalcHumid}, {&btnOK}));
    whole->addWidget(Frame3.widget());
    whole->addStretch();

    // The humidity comes ahead of the temperature.
    TextField* const inOrder[] = {&txtDesH, &txtDesT, &txtVol, &txtAC, &txtOSA};
    for (std::size_t next = 1; next < std::size(inOrder); ++next)
        QWidget::setTabOrder(inOrder[next - 1]->widget(), inOrder[next]->widget());
}

int humid2::captionWidth() const
{
    int widest = 0;
    for (const Label* caption : {&Label13, &Label1, &Label2, &Label3})
        widest = std::max(widest, caption->widget()->sizeHint().width());
    return widest;
}

void humid2::layOutDesired()
{
    QGridLayout& grid = entryGridIn(Frame2, captionWidth());
    addRow(grid, 0, {Label13, txtDesT, lblT});
    addRow(grid, 1, {Label1, txtDesH, lblRH});
    for (TextField* field : {&txtDesT, &txtDesH})
        colourEntry(*field, Colours::LightCyan);
}

void humid2::layOutQuantities()
{
    QGridLayout& grid = entryGridIn(Frame1, captionWidth());
    grid.addWidget(Label17.widget(), 0, 0, 1, 3);
    grid.addWidget(Label8.widget(), 1, 0, 1, 3);
    addRow(grid, 2, {Label2, txtVol, lblSpaceVol});
    addRow(grid, 3, {Label3, txtAC, lblAC});
    grid.addWidget(Label16.widget(), 4, 0, 1, 3);
    addRow(grid, 5, {lblOSAFlow1, txtOSA, lblOSAFlow2});
    for (TextField* field : {&txtVol, &txtAC, &txtOSA})
        colourEntry(*field, Colours::LightGreen);
}

void humid2::layOutMoisture()
{
    QGridLayout& grid = gridIn(Frame3);
    const auto add = [&grid](int row, int column, TextField& field, Label& unit) {
        field.widget()->setFixedHeight(lineHeight(*field.widget()));
        grid.addWidget(field.widget(), row, column);
        grid.addWidget(unit.widget(), row, column + 1);
        colourEntry(field, Colours::LightYellow);
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
    nameWithUnit(txtDesT, "Desired space temperature", lblT.caption());
    nameWithUnit(txtDesH, "Desired relative humidity", lblRH.caption());
    nameWithUnit(txtVol, "Volume of space", lblSpaceVol.caption());
    nameWithUnit(txtAC, "Estimated air changes", lblAC.caption());
    nameWithUnit(txtOSA, "Volume of outside air", lblOSAFlow2.caption());
    nameWithUnit(txtMassPerHour, "Required moisture", lblMassPerHour.caption());
    nameWithUnit(txtMassPerDay, "Required moisture", lblMassPerDay.caption());
    nameWithUnit(txtFlowPerHour, "Required moisture", lblFlowPerHour.caption());
    nameWithUnit(txtFlowPerDay, "Required moisture", lblFlowPerDay.caption());
}
