#include "screens/Answers1.h"

#include "screens/MixedAir.h"

#include <algorithm>
#include <vector>

using namespace forms;

namespace {

using Air = AirSnapshot;

constexpr ShownQuantity percent{" % R.H.", "##0.0", 100};
constexpr ShownQuantity perPound{" lb. water/lb. dry air", "#0.0000"};
constexpr ShownQuantity grams{" g water/kg dry air", "#0.00", 1000};
constexpr ShownQuantity grains{" grains water/lb. dry air", "##0.0"};
constexpr ShownQuantity none{" ", nullptr};
constexpr ShownQuantity cubicFeet{" ft3 air/lb.", "##0.000"};
constexpr ShownQuantity cubicMeters{" m3/kg dry air", "##0.000"};

// The table from the top. Metric has no grains row.
constexpr TableQuantity quantities[] = {
    {"Label10", "  Volume", "lblcfm", &Air::AirVolume, {" CFM", "##,##"}, {" m3 / h", "##,##"}},
    {"Label1", "  Dry Bulb Temp", "lblTdb", &Air::Tdb, {" Deg. F", "##0.0"}, {" Deg. C", "##0.0"}},
    {"Label2", "   Wet Bulb Temp", "lblTwb", &Air::Twb, {" Deg. F", "##0.0"}, {" Deg. C", "##0.0"}},
    {"Label16", "   Dew Point Temp", "lbltd", &Air::td, {" Deg. F", "##0.0"}, {" Deg. C", "##0.0"}},
    {"Label12", "   Relative Humidity", "lblRH", &Air::RH, percent, percent},
    {"Label17", "   Humidity Ratio, W", "lblW", &Air::W, perPound, grams},
    {"lblGrainsHead", "   Humidity Ratio, gr", "lblGrains", &Air::Grains, grains, none},
    {"lblSpVolHead", "  Specific Volume, v", "lblSpVol", &Air::SpVol, cubicFeet, cubicMeters},
    {"lblHHead", "  Enthalpy, h", "lblH", &Air::h, {" Btu/lb.", "##0.00"}, {" kJ/kg", "##0.00"}},
};

constexpr Colour cellColour{0x80, 0xFF, 0xFF};
constexpr Colour captionColour{0xFF, 0xFF, 0xC0};
constexpr Colour headingColour{0xC0, 0xFF, 0xFF};

constexpr std::array<Twips, 3> columnLeft{2100, 2940, 3780};
constexpr std::array<const char*, 3> headings{" Outside       Air", " Return        Air",
                                              "  Mixed         Air"};
constexpr std::array<const char*, 3> streams{"Outside air", "Return air", "Mixed air"};
constexpr Twips cellWidth = 750;
constexpr Twips cellHeight = 270;
constexpr Twips firstRowTop = 735;
constexpr Twips rowDistance = 420;

void placeText(Label& label, Twips left, Twips top, Twips width, Colour colour, Twips height = cellHeight)
{
    label.place(left, top, width, height);
    ColourLabels({&label}, colour);
}

TaggedNumber valueOf(const TableQuantity& quantity, const AirSnapshot& stream)
{
    return TaggedNumber(stream.*quantity.value) * quantity.shown().factor;
}

} // namespace

Answers1::Answers1() : Form("Answers1", FormKind::Screen)
{
    placeHeadings();
    buildMenus();
    onHelpKey([this] { OpenHelp(*this, HelpTopic::MixedAir); });
}

Answers1::Cells Answers1::makeCells(const std::string& arrayName)
{
    return {Label(*this, arrayName + "(0)"), Label(*this, arrayName + "(1)"),
            Label(*this, arrayName + "(2)")};
}

Answers1::TableRow::TableRow(Answers1& form, const TableQuantity& itsQuantity)
    : quantity(itsQuantity),
      caption(form, quantity.captionName, quantity.caption),
      cells(form.makeCells(quantity.cellsName)),
      unit(form, std::string(quantity.cellsName) + "Tail")
{}

