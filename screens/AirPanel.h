#pragma once

#include "core/MainMod.h"
#include "screens/FormParts.h"
#include "screens/PanelRules.h"

#include <vector>

/// The air-state panel that the calculators share: a dry bulb, the pressure, one of five humidity items, and
/// a button that solves the complete state and writes it back to the same fields.
///
/// PanelRules.h describes the differences between the calculators. Each form sets its own buttons.
class AirPanel : public forms::Form
{
    const PanelRules& rules; // first, because the controls get their captions from it

protected:
    AirPanel(const std::string& name, const PanelRules& panelRules);

    void Form_QueryUnload(CloseReason reason) override;
    void Form_Unload() override { returnToMainMenu(); }

    // Intentional: Exit doesn't leave the application. Like Main Menu, it returns to the main menu.
    virtual void mnuExit_Click() { returnToMainMenu(); }
    virtual void mnuMain1_Click() { returnToMainMenu(); }
    virtual void mnuPrintDialog_Click() = 0;
    virtual void mnuSave_Click() = 0;

    /// Adds the menus to the menu bar, with the form's own menu before Help.
    void buildMenus(Menu* ownMenu = nullptr);

    /// Lays out the buttons in Frame5, from the top.
    void layOutActions(std::initializer_list<Button*> buttons);
    /// Lays out the panel's frames and, if given, another one under the actions.
    void layOutFrames(forms::Grid& grid, Frame* underActions = nullptr);
    /// Lays them out below an empty frame, whose caption is an instruction.
    void layOutFramesBelow(Frame& banner, Frame* underActions = nullptr);

    /// Sets all captions for the current unit system, shows the pressure and resets the warnings.
    void RepaintForm();
    /// Writes the state to the fields. Each text that changes selects its humidity item.
    void Results2Form();

    /// Called after results are shown; not called if the solver refused the input.
    virtual void afterResults() {}
    /// Called by RepaintForm for the form's own controls.
    virtual void repaintExtras() {}

    /// The buttons that the panel switches, set by each form.
    struct Switched
    {
        std::vector<Button*> offOnChange = {};      ///< disabled when a humidity field changes
        std::vector<Button*> offOnClick = {};       ///< disabled by a click on a humidity field
        std::vector<Button*> offAtCalculation = {}; ///< disabled when a calculation begins
        std::vector<Button*> offAfterwards = {}; ///< disabled after the solver, even if it refused the input
        std::vector<Button*> onAfterwards = {};  ///< enabled at the same time
        Button* focusAfterwards = nullptr;       ///< gets the focus then
    };
    Switched switched;

    Frame Frame5{*this, "Frame5", rules.actions};
    Frame Frame3{*this, "Frame3"};
    Frame Frame2{*this, "Frame2", rules.dryBulbFrame};
    Frame Frame1{*this, "Frame1", "Enter One of These 5 Items, Click \"Calculate Properties\""};

    Label lblTdb1{*this, rules.labels.tdb.name, rules.labels.tdb.caption};
    TextField txtTdb{*this, "txtTdb"};
    Label lblTdb2{*this, "lblTdb2"};
    Label lblP1{*this, rules.labels.pressure.name, rules.labels.pressure.caption};
    Label txtP{*this, "txtP"}; // a label: only the options change the pressure
    Label lblP2{*this, "lblP2"};

    Label lblTwb1{*this, rules.labels.wetBulb.name, rules.labels.wetBulb.caption};
    TextField txtTwb{*this, "txtTwb"};
    Label lblTwb2{*this, "lblTwb2"};
    Label lblDewPt1{*this, rules.labels.dewPoint.name, rules.labels.dewPoint.caption};
    TextField txttd{*this, "txttd"};
    Label lblDewPt2{*this, "lblDewPt2"};
    Label lblRH1{*this, rules.labels.relativeHumidity.name, rules.labels.relativeHumidity.caption};
    TextField txtRH{*this, "txtRH"};
    Label lblRH2{*this, "lblRH2"};
    Label lblW1{*this, rules.labels.humidityRatio.name, rules.labels.humidityRatio.caption};
    TextField txtW{*this, "txtW"};
    Label lblW2{*this, "lblW2"};
    Label lblGrains1{*this, rules.labels.grains.name, rules.labels.grains.caption};
    TextField txtGrains{*this, "txtGrains"};
    Label lblGrains2{*this, "lblGrains2"};

