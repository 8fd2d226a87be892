// The calculation of the air-state panel: ranges, clips and their warnings, and the solver for the item.

#include "core/InputLimits.h"
#include "platform/forms/MsgBox.h"
#include "screens/AirPanel.h"

using namespace forms;

namespace {

/// Shows a clipped value in its field, with the warning beside it. Does nothing without a warning.
void showClip(TextField& field, const TaggedNumber& value, Label& unit, const char* warning)
{
    if (warning == nullptr)
        return;
    field.setText(PlainText(value));
    unit.setBackColour(Colours::Red);
    unit.setForeColour(Colours::White);
    unit.setCaption(std::string(" ") + warning);
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
    if (StatePoint.Tdb < LowestTdb || StatePoint.Tdb > HighestTdb) {
        btnCALCULATE.disable();
        MsgBox("Temperature Input Out of Range, Try Again!", " ERROR");
        return;
    }
    readPressure();
    // Metric refuses temperatures above 50 and up to 125 degrees with a different message.
    if (IsMetric() && rules.limitsMetricTdb && StatePoint.Tdb > HighestMetricTdb) {
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
    const char* const warning = ClipWetBulb(rules.wetBulbClip.value(IsMetric()));
    showClip(txtTwb, StatePoint.Twb, lblTwb2, warning);
    SolveFromWetBulb();
    showResults();
}

void AirPanel::solveDewPointItem()
{
    StatePoint.td = ParseSingle(txttd.text());
    const char* const warning = ClipDewPoint(rules.dewPointClip.value(IsMetric()));
    showClip(txttd, StatePoint.td, lblDewPt2, warning);
    SolveFromDewPoint();
    showResults();
}

void AirPanel::solveRelativeHumidityItem()
{
    StatePoint.RH = ParseSingle(txtRH.text());
    const char* const warning = ClipRelativeHumidity();
    showClip(txtRH, StatePoint.RH, lblRH2, warning);
    SolveFromRH();
    showResults();
}

void AirPanel::solveHumidityRatioItem()
{
    const Single shown = ParseSingle(txtW.text());
    StatePoint.W = IsMetric() ? RoundToSingle(shown / 1000.0) : shown;
    const char* const warning = ClipHumidityRatio();
    showClip(txtW, StatePoint.W, lblW2, warning);
    SolveFromW();
    if (HumidityRatioTooHigh == 0)
        showResults();
}

void AirPanel::solveGrainsItem()
{
    StatePoint.Grains = ParseSingle(txtGrains.text());
    const char* const warning = ClipGrains();
    showClip(txtGrains, StatePoint.Grains, lblGrains2, warning);
    SolveFromGrains();
    if (GrainsTooHigh == 0)
        showResults();
}
