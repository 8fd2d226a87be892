#include "chart/ChartWindow.h"

#include "chart/States.h"
#include "platform/Desktop.h"
#include "platform/help/HtmlHelp.h"

namespace chart {
namespace {

constexpr int helpTopic = 150;

std::unique_ptr<ZoomPicture> makePicture(forms::Form& owner, ZoomPicture*& made)
{
    auto picture = std::make_unique<ZoomPicture>(owner);
    made = picture.get();
    return picture;
}

} // namespace

ChartWindow::ChartWindow()
    : Form("ChartWindow", forms::FormKind::Screen), picChart(*this, "picChart", makePicture(*this, contents))
{
    setCaption("Psychrometric Chart");
    for (const SwitchRow& row : switchRows)
        addBox(row);
    layOut();
    buildMenus();
    onHelpKey([this] { openHelp(); });
    Choices::inForce().listen(this, [this] { refresh(); });
    refresh();
}

ChartWindow::~ChartWindow() { Choices::inForce().leave(this); }

void ChartWindow::addBox(const SwitchRow& row)
{
    const std::size_t place = boxes.size();
    forms::CheckBox& box = boxes.emplace_back(*this, row.name, row.caption, [this, &row, place] {
        Choices::inForce().setSwitch(row, boxes.at(place).isChecked());
    });
    box.setChecked(Choices::inForce().switches().*row.isOn);
}

void ChartWindow::layOut()
{
    picChart.setAccessibleName("Psychrometric chart");
    tblStates.setAccessibleName("States of the last runs and pins");
    btnWhole.setToolTip("Shows the whole chart again (Home)");
    forms::SetLeastHeight(picChart, 200);
    forms::SetLeastHeight(tblStates, 80);

    auto* const column = new forms::Column(*this, {12, 10, 12, 12}, 8);
    column->addLayout(switchGrid());
    column->add(sides, 1);
    std::vector<const Control*> order{&picChart, &tblStates};
    for (const forms::CheckBox& box : boxes)
        order.push_back(&box);
    order.push_back(&btnWhole);
    forms::SetTabOrder(order);
}

/// The check boxes, and the button behind the last of them.
forms::Grid* ChartWindow::switchGrid()
{
    constexpr int boxesInARow = 4;
    auto* const switches = new forms::Grid;
    switches->setHorizontalSpacing(20);
    int place = 0;
    for (const forms::CheckBox& box : boxes) {
        switches->add(box, place / boxesInARow, place % boxesInARow);
        ++place;
    }
    switches->add(btnWhole, place / boxesInARow, place % boxesInARow);
    switches->setColumnStretch(boxesInARow, 1);
    return switches;
}

void ChartWindow::buildMenus()
{
    for (forms::PictureCommand& command : contents->commands()) {
        MenuCommand& entry = keeping.emplace_back(*this, command.name, command.caption, command.run);
        entry.setShortcut(command.keys);
        mnuFile.add(entry);
    }
    mnuFile.add(mnuClose);
    mnuClose.setShortcut("Ctrl+W");
    mnuView.add(mnuZoomIn, mnuZoomOut, mnuWhole);
    mnuHelp.add(mnuHelpChart);
    addToMenuBar(mnuFile, mnuView, mnuHelp);
}

void ChartWindow::Form_Load()
{
    setSize(6400, 4800);
    enlargeTo(11200, 8000);
    placeInTheMiddle(2);
}

void ChartWindow::refresh()
{
    tblStates.show(StateTable(Choices::inForce().pins()));
    picChart.repaint();
}

/// The file is beside the program, whatever the working directory is.
void ChartWindow::openHelp()
{
    HtmlHelpA(*this, ApplicationFolder() + "/dunmoor.chm", HH_HELP_CONTEXT, helpTopic);
}

} // namespace chart