void Answers1::TableRow::hide()
{
    caption.setCaption(" ");
    caption.hide();
    unit.hide();
    for (Label& cell : cells)
        cell.hide();
}

std::deque<Answers1::TableRow> Answers1::makeRows()
{
    std::deque<TableRow> made;
    for (const TableQuantity& quantity : quantities)
        made.emplace_back(*this, quantity);
    return made;
}

void Answers1::placeHeadings()
{
    for (std::size_t column = 0; column < columnLeft.size(); ++column) {
        Label& heading = lblHeading[column];
        placeText(heading, columnLeft[column], 105, cellWidth, headingColour, 540);
        heading.setCaption(headings[column]);
        heading.setWrapped();
        heading.center();
    }
}

void Answers1::placeRow(TableRow& row, Twips top)
{
    placeText(row.caption, 210, top, 1800, captionColour);
    placeText(row.unit, 4620, top, 2000, captionColour);
    for (std::size_t column = 0; column < columnLeft.size(); ++column) {
        placeText(row.cells[column], columnLeft[column], top, cellWidth, cellColour);
        row.cells[column].alignRight();
    }
}

void Answers1::buildMenus()
{
    mnuFile.add(mnuPrintResults, mnuSave2File, mnusep2, mnuPrevious, mnusep3, mnuExit);
    mnuhelp.add(mnuHContents, mnuAbout);
    addToMenuBar(mnuFile, mnuhelp);
}

void Answers1::Form_Load()
{
    PlaceScreen(*this);
    RepaintForm();
}

/// Lays out the rows that the unit system has.
void Answers1::RepaintForm()
{
    const bool isMetric = IsMetric();
    setCaption(isMetric ? " Dunmoor  -  Mixed Air Calculation Summary (Metric Units)"
                        : " Dunmoor  -  Mixed Air Calculation Summary (English Units)");
    Twips top = firstRowTop;
    for (TableRow& row : rows) {
        placeRow(row, top);
        row.unit.setCaption(row.quantity.shown().unit);
        if (row.quantity.shown().picture != nullptr)
            top += rowDistance;
        else
            row.hide();
    }
    btnOK.place(2940, isMetric ? 4250 : 5040, cellWidth, 360);
    sizeTexts();
}

/// One size for the whole table: the largest at which each text fits its cell.
void Answers1::sizeTexts()
{
    std::vector<Label*> texts;
    for (Label& heading : lblHeading)
        texts.push_back(&heading);
    for (TableRow& row : rows) {
        texts.insert(texts.end(), {&row.caption, &row.unit});
        for (Label& cell : row.cells)
            texts.push_back(&cell);
    }
    int pixels = texts.front()->fittingArial();
    for (const Label* const text : texts)
        pixels = std::min(pixels, text->fittingArial());
    for (Label* const text : texts)
        text->setArial(pixels);
}

void Answers1::fill()
{
    fillColumn(0, MixedOutsideAir);
    fillColumn(1, MixedReturnAir);
    fillColumn(2, MixedResultAir);
    sizeTexts();
}

void Answers1::fillColumn(std::size_t column, const AirSnapshot& stream)
{
    for (TableRow& row : rows) {
        Label& cell = row.cells[column];
        const char* const picture = row.quantity.shown().picture;
        cell.setEnabled(picture != nullptr);
        if (picture == nullptr)
            continue;
        const std::string text = FormatNumber(valueOf(row.quantity, stream), picture);
        cell.setCaption(text);
        cell.setAccessibleName(streams[column] + (" -" + row.caption.caption()) + ": " + text +
                               row.unit.caption());
    }
}

void Answers1::returnToCalculator()
{
    Unload();
    form<MixedAir>().Show();
}

void Answers1::Form_QueryUnload(CloseReason reason)
{
    if (reason == CloseReason::ControlMenu)
        returnToCalculator();
}

// The calculator stays loaded and hidden, and keeps its contents.
void Answers1::mnuExit_Click()
{
    Unload();
    ShowMainForm();
}
