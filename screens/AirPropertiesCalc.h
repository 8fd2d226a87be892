#pragma once

#include "platform/forms/Menu.h"
#include "reports/AirPropertiesReport.h"
#include "screens/AirPanel.h"

/// The air properties calculator: the air-state panel by itself.
class AirPropertiesCalc : public AirPanel
{
public:
    AirPropertiesCalc();

protected:
    void Form_Load() override;

private:
    void layOut();
    void buildMenus();

    void mnuPrintDialog_Click();
    void mnuSave_Click();
    AirPropertiesTexts texts() const;

    Frame Frame4{*this, "Frame4"};

    Menu mnuFile{*this, "mnuFile", "&File"};
    MenuCommand mnuPrintDialog{*this, "mnuPrintDialog", "&Print Results"};
    MenuCommand mnuSave{*this, "mnuSave", "&Save Results to File"};
    MenuSeparator mnusep2{*this, "mnusep2"};
    MenuCommand mnuExit{*this, "mnuExit", "E&xit"};
    MenuCommand mnuMain1{*this, "mnuMain1", "&Main Menu"};
    Menu mnuHelp1{*this, "mnuHelp1", "&Help"};
    MenuCommand mnuHelpAirPropCalc{*this, "mnuHelpAirPropCalc", "&Help for Air Properties Calc"};
    MenuCommand mnuHSearch{*this, "mnuHSearch", "&Search for Help On ..."};
    MenuCommand mnuAbout{*this, "mnuAbout", "&About Dunmoor"};
};
