#pragma once

#include "platform/forms/Menu.h"
#include "screens/AirPanel.h"

/// The humidification calculator's first screen: the outside air. humid2 is the second one; it is loaded with
/// this form and goes with it.
class Humid1 : public AirPanel
{
public:
    Humid1();

protected:
    void Form_Load() override;
    void Form_QueryUnload(CloseReason reason) override;
    void Form_Unload() override {} // unlike the other calculators' it brings nothing back
    void afterResults() override;

private:
    void layOut();
    void buildMenus();

    void SaveOutsideAir();
    void btnHumidityDesired_Click();
    void mnuExit_Click();
    void mnuMain1_Click();
    void mnuPrintDialog_Click();
    void mnuSave_Click();

    Frame Frame6{*this, "Frame6", "Calculate Outside Air Properties ... then click 'Humidity Desired'"};
    Button btnHumidityDesired{*this, "btnHumidityDesired", "Humidity Desired "};

    Menu mnuFile{*this, "mnuFile", "&File"};
    MenuCommand mnuPrintDialog{*this, "mnuPrintDialog", "&Print Results"};
    MenuCommand mnuSave{*this, "mnuSave", "&Save Results to File"};
    MenuSeparator mnuFiledash2{*this, "mnuFiledash2"};
    MenuCommand mnuExit{*this, "mnuExit", "E&xit"};
    MenuCommand mnuMain1{*this, "mnuMain1", "&Main Menu"};
    Menu mnuHelp1{*this, "mnuHelp1", "&Help"};
    MenuCommand mnuHelpHumidity{*this, "mnuHelpHumidity", "Help for Humidity"};
    MenuCommand mnuHSearch{*this, "mnuHSearch", "&Search for Help On"};
    MenuCommand mnuAbout{*this, "mnuAbout", "&About Dunmoor"};
};
