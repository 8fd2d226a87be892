#include "screens/CoolingLoad2.h"

using namespace forms;

CoolingLoad2::CoolingLoad2() : Form("CoolingLoad2", FormKind::Dialog)
{
    setCaption("Cooling Leaving Air Temp");
    layOut(); // intentional: OK is no default button, and Esc doesn't press Cancel
    onHelpKey([this] { OpenHelp(*this, HelpTopic::Cooling); });
    txtLATdb.onChange([this] { txtLATdb_Change(); });
    txtLATdb.onKeyPress([this](int& key) { txtLATdb_KeyPress(key); });
}

void CoolingLoad2::layOut()
{
    Label1.setWrapped();
    SetLeastHeight(Label1, HeightOfLines(Label1, 2));
    auto* const grid = new Grid(*this, {20, 20, 20, 20}, 12);
    grid->add(Label1, 0, 0, 1, 3);
    AddCells(*grid, 1, {&Label2, &txtLATdb, &Label3});
    AddCells(*grid, 2, {&Label4, &txtLATwb, &Label5});
    grid->setColumnMinimumWidth(1, WidthOfCharacters(Label1, 16));
    grid->setColumnMinimumWidth(2, WidthOfCharacters(Label1, 20));
    grid->setRowMinimumHeight(3, 8);
    grid->addLayout(ButtonRow({}, {&btnOK, &btnCancel}), 4, 0, 1, 3);
    txtLATdb.alignRight();
    txtLATwb.alignRight();
    Label2.describe(txtLATdb);
    Label4.describe(txtLATwb);
}

// The dialog's right edge is aligned with that of the calculator.
void CoolingLoad2::Form_Load()
{
    fitToControls();
    moveTo(Screen::width() / 2 + 8000 / 2 - width(), Screen::height() / 4 + 6600 / 2 - height() + 500);
}

void CoolingLoad2::Form_Activate()
{
    for (Label* unit : {&Label3, &Label5})
        unit->setCaption(IsMetric() ? "° C" : "° F");
    NameWithUnit(txtLATdb, "Leaving air dry bulb", Label3.caption());
    NameWithUnit(txtLATwb, "Leaving air wet bulb", Label5.caption());
}

// Intentional: the close box leaves both flags unchanged, so an earlier acceptance applies again.
void CoolingLoad2::Form_QueryUnload(CloseReason reason)
{
    if (reason == CloseReason::ControlMenu)
        Unload();
}

void CoolingLoad2::txtLATdb_Change()
{
    if (txtLATdb.isEmpty())
        txtLATwb.clear();
}

/// Skips the wet bulb above the dew point, where it isn't needed. At the dew point it isn't needed either,
/// but the focus stays.
void CoolingLoad2::txtLATdb_KeyPress(int& key)
{
    if (key != Key::Enter && key != Key::Tab)
        return;
    if (ParseSingle(txtLATdb.text()) > CoolingEnteringAir.td)
        btnOK.takeFocus();
}

void CoolingLoad2::noteEntry(Boolean16 accepted, Boolean16 hasWetBulb)
{
    LeavingAirAccepted = accepted;
    LeavingWetBulbGiven = hasWetBulb;
}

void CoolingLoad2::refuse(const char* message)
{
    Label1.setCaption(message);
    noteEntry(False16, False16);
}

void CoolingLoad2::btnOK_Click()
{
    if (txtLATdb.isEmpty()) {
        noteEntry(False16, False16);
        return;
    }
    const Single d = ParseSingle(txtLATdb.text());
    const Single w = ParseSingle(txtLATwb.text()); // 0 means blank
    const Single T = CoolingEnteringAir.Tdb;
    const Single D = CoolingEnteringAir.td;

    if (d >= T)
        refuse("Leaving Air Temperature must be less than the Entering Air Temperature");
    else if (d < D && d > -40 && w == 0)
        refuse("Since the L.A.T. Dry Bulb is less than the Dew Point, you must enter a L.A.T. Wet Bulb.");
    else if (d >= D && d < T && w == 0)
        acceptDry(d);
    else if (d >= D && d < T)
        acceptWet(d, w, ToAbsolute);
    else if (d < D && d > -40)
        acceptWet(d, w, FahrenheitToRankine); // in Metric, too; the solver recomputes these values
    // Intentional: below the dew point, nothing happens at -40 or less.
}

/// Keeps the temperature and the pressure of the leaving air.
void CoolingLoad2::keepKnown(Single dryBulb)
{
    StatePoint.Tdb = dryBulb;
    CoolingLeavingAir.Tdb = dryBulb;
    StatePoint.P = CoolingEnteringAir.P;
    CoolingLeavingAir.P = CoolingEnteringAir.P;
}

void CoolingLoad2::acceptDry(Single dryBulb)
{
    keepKnown(dryBulb);
    StatePoint.W = CoolingEnteringAir.W;
    CoolingLeavingAir.W = CoolingEnteringAir.W;
    noteEntry(True16, False16);
    Unload();
}

void CoolingLoad2::acceptWet(Single dryBulb, Single wetBulb, Single (*toAbsolute)(Single))
{
    keepKnown(dryBulb);
    StatePoint.Twb = wetBulb;
    CoolingLeavingAir.Twb = wetBulb;
    StatePoint.PwsWet = SaturationPressure(toAbsolute(wetBulb));
    StatePoint.Pws = SaturationPressure(toAbsolute(dryBulb));
    StatePoint.WsWet = HumidityRatioFromVaporPressure(StatePoint.PwsWet.asSingle(), StatePoint.P.asSingle());
    StatePoint.W = HumidityRatioFromWetBulb(wetBulb, dryBulb, StatePoint.WsWet);
    CoolingLeavingAir.W = StatePoint.W.asSingle();
    noteEntry(True16, True16);
    Unload();
}

void CoolingLoad2::btnCancel_Click()
{
    LeavingAirAccepted = False16;
    Unload();
}
