#include "screens/AirPanel.h"

#include <QWidget>

using namespace forms;

AirPanel::AirPanel(const std::string& name, const PanelRules& panelRules)
    : Form(name, FormKind::Screen), rules(panelRules)
{
    connectHandlers();
    layOutRows();
}

void AirPanel::connectHandlers()
{
    txtTwb.onChange([this] { txtTwb_Change(); });
    txttd.onChange([this] { txttd_Change(); });
    if (rules.allItemsTellChanges) {
        txtRH.onChange([this] { txtRH_Change(); });
        txtW.onChange([this] { txtW_Change(); });
        txtGrains.onChange([this] { txtGrains_Change(); });
    }
    txtTwb.onClick([this] { txtTwb_Click(); });
    txttd.onClick([this] { txttd_Click(); });
    txtRH.onClick([this] { txtRH_Click(); });
    txtW.onClick([this] { txtW_Click(); });
    txtGrains.onClick([this] { txtGrains_Click(); });
    txtTdb.onClick([this] { txtTdb_Click(); });
    if (rules.hasEntryShortcuts) {
        txtTdb.onKeyPress([this](int& key) { txtTdb_KeyPress(key); });
        txtGrains.onMouseDown([this] { txtGrains_MouseDown(); });
        txtRH.onMouseDown([this] { txtRH_MouseDown(); });
    }
    txth.onKeyPress([this](int& key) { txth_KeyPress(key); });
    txtSpVol.onKeyPress([this](int& key) { txtSpVol_KeyPress(key); });
    btnCALCULATE.onClick([this] { btnCALCULATE_Click(); });
}

void AirPanel::setEnabled(const PanelButtons& named, bool enabled)
{
    for (const char* const name : named) {
        if (name != nullptr)
            control(name)->setEnabled(enabled);
    }
}

void AirPanel::itemChanged(const char* selector)
{
    btnCALCULATE.enable();
    setEnabled(rules.offOnChange, false);
    HumiditySelector = selector;
}

void AirPanel::itemClicked(std::initializer_list<TextField*> othersInOrder, const char* selector)
{
    btnCALCULATE.enable();
    setEnabled(rules.offOnClick, false);
    for (TextField* other : othersInOrder)
        other->clear();
    txth.clear();
    txtSpVol.clear();
    HumiditySelector = selector; // last, because clearing the other fields selects their items
}

void AirPanel::txtTdb_Click()
{
    if (rules.clickEmptiesTdb)
        txtTdb.clear();
    txth.clear();
    txtSpVol.clear();
}

void AirPanel::txtTdb_KeyPress(int& key)
{
    if (key == Key::Enter)
        txtTwb.takeFocus();
}

void AirPanel::buildMenus(Menu* ownMenu)
{
    addEntries(mnuFile, mnuPrintDialog, mnuSave, fileSeparator, mnuExit);
    addEntries(mnuHelp1, helpEntry, mnuHSearch, mnuAbout);
    addToMenuBar(mnuFile);
    addToMenuBar(mnuMain1);
    if (ownMenu != nullptr)
        addToMenuBar(*ownMenu);
    addToMenuBar(mnuHelp1);

    mnuPrintDialog.onClick([this] { mnuPrintDialog_Click(); });
    mnuSave.onClick([this] { mnuSave_Click(); });
    mnuExit.onClick([this] { mnuExit_Click(); });
    mnuMain1.onClick([this] { mnuMain1_Click(); });
    helpEntry.onClick([this] { OpenHelp(*this, rules.helpEntry.topic); });
    mnuHSearch.onClick([this] { mnuHSearch_Click(); });
    mnuAbout.onClick([this] { mnuAbout_Click(); });
}

void AirPanel::Form_QueryUnload(CloseReason reason)
{
    if (reason == CloseReason::ControlMenu)
        returnToMainMenu();
}

void AirPanel::returnToMainMenu()
{
    Unload();
    ShowMainForm();
}

void AirPanel::Results2Form()
{
    if (IsMetric())
        txtW.setText(FormatNumber(StatePoint.W * 1000, "#0.00"));
    else
        txtW.setText(FormatNumber(StatePoint.W, "#0.00000"));
    txtTwb.setText(FormatNumber(StatePoint.Twb, "#0.0"));
    txtRH.setText(FormatNumber(StatePoint.RH * 100, "#0.0"));
    txtSpVol.setText(FormatNumber(StatePoint.SpVol, "#0.000"));
    txth.setText(FormatNumber(StatePoint.h, "#0.00"));
    txttd.setText(FormatNumber(StatePoint.td, "#0.0"));
    if (!IsMetric())
        txtGrains.setText(FormatNumber(StatePoint.Grains, "#0.0"));
}
