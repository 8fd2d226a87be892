#include "screens/Humid1.h"

using namespace forms;

Humid1::Humid1() : AirPanel("Humid1", humid1)
{
    layOut();
    buildMenus();
    switched = {.offOnClick = {&btnHumidityDesired},
                .offAfterwards = {&btnCALCULATE},
                .onAfterwards = {&btnHumidityDesired}};
}

void Humid1::layOut()
{
    layOutActions({&btnCALCULATE, &btnHumidityDesired});
    layOutFramesBelow(Frame6);
}

void Humid1::Form_Load()
{
    ClearStatePoint();
    PlaceScreen(*this);
    RepaintForm();
    btnCALCULATE.disable();
    btnHumidityDesired.disable();
    form<humid2>();
}

void Humid1::afterResults() { HumidOutsideAir = AirSnapshot::of(StatePoint, HumidOutsideAir.AirVolume); }

// The close box unloads the two forms in the opposite order of the menus.
void Humid1::Form_QueryUnload(CloseReason reason)
{
    if (reason == CloseReason::ControlMenu) {
        form<humid2>().Unload();
        Unload();
        ShowMainForm();
    }
}

void Humid1::leave()
{
    Unload();
    form<humid2>().Unload();
    ShowMainForm();
}
