#pragma once

#include "platform/forms/Picture.h"
#include "screens/FormParts.h"

/// The main menu, with one button for each of the five calculators. Only this form ends the process.
class MainForm : public forms::Form
{
public:
    MainForm();

protected:
    void Form_Load() override;
    void Form_QueryUnload(CloseReason reason) override;
    void Form_Unload() override;

private:
    void layOut();
    void buildMenus();

    template <class Calculator>
    void open();
    void leave();

    void btnAirCalc_Click();
    void btnMixedAir_Click();
    void btnCooling_Click();
    void btnHeating_Click();
    void btnHumidity_Click();
    void mnuExit_Click() { leave(); }
    void mnuOptions_Click();
    void mnuHSearch_Click() { OpenHelp(*this, HelpTopic::MainPage); }
    void mnuAbout_Click() { ShowAbout(); }

    Label lblProductName{*this, "lblProductName", "Dunmoor"};
    Label lblProduct{*this, "lblProduct", "Psychrometric Calculator"};
    Button btnAirCalc{*this, "btnAirCalc", "&Air Properties", [this] { btnAirCalc_Click(); }};
    Button btnMixedAir{*this, "btnMixedAir", "&Mixed Air", [this] { btnMixedAir_Click(); }};
    Button btnCooling{*this, "btnCooling", "&Cooling Load", [this] { btnCooling_Click(); }};
    Button btnHeating{*this, "btnHeating", "&Heating Load ", [this] { btnHeating_Click(); }};
    Button btnHumidity{*this, "btnHumidity", "H&umidification", [this] { btnHumidity_Click(); }};
    Picture Image1;

    Menu mnuFile{*this, "mnuFile", "&File"};
    MenuCommand mnuExit{*this, "mnuExit", "E&xit", [this] { mnuExit_Click(); }};
    MenuCommand mnuOptions{*this, "mnuOptions", "&Options", [this] { mnuOptions_Click(); }};
    Menu mnuHelp{*this, "mnuHelp", "&Help"};
    MenuCommand mnuHSearch{*this, "mnuHSearch", "&Search for Help on ...", [this] { mnuHSearch_Click(); }};
    MenuCommand mnuAbout{*this, "mnuAbout", "&About Dunmoor", [this] { mnuAbout_Click(); }};
};
