#include "screens/CoolingLoad3.h"

#include "screens/CoolingLoad1.h"

using namespace forms;

CoolingLoad3::CoolingLoad3() : Form("CoolingLoad3", FormKind::Dialog)
{
    layOut();
    setDefaultButton(Command1);
    closeOnEsc();
    onHelpKey([this] { OpenHelp(*this, HelpTopic::Cooling); });
}

void CoolingLoad3::layOut()
{
    enum Place
    {
        Words,
        Sign,
        Value,
        Unit,
        Factor
    };
    auto* const grid = new Grid(*this, {24, 24, 24, 20}, 12);
    const auto addRow = [grid](int row, Label& before, Place column, TextField& field, Label& unit) {
        before.alignRight();
        field.alignRight();
        before.describe(field);
        grid->add(before, row, column);
        grid->add(field, row, Value);
        grid->add(unit, row, Unit);
    };
    addRow(0, Label2, Words, txtcfm1, lblcfm1);
    grid->setRowMinimumHeight(1, 10);
    addRow(2, Label1, Words, txtBTU[1], lblBTU[1]);
    grid->add(Label3, 2, Factor);
    addRow(3, Label4, Sign, txtBTU[2], lblBTU[2]);
    grid->add(Line1, 4, Sign, 1, Unit - Sign + 1);
    addRow(5, Label5, Sign, txtBTU[0], lblBTU[0]);
    grid->setRowMinimumHeight(6, 10);
    grid->add(Command1, 7, Value);
    grid->setColumnMinimumWidth(Value, WidthOfCharacters(Label1, 18));
    for (Label* sign : {&Label4, &Label5})
        sign->setPointSize(12);
    // In the order of the sum, not of the indexes.
    SetTabOrder({&txtcfm1, &txtBTU[1], &txtBTU[2], &txtBTU.front(), &Command1});
}

void CoolingLoad3::Form_Load()
{
    setBackColour(Colours::LightGrey);
    RepaintCooling3();
    fitToControls();
    placeInTheMiddle(4);
    txtcfm1.setText(FormatNumber(AirVolume, "#,###.0#")); // the text from the dialog, or 0
}

void CoolingLoad3::RepaintCooling3()
{
    const bool isMetric = IsMetric();
    setCaption(isMetric ? " Cooling Load Summary - (Metric / SI Units)"
                        : " Cooling Load Summary - (English Units)");
    lblcfm1.setCaption(isMetric ? " cubic meter per hour " : " CFM ");
    lblBTU[1].setCaption(isMetric ? " kW Sensible " : " BTU Sensible ");
    lblBTU[2].setCaption(isMetric ? " kW Latent " : " BTU Latent ");
    lblBTU[0].setCaption(isMetric ? " kW Total " : " BTU Total ");
    Label3.setCaption(isMetric ? " @ 1.2072 kWh /m3 deg C " : " @ 1.08 BTU per CFM deg F ");
    const char* const loadUnit = isMetric ? "kW" : "BTU";
    NameWithUnit(txtcfm1, "Air volume", lblcfm1.caption());
    NameWithUnit(txtBTU[1], "Sensible load", loadUnit);
    NameWithUnit(txtBTU[2], "Latent load", loadUnit);
    NameWithUnit(txtBTU[0], "Total load", loadUnit);
}

void CoolingLoad3::Command1_Click()
{
    Unload();
    form<CoolingLoad1>().Show();
}

void CoolingLoad3::Form_QueryUnload(CloseReason reason)
{
    Unload();
    if (reason == CloseReason::ControlMenu)
        form<CoolingLoad1>().Show();
}
