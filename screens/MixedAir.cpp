#include "screens/MixedAir.h"

#include "screens/cfmForm.h"

using namespace forms;

MixedAir::MixedAir() : AirPanel("MixedAir", mixedAir)
{
    layOut();
    buildReviewMenu();
    buildMenus(&mnuReview);
    switched = {.offOnChange = {&btnRA, &btnSaveOSA, &btnMixedAir},
                .offOnClick = {&btnRA, &btnSaveOSA, &btnMixedAir},
                .onAfterwards = {&btnSaveOSA, &btnRA}};
    txtcfm1.onChange([this] { txtcfm1_Change(); });
    txtCFM.onKeyPress([this](int& key) { txtCFM_KeyPress(key); });
}

void MixedAir::layOut()
{
    layOutActions({&btnCALCULATE, &btnSaveOSA, &btnRA, &btnMixedAir});
    LayOutPairs(Frame4, {{txtcfm1, lblcfm1}, {txtcfm2, lblcfm2}, {txtCFM, lblcfm3}});
    layOutFrames(*new Grid(*this), &Frame4);
    Frame4.hide();
}

void MixedAir::buildReviewMenu()
{
    mnuReview.add(mnuReviewOutsideAir, mnuReviewReturnAir, mnuReviewMixedAir);
    mnuReview.hide();
    mnuReview.disable();
    mnuReviewMixedAir.disable(); // permanently: the mixture has no review
}

void MixedAir::Form_Load()
{
    ClearStatePoint();
    RepaintForm();
    PlaceScreen(*this);
    form<cfmForm>();
    EnableAll({&btnCALCULATE, &btnRA, &btnSaveOSA, &btnMixedAir}, false);
    setVolumesVisible(false);
    for (TextField* field : {&txtTdb, &txtTwb, &txttd, &txtRH, &txtW, &txtGrains, &txtSpVol, &txth})
        field->clear();
}

void MixedAir::setVolumesVisible(bool visible)
{
    for (Label* label : {&lblcfm1, &lblcfm2, &lblcfm3})
        label->setVisible(visible);
    for (TextField* field : {&txtcfm1, &txtcfm2, &txtCFM})
        field->setVisible(visible);
}

void MixedAir::repaintExtras()
{
    const bool isMetric = IsMetric();
    lblcfm1.setCaption(isMetric ? " m3/h Outside Air" : " Cfm Outside Air");
    lblcfm2.setCaption(isMetric ? " m3/h Return Air" : " Cfm Return Air");
    lblcfm3.setCaption(isMetric ? " m3/h Total Mixed Air" : " CFM Total Mixed Air");
    const char* const unit = isMetric ? "m3/h" : "cfm";
    NameWithUnit(txtcfm1, "Outside air volume", unit);
    NameWithUnit(txtcfm2, "Return air volume", unit);
    NameWithUnit(txtCFM, "Total air volume", unit);
    // Intentional: a calculation repaints the form first, so in English the last grains replace those typed.
    if (!isMetric)
        txtGrains.setText(PlainText(StatePoint.Grains));
}

void MixedAir::txtcfm1_Change()
{
    if (txtcfm1.isEmpty())
        return;
    AirVolume = txtcfm1.text();
    MixedOutsideAir.AirVolume = AirVolume.asSingle();
}
