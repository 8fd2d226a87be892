#include "screens/cfmForm.h"

#include "core/MainMod.h"

using namespace forms;

cfmForm::cfmForm() : Form("cfmForm", FormKind::Dialog)
{
    setCaption("Air Volume Input");
    layOut();
    mnuHelp.add(mnuSearch);
    addToMenuBar(mnuHelp);
    setDefaultButton(btnOK);
    setCancelButton(btnCancel);
    mnuSearch.setShortcut("F1");
}

void cfmForm::layOut()
{
    auto* const grid = new Grid(*this, {20, 20, 20, 20}, 12);
    grid->setVerticalSpacing(14);
    grid->add(Label1, 0, 0, 1, 2);
    AddCells(*grid, 1, {&txtCFMinput, &label2});
    grid->setColumnMinimumWidth(0, WidthOfCharacters(label2, 18));
    grid->setColumnMinimumWidth(1, WidthOfCharacters(label2, 24));
    grid->setRowMinimumHeight(2, 8);
    grid->addLayout(ButtonRow({}, {&btnOK, &btnCancel}), 3, 0, 1, 2);
    txtCFMinput.alignRight();
    Label1.describe(txtCFMinput);
}

void cfmForm::Form_Load()
{
    fitToControls();
    placeInTheMiddle(2);
}

void cfmForm::Form_Activate()
{
    label2.setCaption(IsMetric() ? " cubic meter per hour" : " CFM ");
    if (AirVolumePreset > 0)
        txtCFMinput.setText(PlainText(AirVolumePreset));
    NameWithUnit(txtCFMinput, "Air volume", label2.caption());
    txtCFMinput.takeFocus(); // last, so that the text is selected
}

void cfmForm::btnOK_Click()
{
    if (txtCFMinput.isEmpty())
        AirVolume = 0;
    else
        AirVolume = txtCFMinput.text();
    Hide();
}

void cfmForm::btnCancel_Click()
{
    AirVolume = 0;
    Hide();
}
