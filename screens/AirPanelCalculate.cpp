// The calculation of the air-state panel: ranges, clips and their warnings, and the solver for the item.

#include "platform/forms/MsgBox.h"
#include "screens/AirPanel.h"

#include <QWidget>

using namespace forms;

namespace {

constexpr Single lowestTdb = -40.0F;
constexpr Single highestTdb = 125.0F;
constexpr Single highestMetricTdb = 50.0F;

/// Shows a clipped value in its field, with a warning beside it.
void showClip(TextField& field, const std::string& text, Label& unit, const char* warning)
{
    field.setText(text);
    unit.setBackColour(Colours::Red);
    unit.setForeColour(Colours::White);
    unit.setCaption(warning);
}

} // namespace

void AirPanel::btnCALCULATE_Click()
{
    try {
        calculate();
    } catch (const RunTimeError&) {
        refuseInput();
    }
}

void AirPanel::refuseInput()
{
    btnCALCULATE.disable();
    MsgBox("Input Out of Range, Try Again!", " ERROR");
}

void AirPanel::calculate()
{
    RepaintForm();
    EnableAll(switched.offAtCalculation, false);
    StatePoint.Tdb = ParseSingle(txtTdb.text());
    if (StatePoint.Tdb < lowestTdb || StatePoint.Tdb > highestTdb) {
        btnCALCULATE.disable();
        MsgBox("Temperature Input Out of Range, Try Again!", " ERROR");
        return;
    }
    readPressure();
    // Metric refuses temperatures above 50 and up to 125 degrees with a different message.
    if (IsMetric() && rules.limitsMetricTdb && StatePoint.Tdb > highestMetricTdb) {
        refuseInput();
        return;
    }
    if (solveSelectedItem())
        finishCalculation();
}

/// Also runs after a refused humidity ratio, so that the user can continue with the refused state.
void AirPanel::finishCalculation()
{
    EnableAll(switched.offAfterwards, false);
    EnableAll(switched.onAfterwards, true);
    if (switched.focusAfterwards != nullptr)
        switched.focusAfterwards->takeFocus();
}

void AirPanel::showResults()
{
    Results2Form();
    afterResults();
}

void AirPanel::readPressure()
{
    const Single shown = ParseSingle(txtP.caption());
    StatePoint.P = IsMetric() ? RoundToSingle(shown * 1000.0) : shown;
}

/// Returns false and does nothing if no item is selected.
bool AirPanel::solveSelectedItem()
{
    if (HumiditySelector == "Wetbulb")
        solveWetBulbItem();
    else if (HumiditySelector == "Dew Point")
        solveDewPointItem();
    else if (HumiditySelector == "Rel")
        solveRelativeHumidityItem();
    else if (HumiditySelector == "W")
        solveHumidityRatioItem();
    else if (HumiditySelector == "Grains")
        solveGrainsItem();
    else
        return false;
    return true;
}

void AirPanel::solveWetBulbItem()
{
    StatePoint.Twb = ParseSingle(txtTwb.text());
    if (StatePoint.Twb >= StatePoint.Tdb) {
        StatePoint.Twb = StatePoint.Tdb - rules.wetBulbClip.value(IsMetric());
        showClip(txtTwb, PlainText(StatePoint.Twb), lblTwb2, " Twb clipped at Tdb");
    }
    SolveFromWetBulb();
    showResults();
}

void AirPanel::solveDewPointItem()
{
    StatePoint.td = ParseSingle(txttd.text());
    if (StatePoint.td >= StatePoint.Tdb) {
        StatePoint.td = StatePoint.Tdb - rules.dewPointClip.value(IsMetric());
        showClip(txttd, PlainText(StatePoint.td), lblDewPt2, " Dew Pt. clipped at Tdb");
    }
    SolveFromDewPoint();
    showResults();
}

void AirPanel::solveRelativeHumidityItem()
{
    StatePoint.RH = ParseSingle(txtRH.text());
    if (StatePoint.RH > 100.0) {
        StatePoint.RH = 100;
        showClip(txtRH, "100", lblRH2, " RH clipped at 100%");
    }
    if (StatePoint.RH <= 0.0) {
        StatePoint.RH = 0.1;
        showClip(txtRH, PlainText(StatePoint.RH), lblRH2, " RH clipped at 0.1%");
    }
    SolveFromRH();
    showResults();
}

void AirPanel::solveHumidityRatioItem()
{
    const Single shown = ParseSingle(txtW.text());
    StatePoint.W = IsMetric() ? RoundToSingle(shown / 1000.0) : shown;
    if (StatePoint.W <= 0.00001) { // intentional: kg/kg in Metric, too, and shown as such
        StatePoint.W = 0.00001;
        showClip(txtW, PlainText(StatePoint.W), lblW2, " W clipped at 0.00001");
    }
    SolveFromW();
    if (HumidityRatioTooHigh == 0)
        showResults();
}

void AirPanel::solveGrainsItem()
{
    StatePoint.Grains = ParseSingle(txtGrains.text());
    if (StatePoint.Grains <= 0.1) {
        StatePoint.Grains = 0.1;
        showClip(txtGrains, PlainText(StatePoint.Grains), lblGrains2, " grains clipped at 0.1");
    }
    SolveFromGrains();
    if (GrainsTooHigh == 0)
        showResults();
}
