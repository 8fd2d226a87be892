#include "screens/Answers1.h"

#include "core/MainMod.h"
#include "platform/forms/Forms.h"
#include "reports/Reports.h"
#include "screens/Help.h"
#include "screens/MixedAir.h"
#include "screens/Shell.h"

using namespace forms;

namespace {

constexpr Colour cellColour{0x80, 0xFF, 0xFF};
constexpr Colour captionColour{0xFF, 0xFF, 0xC0};
constexpr Colour headingColour{0xC0, 0xFF, 0xFF};

constexpr std::array<Twips, 3> columnLeft{2100, 2940, 3780};
constexpr std::array<const char*, 3> headings{" Outside       Air", " Return        Air",
                                              "  Mixed         Air"};
constexpr std::array<const char*, 3> streams{"Outside air", "Return air", "Mixed air"};
constexpr Twips cellWidth = 750;
constexpr Twips cellHeight = 270;
constexpr Twips captionLeft = 210;
constexpr Twips captionWidth = 1800;
constexpr Twips unitLeft = 4620;
constexpr Twips unitWidth = 2000;

} // namespace

Answers1::Answers1() : Form("Answers1", FormKind::Screen)
{
    placeTable();
    buildMenus();
    btnOK.onClick([this] { btnOK_Click(); });
}

Answers1::Cells Answers1::makeCells(const std::string& arrayName)
{
    return {Label(*this, arrayName + "(0)"), Label(*this, arrayName + "(1)"),
            Label(*this, arrayName + "(2)")};
}

void Answers1::placeTable()
{
    for (std::size_t column = 0; column < columnLeft.size(); ++column) {
        Label& heading = lblHeading[column];
        heading.place(columnLeft[column], 105, cellWidth, 540);
        heading.setCaption(headings[column]);
        heading.setBackColour(headingColour);
        heading.setForeColour(Colours::Black);
        heading.setArial();
        heading.setWrapped();
    }
    placeRow(Label10, lblcfm, lblcfmTail, 735);
    placeRow(Label1, lblTdb, lblTdbTail, 1155);
    placeRow(Label2, lblTwb, lblTwbTail, 1575);
    placeRow(Label16, lbltd, lbltdTail, 1995);
    placeRow(Label12, lblRH, lblRHTail, 2415);
    placeRow(Label17, lblW, lblWTail, 2835);
    placeRow(lblGrainsHead, lblGrains, lblGrainsTail, 3255);
    placeRow(lblSpVolHead, lblSpVol, lblSpVolTail, 3675);
    placeRow(lblHHead, lblH, lblHTail, 4095);
    btnOK.place(2940, 5040, cellWidth, 360);
}

void Answers1::placeRow(Label& caption, Cells& cells, Label& unit, Twips top)
{
    caption.place(captionLeft, top, captionWidth, cellHeight);
    unit.place(unitLeft, top, unitWidth, cellHeight);
    for (Label* text : {&caption, &unit}) {
        text->setBackColour(captionColour);
        text->setForeColour(Colours::Black);
        text->setArial();
    }
    for (std::size_t column = 0; column < cells.size(); ++column) {
        Label& cell = cells[column];
        cell.place(columnLeft[column], top, cellWidth, cellHeight);
        cell.setBackColour(cellColour);
        cell.setForeColour(Colours::Black);
        cell.setArial();
        cell.alignRight();
    }
}

void Answers1::buildMenus()
{
    mnuFile.add(mnuPrintResults);
    mnuFile.add(mnuSave2File);
    mnuFile.add(mnusep2);
    mnuFile.add(mnuPrevious);
    mnuFile.add(mnusep3);
    mnuFile.add(mnuExit);
    mnuhelp.add(mnuHContents);
    mnuhelp.add(mnuAbout);
    addToMenuBar(mnuFile);
    addToMenuBar(mnuhelp);

    mnuPrintResults.onClick([this] { mnuPrintResults_Click(); });
    mnuSave2File.onClick([this] { mnuSave2File_Click(); });
    mnuPrevious.onClick([this] { mnuPrevious_Click(); });
    mnuExit.onClick([this] { mnuExit_Click(); });
    mnuHContents.onClick([this] { mnuHContents_Click(); });
    mnuAbout.onClick([this] { mnuAbout_Click(); });
}

