#include "screens/AirPanel.h"

using namespace forms;

AirPanel::AirPanel(const std::string& name, const PanelRules& panelRules)
    : Form(name, FormKind::Screen), rules(panelRules)
{
    connectHandlers();
    layOutRows();
    helpEntry.setShortcut("F1");
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
}

void AirPanel::itemChanged(const char* selector)
{
    btnCALCULATE.enable();
    EnableAll(switched.offOnChange, false);
    HumiditySelector = selector;
}

void AirPanel::itemClicked(std::initializer_list<TextField*> othersInOrder, const char* selector)
{
    btnCALCULATE.enable();
    EnableAll(switched.offOnClick, false);
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
    mnuFile.add(mnuPrintDialog, mnuSave, fileSeparator, mnuExit);
    mnuHelp1.add(helpEntry, mnuHSearch, mnuAbout);
    addToMenuBar(mnuFile, mnuMain1);
    if (ownMenu != nullptr)
        addToMenuBar(*ownMenu);
    addToMenuBar(mnuHelp1);

    helpEntry.onClick([this] { OpenHelp(*this, rules.helpEntry.topic); });
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
