#pragma once

#include "chart/ZoomPicture.h"
#include "platform/forms/CheckBox.h"
#include "platform/forms/Controls.h"
#include "platform/forms/Layout.h"
#include "platform/forms/Menu.h"
#include "platform/forms/Sides.h"
#include "platform/forms/Table.h"

#include <deque>

namespace chart {

/// The window of the chart, beside the main menu and the calculators: the chart with its title, the table of
/// the last runs' states and the pins, and the switches. Created when it is first opened. A modal form blocks
/// it like every other window, so it can't hide a dialog.
class ChartWindow : public forms::Form
{
public:
    ChartWindow();
    ~ChartWindow() override;

protected:
    void Form_Load() override;

private:
    void addBox(const SwitchRow& row);
    void layOut();
    forms::Grid* switchGrid();
    void buildMenus();
    void refresh();
    void openHelp();

    ZoomPicture* contents = nullptr; // owned by the picture
    Picture picChart;
    forms::Table tblStates{*this, "tblStates"};
    forms::Sides sides{*this, "sides", picChart, tblStates};
    std::deque<forms::CheckBox> boxes; // one for each switch
    Button btnWhole{*this, "btnWhole", "&Whole chart", [this] { contents->zoomOut(); }};

    Menu mnuFile{*this, "mnuFile", "&File"};
    std::deque<MenuCommand> keeping; // the picture's own commands
    MenuCommand mnuClose{*this, "mnuClose", "C&lose", [this] { Unload(CloseReason::ControlMenu); }};
    Menu mnuView{*this, "mnuView", "&View"};
    MenuCommand mnuZoomIn{*this, "mnuZoomIn", "Zoom &In", [this] { contents->zoom(1); }};
    MenuCommand mnuZoomOut{*this, "mnuZoomOut", "Zoom &Out", [this] { contents->zoom(-1); }};
    MenuCommand mnuWhole{*this, "mnuWhole", "&Whole Chart", [this] { contents->zoomOut(); }};
    Menu mnuHelp{*this, "mnuHelp", "&Help"};
    MenuCommand mnuHelpChart{*this, "mnuHelpChart", "&The Chart", [this] { openHelp(); }};
};

} // namespace chart
