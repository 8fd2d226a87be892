#include "screens/Humid1.h"

#include "core/MainMod.h"
#include "platform/forms/Forms.h"
#include "reports/Reports.h"
#include "screens/Rows.h"
#include "screens/Shell.h"
#include "screens/humid2.h"

using namespace forms;

Humid1::Humid1() : AirPanel("Humid1", humid1)
{
    setCaption("Humidifier Calculation");
    layOut();
    buildMenus();
    btnHumidityDesired.onClick([this] { btnHumidityDesired_Click(); });
    bind(PanelButton::btnHumidityDesired, btnHumidityDesired);
}

void Humid1::layOut()
{
    auto* const panel = new Grid;
    layOutActions({&btnCALCULATE, &btnHumidityDesired});
    layOutFrames(*panel);
    layOutBelowBanner(*this, Frame6, *panel);
}

void Humid1::Form_Load()
{
    ClearStatePoint();
    placeScreen();
    RepaintForm();
    btnCALCULATE.disable();
    btnHumidityDesired.disable();
    form<humid2>();
}

void Humid1::afterResults() { SaveOutsideAir(); }

/// Saves all fields except the air volume, which this calculator never sets.
void Humid1::SaveOutsideAir() { HumidOutsideAir = AirSnapshot::of(StatePoint, HumidOutsideAir.AirVolume); }

void Humid1::btnHumidityDesired_Click() { form<humid2>().ShowModal(); }

// The close box unloads the two forms in the opposite order of the menus.
void Humid1::Form_QueryUnload(CloseReason reason)
{
    if (reason == CloseReason::ControlMenu) {
        form<humid2>().Unload();
        Unload();
        ShowMainForm();
    }
}

void Humid1::mnuExit_Click()
{
    Unload();
    form<humid2>().Unload();
    ShowMainForm();
}

void Humid1::mnuMain1_Click()
{
    Unload();
    form<humid2>().Unload();
    ShowMainForm();
}

void Humid1::mnuPrintDialog_Click()
{
    PrintHumidity(*this, [] { return form<humid2>().texts(); });
}

void Humid1::mnuSave_Click()
{
    SaveHumidity(*this, [] { return form<humid2>().texts(); });
}
