#pragma once

#include "reports/Reports.h"
#include "screens/AirPanel.h"

/// The mixed air calculator: two streams of air, each saved with its volume, and their adiabatic mixture.
/// The streams and the mixture are global snapshots and outlive the form.
class MixedAir : public AirPanel
{
public:
    MixedAir();

protected:
    void Form_Load() override;
    void repaintExtras() override;

private:
    void layOut();
    void buildReviewMenu();

    void btnSaveOSA_Click();
    void btnRA_Click();
    void btnMixedAir_Click();
    void txtcfm1_Change();
    void txtCFM_KeyPress(int& key) { key = forms::Key::Swallowed; }
    void mnuReviewOutsideAir_Click();
    void mnuReviewReturnAir_Click();
    void mnuPrintDialog_Click() override { PrintMixedAir(*this); }
    void mnuSave_Click() override { SaveMixedAir(*this); }

    void setVolumesVisible(bool visible);
    void mix();
    void showAnswers();
    void offerReview(MenuCommand& stream);
    void showStream(const AirSnapshot& stream, TextField& volume);

    Button btnSaveOSA{*this, "btnSaveOSA", "Save Outside Air", [this] { btnSaveOSA_Click(); }};
    Button btnRA{*this, "btnRA", "Save Return Air", [this] { btnRA_Click(); }};
    Button btnMixedAir{*this, "btnMixedAir", "Calculate Mixed Air", [this] { btnMixedAir_Click(); }};
    Frame Frame4{*this, "Frame4", "Air Volumes:"};
    TextField txtcfm1{*this, "txtcfm1"};
    Label lblcfm1{*this, "lblcfm1"};
    TextField txtcfm2{*this, "txtcfm2"}; // typing here does not affect any calculation
    Label lblcfm2{*this, "lblcfm2"};
    TextField txtCFM{*this, "txtCFM"};
    Label lblcfm3{*this, "lblcfm3"};

    Menu mnuReview{*this, "mnuReview", "&Review"};
    MenuCommand mnuReviewOutsideAir{*this, "mnuReviewOutsideAir", "&Outside Air",
                                    [this] { mnuReviewOutsideAir_Click(); }};
    MenuCommand mnuReviewReturnAir{*this, "mnuReviewReturnAir", "&Return Air",
                                   [this] { mnuReviewReturnAir_Click(); }};
    MenuCommand mnuReviewMixedAir{*this, "mnuReviewMixedAir", "&Mixed Air"};
};