    Label lblEnthalpy1{*this, rules.labels.enthalpy.name, rules.labels.enthalpy.caption};
    TextField txth{*this, "txth"};
    Label lblEnthalpy2{*this, "lblEnthalpy2"};
    Label lblSpVol1{*this, rules.labels.specificVolume.name, rules.labels.specificVolume.caption};
    TextField txtSpVol{*this, "txtSpVol"};
    Label lblSpVol2{*this, "lblSpVol2"};

    Button btnCALCULATE{*this, "btnCALCULATE", "Calculate Properties", [this] { btnCALCULATE_Click(); }};

    Menu mnuFile{*this, "mnuFile", "&File"};
    MenuCommand mnuPrintDialog{*this, "mnuPrintDialog", "&Print Results", [this] { mnuPrintDialog_Click(); }};
    MenuCommand mnuSave{*this, "mnuSave", rules.saveCaption, [this] { mnuSave_Click(); }};
    MenuSeparator fileSeparator{*this, rules.fileSeparator};
    MenuCommand mnuExit{*this, "mnuExit", "E&xit", [this] { mnuExit_Click(); }};
    MenuCommand mnuMain1{*this, "mnuMain1", "&Main Menu", [this] { mnuMain1_Click(); }};
    Menu mnuHelp1{*this, "mnuHelp1", "&Help"};
    MenuCommand helpEntry{*this, rules.helpEntry.name, rules.helpEntry.caption};
    MenuCommand mnuHSearch{*this, "mnuHSearch", rules.searchCaption, [this] { mnuHSearch_Click(); }};
    MenuCommand mnuAbout{*this, "mnuAbout", "&About Dunmoor", [this] { mnuAbout_Click(); }};

private:
    void connectHandlers();
    void layOutRows();
    void nameFields();

    void txtTwb_Change() { itemChanged("Wetbulb"); }
    void txttd_Change() { itemChanged("Dew Point"); }
    void txtRH_Change() { itemChanged("Rel"); }
    void txtW_Change() { itemChanged("W"); }
    void txtGrains_Change() { itemChanged("Grains"); }
    void txtTwb_Click() { itemClicked({&txtGrains, &txttd, &txtRH, &txtW}, "Wetbulb"); }
    void txttd_Click() { itemClicked({&txtGrains, &txtTwb, &txtRH, &txtW}, "Dew Point"); }
    void txtRH_Click() { itemClicked({&txtGrains, &txtTwb, &txttd, &txtW}, "Rel"); }
    void txtW_Click() { itemClicked({&txtRH, &txtTwb, &txtGrains, &txttd}, "W"); }
    void txtGrains_Click() { itemClicked({&txtRH, &txtTwb, &txttd, &txtW}, "Grains"); }
    void txtGrains_MouseDown() { HumiditySelector = "Grains"; }
    void txtRH_MouseDown() { HumiditySelector = "Rel"; }
    void txtTdb_Click();
    void txtTdb_KeyPress(int& key);
    void txth_KeyPress(int& key) { key = forms::Key::Swallowed; }
    void txtSpVol_KeyPress(int& key) { key = forms::Key::Swallowed; }
    void btnCALCULATE_Click();
    // Intentional: the search opens this topic on every calculator.
    void mnuHSearch_Click() { OpenHelp(*this, HelpTopic::AirProperties); }
    void mnuAbout_Click() { ShowAbout(); }

    void itemChanged(const char* selector);
    void itemClicked(std::initializer_list<TextField*> othersInOrder, const char* selector);
    void returnToMainMenu();

    void calculate();
    void finishCalculation();
    void refuseInput();
    void showResults();
    void readPressure();
    bool solveSelectedItem();
    void solveWetBulbItem();
    void solveDewPointItem();
    void solveRelativeHumidityItem();
    void solveHumidityRatioItem();
    void solveGrainsItem();
};
