#pragma once

#include "core/MainMod.h"
#include "reports/Reports.h"
#include "screens/FormParts.h"

#include <array>
#include <deque>

/// A quantity of the mixed air table, as the table shows it in one unit system.
struct ShownQuantity
{
    const char* unit = nullptr;
    const char* picture = nullptr; ///< null if the unit system doesn't have the quantity
    int factor = 1;
};

struct TableQuantity
{
    const char* captionName = nullptr;
    const char* caption = nullptr;
    const char* cellsName = nullptr; ///< without the index; with "Tail", the name of the unit
    Single AirSnapshot::*value = nullptr;
    ShownQuantity english;
    ShownQuantity metric;

    const ShownQuantity& shown() const { return IsMetric() ? metric : english; }
};

/// The mixed air table: outside air, return air and mixture side by side. MixedAir fills it before showing
/// it.
class Answers1 : public forms::Form
{
public:
    Answers1();

    /// Writes the three snapshots to the table.
    void fill();

protected:
    void Form_Load() override;
    void Form_QueryUnload(CloseReason reason) override;

private:
    using Cells = std::array<Label, 3>; // outside, return, mixed

    struct TableRow
    {
        TableRow(Answers1& form, const TableQuantity& itsQuantity);
        void hide();

        const TableQuantity& quantity;
        Label caption;
        Cells cells;
        Label unit;
    };

    void RepaintForm();
    void placeHeadings();
    void placeRow(TableRow& row, forms::Twips top);
    void sizeTexts();
    void buildMenus();
    void fillColumn(std::size_t column, const AirSnapshot& stream);
    Cells makeCells(const std::string& arrayName);
    std::deque<TableRow> makeRows();
    void returnToCalculator();

    void btnOK_Click() { returnToCalculator(); }
    void mnuPrevious_Click() { returnToCalculator(); }
    void mnuExit_Click();
    void mnuPrintResults_Click() { PrintMixedAir(*this); }
    void mnuSave2File_Click() { SaveMixedAir(*this); }
    // Intentional: opens the page of the air properties calculator.
    void mnuHContents_Click() { OpenHelp(*this, HelpTopic::AirProperties); }
    void mnuAbout_Click() { ShowAbout(); }

    Cells lblHeading = makeCells("lblHeading");
    std::deque<TableRow> rows = makeRows();
    Button btnOK{*this, "btnOK", "OK", [this] { btnOK_Click(); }};

    Menu mnuFile{*this, "mnuFile", "&File"};
    MenuCommand mnuPrintResults{*this, "mnuPrintResults", "&Print Results",
                                [this] { mnuPrintResults_Click(); }};
    MenuCommand mnuSave2File{*this, "mnuSave2File", "&Save Results to File",
                             [this] { mnuSave2File_Click(); }};
    MenuSeparator mnusep2{*this, "mnusep2"};
    MenuCommand mnuPrevious{*this, "mnuPrevious", "&Previous Screen", [this] { mnuPrevious_Click(); }};
    MenuSeparator mnusep3{*this, "mnusep3"};
    MenuCommand mnuExit{*this, "mnuExit", "E&xit", [this] { mnuExit_Click(); }};
    Menu mnuhelp{*this, "mnuhelp", "&Help"};
    MenuCommand mnuHContents{*this, "mnuHContents", "&Contents", [this] { mnuHContents_Click(); }};
    MenuCommand mnuAbout{*this, "mnuAbout", "&About Dunmoor", [this] { mnuAbout_Click(); }};
};
