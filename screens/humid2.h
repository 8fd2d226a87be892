#pragma once

#include "reports/Reports.h"
#include "screens/FormParts.h"

/// The second screen of the humidification calculator: the desired air, its quantity and the water to add.
class humid2 : public forms::Form
{
public:
    humid2();

    /// The texts on the form, for the report.
    HumidityTexts texts() const;

protected:
    void Form_Load() override;
    void Form_QueryUnload(CloseReason reason) override;

private:
    void layOut();
    int captionWidth() const;
    void layOutDesired();
    void layOutQuantities();
    void layOutMoisture();
    void buildMenus();
    void RepaintHumid2();
    void nameFields();

    void btnCalcHumid_Click();
    void btnOK_Click() { Hide(); }
    void mnuPrint_Click()
    {
        PrintHumidity(*this, [this] { return texts(); });
    }
    void mnuSave_Click()
    {
        SaveHumidity(*this, [this] { return texts(); });
    }
    void mnuExit_Click() { Unload(); }
    void mnuMain_Click() { Unload(); } // intentional: returns to the outside air, despite its caption
    void mnuHumid2Help_Click() { OpenHelp(*this, HelpTopic::Humidification); }
    // Intentional: the search opens this topic on every calculator.
    void mnuSearch_Click() { OpenHelp(*this, HelpTopic::AirProperties); }
    void mnuAbout_Click() { ShowAbout(); }

    void solveDesiredAir();
    void showMoisture();

    Frame Frame2{*this, "Frame2", "Enter Desired Humidity and Temperature:"};
    Label Label13{*this, "Label13", "  Desired Space Temperature           "};
    TextField txtDesT{*this, "txtDesT"};
    Label lblT{*this, "lblT"};
    Label Label1{*this, "Label1", "  Desired Relative Humidity                 "};
    TextField txtDesH{*this, "txtDesH"};
    Label lblRH{*this, "lblRH"};

    Frame Frame1{*this, "Frame1"};
    Label Label17{*this, "Label17", "Next, Enter either Infiltration parameters or Volume of Outside Air"};
    Label Label8{*this, "Label8", "Natural Infiltration :"};
    Label Label2{*this, "Label2", "  Volume of Space               "};
    TextField txtVol{*this, "txtVol"};
    Label lblSpaceVol{*this, "lblSpaceVol"};
    Label Label3{*this, "Label3", "  Estimated Air Changes (outside air)"};
    TextField txtAC{*this, "txtAC"};
    Label lblAC{*this, "lblAC"};
    Label Label16{*this, "Label16", "or Volume of Outside Air:"};
    Label lblOSAFlow1{*this, "lblOSAFlow1"};
    TextField txtOSA{*this, "txtOSA"};
    Label lblOSAFlow2{*this, "lblOSAFlow2"};

    Frame Frame3{*this, "Frame3", "Required Moisture :"};
    TextField txtMassPerHour{*this, "txtMassPerHour"};
    Label lblMassPerHour{*this, "lblMassPerHour"};
    TextField txtMassPerDay{*this, "txtMassPerDay"};
    Label lblMassPerDay{*this, "lblMassPerDay"};
    TextField txtFlowPerHour{*this, "txtFlowPerHour"};
    Label lblFlowPerHour{*this, "lblFlowPerHour"};
    TextField txtFlowPerDay{*this, "txtFlowPerDay"};
    Label lblFlowPerDay{*this, "lblFlowPerDay"};

    Button btnCalcHumid{*this, "btnCalcHumid", "Click Here to Calculate Humidification",
                        [this] { btnCalcHumid_Click(); }};
    Button btnOK{*this, "btnOK", "Click Here When Done", [this] { btnOK_Click(); }};

    Menu mnuFile{*this, "mnuFile", "&File"};
    MenuCommand mnuPrint{*this, "mnuPrint", "&Print Results", [this] { mnuPrint_Click(); }};
    MenuCommand mnuSave{*this, "mnuSave", "&Save Results to File", [this] { mnuSave_Click(); }};
    MenuSeparator mnuSpacer{*this, "mnuSpacer"};
    MenuCommand mnuExit{*this, "mnuExit", "E&xit", [this] { mnuExit_Click(); }};
    MenuCommand mnuMain{*this, "mnuMain", "&Main Menu", [this] { mnuMain_Click(); }};
    Menu mnuHelp{*this, "mnuHelp", "&Help"};
    MenuCommand mnuHumid2Help{*this, "mnuHumid2Help", "Help for Humidity", [this] { mnuHumid2Help_Click(); }};
    MenuCommand mnuSearch{*this, "mnuSearch", "&Search for Help on ...", [this] { mnuSearch_Click(); }};
    MenuCommand mnuAbout{*this, "mnuAbout", "&About Dunmoor", [this] { mnuAbout_Click(); }};
};
