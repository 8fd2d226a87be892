#pragma once

#include "platform/forms/Menu.h"
#include "screens/AirPanel.h"

/// The heating coil calculator: entering air with its volume, then the temperature that the air shall leave
/// the coil with. The coil adds no moisture.
class HeatingLoad1 : public AirPanel
{
public:
    HeatingLoad1();

    /// What the leaving air dialog writes into the panel.
    void showLeavingEntry(float tdb, float w);

protected:
    void Form_Load() override;

private:
    void layOut();
    void buildMenus();

    void btnSaveEnteringAir_Click();
    void btnInputLeavingAir_Click();
    void txtAirVolume_Change();
    void txtHeatLoad_KeyPress(int& key);
    void mnuPrintDialog_Click();
    void mnuSave_Click();

    void showLoad();

    Frame Frame6{*this, "Frame6", "Set Entering Air Conditions ... then click 'Entering Air'"};
    Button btnInputLeavingAir{*this, "btnInputLeavingAir", "Input Leaving Air"};
    Button btnSaveEnteringAir{*this, "btnSaveEnteringAir", "Save Entering Air"};
    Frame Frame4{*this, "Frame4"};
    TextField txtAirVolume{*this, "txtAirVolume"};
    Label lblAirVolume{*this, "lblAirVolume"};
    TextField txtHeatLoad{*this, "txtHeatLoad"};
    Label lblHeatLoad{*this, "lblHeatLoad"};

    Menu mnuFile{*this, "mnuFile", "&File"};
    MenuCommand mnuPrintDialog{*this, "mnuPrintDialog", "&Print Results"};
    MenuCommand mnuSave{*this, "mnuSave", "&Save Data to File"};
    MenuSeparator mnuFiledash2{*this, "mnuFiledash2"};
    MenuCommand mnuExit{*this, "mnuExit", "E&xit"};
    MenuCommand mnuMain1{*this, "mnuMain1", "&Main Menu"};
    Menu mnuHelp1{*this, "mnuHelp1", "&Help"};
    MenuCommand mnuHelpHeat{*this, "mnuHelpHeat", "Help for &Heating Loads"};
    MenuCommand mnuHSearch{*this, "mnuHSearch", "&Search for Help On"};
    MenuCommand mnuAbout{*this, "mnuAbout", "&About Dunmoor"};
};
