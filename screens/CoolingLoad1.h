#pragma once

#include "platform/forms/Menu.h"
#include "screens/AirPanel.h"

/// The cooling coil calculator. Its four buttons are its whole memory of the step: calculate the entering
/// air, save it with its volume, set the leaving air, calculate the load.
class CoolingLoad1 : public AirPanel
{
public:
    CoolingLoad1();

protected:
    void Form_Load() override;

private:
    void layOut();
    void buildMenus();

    void btnSaveEA_Click();
    void btnSetLA_Click();
    void btnCalcLoad_Click();
    void mnuPrintDialog_Click();
    void mnuSave_Click();

    void showLeavingEntry();
    void keepLeavingAir();

    Frame Frame6{*this, "Frame6"}; // its caption is the step message
    Button btnSaveEA{*this, "btnSaveEA", "Save Entering Air"};
    Button btnSetLA{*this, "btnSetLA", "Set Leaving Air"};
    Button btnCalcLoad{*this, "btnCalcLoad", "Calculate Load"};

    Menu mnuFile{*this, "mnuFile", "&File"};
    MenuCommand mnuPrintDialog{*this, "mnuPrintDialog", "&Print Results"};
    MenuCommand mnuSave{*this, "mnuSave", "&Save Results to File"};
    MenuSeparator mnusep2{*this, "mnusep2"};
    MenuCommand mnuExit{*this, "mnuExit", "E&xit"};
    MenuCommand mnuMain1{*this, "mnuMain1", "&Main Menu"};
    Menu mnuHelp1{*this, "mnuHelp1", "&Help"};
    MenuCommand mnuHelpCooling{*this, "mnuHelpCooling", "Help for &Cooling Loads"};
    MenuCommand mnuHSearch{*this, "mnuHSearch", "&Search for Help On ..."};
    MenuCommand mnuAbout{*this, "mnuAbout", "&About Dunmoor"};
};