void Answers1::Form_Load()
{
    setSize(8000, 6600);
    placeInTheMiddle(4);
    RepaintForm();
}

void Answers1::RepaintForm()
{
    const bool isMetric = IsMetric();
    setCaption(isMetric ? " Dunmoor  -  Mixed Air Calculation Summary (Metric Units)"
                        : " Dunmoor  -  Mixed Air Calculation Summary (English Units)");
    lblcfmTail.setCaption(isMetric ? " m3 / h" : " CFM");
    for (Label* degrees : {&lblTdbTail, &lblTwbTail, &lbltdTail})
        degrees->setCaption(isMetric ? " Deg. C" : " Deg. F");
    lblRHTail.setCaption(" % R.H.");
    lblWTail.setCaption(isMetric ? " g water/kg dry air" : " lb. water/lb. dry air");
    lblGrainsTail.setCaption(isMetric ? " " : " grains water/lb. dry air");
    lblSpVolTail.setCaption(isMetric ? " m3/kg dry air" : " ft3 air/lb.");
    lblHTail.setCaption(isMetric ? " kJ/kg" : " Btu/lb.");
    if (isMetric)
        moveUpPastGrains();
}

/// Metric has no grains row: the rows below it and the button move up.
void Answers1::moveUpPastGrains()
{
    lblGrainsHead.setCaption(" ");
    lblGrainsHead.hide();
    lblGrainsTail.hide();
    for (Label& cell : lblGrains)
        cell.hide();
    placeRow(lblSpVolHead, lblSpVol, lblSpVolTail, 3255);
    placeRow(lblHHead, lblH, lblHTail, 3675);
    btnOK.place(2940, 4250, cellWidth, 360);
}

void Answers1::fill()
{
    fillColumn(0, MixedOutsideAir);
    fillColumn(1, MixedReturnAir);
    fillColumn(2, MixedResultAir);
}

void Answers1::fillColumn(std::size_t column, const AirSnapshot& stream)
{
    const bool isMetric = IsMetric();
    const auto show = [&](Cells& cells, const Label& caption, const Label& unit, const TaggedNumber& value,
                          const char* picture) {
        const std::string text = FormatNumber(value, picture);
        cells[column].setCaption(text);
        cells[column].setAccessibleName(streams[column] + (" -" + caption.caption()) + ": " + text +
                                        unit.caption());
    };
    show(lblcfm, Label10, lblcfmTail, stream.AirVolume, "##,##");
    show(lblTdb, Label1, lblTdbTail, stream.Tdb, "##0.0");
    show(lblTwb, Label2, lblTwbTail, stream.Twb, "##0.0");
    show(lbltd, Label16, lbltdTail, stream.td, "##0.0");
    show(lblRH, Label12, lblRHTail, TaggedNumber(stream.RH) * 100, "##0.0");
    if (isMetric)
        show(lblW, Label17, lblWTail, TaggedNumber(stream.W) * 1000, "#0.00");
    else
        show(lblW, Label17, lblWTail, stream.W, "#0.0000");
    lblGrains[column].setEnabled(!isMetric);
    if (!isMetric)
        show(lblGrains, lblGrainsHead, lblGrainsTail, stream.Grains, "##0.0");
    show(lblSpVol, lblSpVolHead, lblSpVolTail, stream.SpVol, "##0.000");
    show(lblH, lblHHead, lblHTail, stream.h, "##0.00");
}

void Answers1::btnOK_Click()
{
    Unload();
    form<MixedAir>().Show();
}

void Answers1::mnuPrevious_Click()
{
    Unload();
    form<MixedAir>().Show();
}

void Answers1::Form_QueryUnload(CloseReason reason)
{
    if (reason == CloseReason::ControlMenu) {
        Unload();
        form<MixedAir>().Show();
    }
}

// The calculator stays loaded and hidden, and keeps its contents.
void Answers1::mnuExit_Click()
{
    Unload();
    ShowMainForm();
}

void Answers1::mnuPrintResults_Click() { PrintMixedAir(*this); }
void Answers1::mnuSave2File_Click() { SaveMixedAir(*this); }
// Intentional: opens the page of the air properties calculator.
void Answers1::mnuHContents_Click() { OpenHelp(*this, HelpTopic::AirProperties); }
void Answers1::mnuAbout_Click() { ShowAbout(); }
