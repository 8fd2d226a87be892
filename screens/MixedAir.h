#pragma once

#include "core/AirSnapshot.h"
#include "platform/forms/Menu.h"
#include "screens/AirPanel.h"

/// The mixed air calculator: two streams of air, each saved with its volume, and their adiabatic mixture.
/// The streams and the mixture are process-wide snapshots and outlast the form.
class MixedAir : public AirPanel
{
public:
    MixedAir();

protected:
    void Form_Load() override;
    void repaintExtras() override;

private:
    void layOut();
    void buildMenus();

    void btnSaveOSA_Click();
    void btnRA_Click();
    void btnMixedAir_Click();
    void txtcfm1_Change();
    void txtCFM_KeyPress(int& key);
    void mnuReviewOutsideAir_Click();
    void mnuReviewReturnAir_Click();
    void mnuPrintDialog_Click();
    void mnuSave_Click();

    void mix();
    void showAnswers();
    void offerReview(MenuCommand& stream);
    void showStream(const AirSnapshot& stream, TextField& volume);

    Button btnSaveOSA{*this, "btnSaveOSA", "Save Outside Air"};
    Button btnRA{*this, "btnRA", "Save Return Air"};
    Button btnMixedAir{*this, "btnMixedAir", "Calculate Mixed Air"};
    Frame Frame4{*this, "Frame4", "Air Volumes:"};
    TextField txtcfm1{*this, "txtcfm1"};
    Label lblcfm1{*this, "lblcfm1"};
    TextField txtcfm2{*this, "txtcfm2"}; // typing here has no effect on any calculation
    Label lblcfm2{*this, "lblcfm2"};
    TextField txtCFM{*this, "txtCFM"};
    Label lblcfm3{*this, "lblcfm3"};

    Menu mnuFile{*this, "mnuFile", "&File"};
    MenuCommand mnuPrintDialog{*this, "mnuPrintDialog", "&Print Results"};
    MenuCommand mnuSave{*this, "mnuSave", "&Save Results to File"};
    MenuSeparator mnuFiledash2{*this, "mnuFiledash2"};
    MenuCommand mnuExit{*this, "mnuExit", "E&xit"};
    MenuCommand mnuMain1{*this, "mnuMain1", "&Main Menu"};
    Menu mnuReview{*this, "mnuReview", "&Review"};
    MenuCommand mnuReviewOutsideAir{*this, "mnuReviewOutsideAir", "&Outside Air"};
    MenuCommand mnuReviewReturnAir{*this, "mnuReviewReturnAir", "&Return Air"};
    MenuCommand mnuReviewMixedAir{*this, "mnuReviewMixedAir", "&Mixed Air"};
    Menu mnuHelp1{*this, "mnuHelp1", "&Help"};
    MenuCommand mnuHelpMixedAir{*this, "mnuHelpMixedAir", "Help for &Mixed Air"};
    MenuCommand mnuHSearch{*this, "mnuHSearch", "&Search for Help On"};
    MenuCommand mnuAbout{*this, "mnuAbout", "&About Dunmoor"};
};
