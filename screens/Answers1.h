#pragma once

#include "core/AirSnapshot.h"
#include "platform/forms/Button.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/Menu.h"

#include <array>
#include <string>

/// The mixed air table: outside air, return air and mixture side by side. MixedAir fills it before showing
/// it.
class Answers1 : public forms::Form
{
public:
    Answers1();

    /// Writes the three snapshots to the table.
    void fill();

protected:
    void Form_Load() override;
    void Form_QueryUnload(CloseReason reason) override;

private:
    using Cells = std::array<Label, 3>; // outside, return, mixed

    void RepaintForm();
    void moveUpPastGrains();
    void placeTable();
    void placeRow(Label& caption, Cells& cells, Label& unit, forms::Twips top);
    void buildMenus();
    void fillColumn(std::size_t column, const AirSnapshot& stream);
    Cells makeCells(const std::string& arrayName);

    void btnOK_Click();
    void mnuPrevious_Click();
    void mnuExit_Click();
    void mnuPrintResults_Click();
    void mnuSave2File_Click();
    void mnuHContents_Click();
    void mnuAbout_Click();

    Cells lblHeading = makeCells("lblHeading");
    Label Label10{*this, "Label10", "  Volume"};
    Cells lblcfm = makeCells("lblcfm");
    Label lblcfmTail{*this, "lblcfmTail"};
    Label Label1{*this, "Label1", "  Dry Bulb Temp"};
    Cells lblTdb = makeCells("lblTdb");
    Label lblTdbTail{*this, "lblTdbTail"};
    Label Label2{*this, "Label2", "   Wet Bulb Temp"};
    Cells lblTwb = makeCells("lblTwb");
    Label lblTwbTail{*this, "lblTwbTail"};
    Label Label16{*this, "Label16", "   Dew Point Temp"};
    Cells lbltd = makeCells("lbltd");
    Label lbltdTail{*this, "lbltdTail"};
    Label Label12{*this, "Label12", "   Relative Humidity"};
    Cells lblRH = makeCells("lblRH");
    Label lblRHTail{*this, "lblRHTail"};
    Label Label17{*this, "Label17", "   Humidity Ratio, W"};
    Cells lblW = makeCells("lblW");
    Label lblWTail{*this, "lblWTail"};
    Label lblGrainsHead{*this, "lblGrainsHead", "   Humidity Ratio, gr"};
    Cells lblGrains = makeCells("lblGrains");
    Label lblGrainsTail{*this, "lblGrainsTail"};
    Label lblSpVolHead{*this, "lblSpVolHead", "  Specific Volume, v"};
    Cells lblSpVol = makeCells("lblSpVol");
    Label lblSpVolTail{*this, "lblSpVolTail"};
    Label lblHHead{*this, "lblHHead", "  Enthalpy, h"};
    Cells lblH = makeCells("lblH");
    Label lblHTail{*this, "lblHTail"};
    Button btnOK{*this, "btnOK", "OK"};

    Menu mnuFile{*this, "mnuFile", "&File"};
    MenuCommand mnuPrintResults{*this, "mnuPrintResults", "&Print Results"};
    MenuCommand mnuSave2File{*this, "mnuSave2File", "&Save Results to File"};
    MenuSeparator mnusep2{*this, "mnusep2"};
    MenuCommand mnuPrevious{*this, "mnuPrevious", "&Previous Screen"};
    MenuSeparator mnusep3{*this, "mnusep3"};
    MenuCommand mnuExit{*this, "mnuExit", "E&xit"};
    Menu mnuhelp{*this, "mnuhelp", "&Help"};
    MenuCommand mnuHContents{*this, "mnuHContents", "&Contents"};
    MenuCommand mnuAbout{*this, "mnuAbout", "&About Dunmoor"};
};
