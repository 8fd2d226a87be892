#include "shell/MainForm.h"

#include "chart/ChartPicture.h"
#include "chart/ChartWindow.h"
#include "core/MainMod.h"
#include "screens/AirPropertiesCalc.h"
#include "screens/CoolingLoad1.h"
#include "screens/HeatingLoad1.h"
#include "screens/Humid1.h"
#include "screens/MixedAir.h"
#include "shell/About.h"
#include "shell/Settings.h"
#include "shell/Store.h"

using namespace forms;

void ShowMainForm() { form<MainForm>().Show(); }

void ShowAbout() { form<About>().ShowModal(); }

MainForm::MainForm()
    : Form("MainForm", FormKind::Screen),
      Image1(*this, "Image1",
             std::make_unique<chart::ChartPicture>(*this, [] { form<chart::ChartWindow>().Show(); }))
{
    setCaption("Dunmoor");
    layOut();
    buildMenus();
    mnuHSearch.setShortcut("F1");
}

void MainForm::layOut()
{
    lblProductName.setFontSize(240, true);
    lblProduct.setFontSize(130, false);
    Image1.setAccessibleName("Psychrometric chart");
    btnAirCalc.setToolTip("Psychrometric Calculation");
    btnMixedAir.setToolTip("Calculate Properties of a Mixture of 2 Air Volumes");
    btnCooling.setToolTip("Calculate Cooling Coil Loads");
    btnHeating.setToolTip("Calculate Heating Coil Loads");
    btnHumidity.setToolTip("Calculate Humidification Requirements");

    auto* const buttons = new Column;
    buttons->setSpacing(14);
    for (Button* button : {&btnAirCalc, &btnMixedAir, &btnCooling, &btnHeating, &btnHumidity}) {
        SetLeastHeight(*button, HeightOfLines(*button, 2.5));
        buttons->add(*button);
    }
    buttons->addStretch();

    auto* const grid = new Grid(*this);
    grid->setContentsMargins(28, 20, 28, 28);
    grid->setHorizontalSpacing(28);
    grid->add(lblProductName, 0, 0);
    grid->add(lblProduct, 1, 0);
    grid->setRowMinimumHeight(2, 16);
    grid->addLayout(buttons, 3, 0);
    grid->add(Image1, 0, 1, 4, 1);
    SetLeastWidth(Image1, NaturalWidth(lblProduct) * 5 / 2); // keeps its share beside large letters
    grid->setColumnStretch(1, 1);
    grid->setColumnMinimumWidth(0, 190);
    grid->setRowStretch(3, 1);
}

void MainForm::buildMenus()
{
    mnuFile.add(mnuExit);
    mnuHelp.add(mnuHSearch, mnuAbout);
    addToMenuBar(mnuFile, mnuOptions, mnuHelp);
}

void MainForm::Form_Load()
{
    setSize(8000, 6600);
    placeInTheMiddle(4);
    UnitSystem = ParseBoolean(StoredText("Metric_Units", "false"));
    const std::string pressure =
        IsMetric() ? StoredText("Pressure_kPa", defaultKPa) : StoredText("Pressure_psi", defaultPsi);
    BaroPressure = RoundToSingle(ParseDouble(pressure));
    FillUnitTables();
}

void MainForm::Form_QueryUnload(CloseReason reason)
{
    if (reason == CloseReason::ControlMenu)
        leave();
}

void MainForm::Form_Unload()
{
    StoreText("Metric_Units", IsMetric() ? "True" : "False");
    StoreText("Baro_Pressure", PlainText(BaroPressure)); // never read: the options store the pressure
    Unload();
}

template <class Calculator>
void MainForm::open()
{
    Hide();
    form<Calculator>().Show();
}

void MainForm::btnAirCalc_Click() { open<AirPropertiesCalc>(); }
void MainForm::btnMixedAir_Click() { open<MixedAir>(); }
void MainForm::btnCooling_Click() { open<CoolingLoad1>(); }
void MainForm::btnHeating_Click() { open<HeatingLoad1>(); }
void MainForm::btnHumidity_Click() { open<Humid1>(); }

void MainForm::leave()
{
    Unload();
    EndProcess();
}

void MainForm::mnuOptions_Click()
{
    form<Settings>().ShowModal();
    chart::Choices::inForce().tellOfChange(); // the units or the pressure may have changed
}
