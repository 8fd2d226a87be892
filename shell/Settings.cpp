#include "shell/Settings.h"

#include "core/MainMod.h"
#include "platform/forms/MsgBox.h"
#include "shell/Store.h"

using namespace forms;

namespace {

/// The data for one entry of the form's list.
struct UnitChoice
{
    const char* entry;
    Boolean16 unitSystem;
    const char* unit;
    double lowest;
    double highest;
    const char* refusal;
    const char* storedFlag;
    const char* storedUnder;
    const char* readFrom;
    double missing;  ///< what the field shows if nothing is stored
    double standard; ///< what "Use Default Settings" sets
};

constexpr UnitChoice english{
    .entry = "English, I-P",
    .unitSystem = False16,
    .unit = " psi",
    .lowest = 11,
    .highest = 16,
    .refusal = "Please input an atmospheric pressure between 11 and 16 psi.",
    .storedFlag = "False",
    .storedUnder = "Pressure_psi",
    .readFrom = "Pressure_Psi", // the same key: the store ignores case
    .missing = defaultPsi,
    .standard = 14.696,
};

constexpr UnitChoice metric{
    .entry = "Metric, SI",
    .unitSystem = True16,
    .unit = " kPa",
    .lowest = 47,
    .highest = 108,
    .refusal = "Please input an atmospheric pressure between 47 and 108 kPa.",
    .storedFlag = "True",
    .storedUnder = "Pressure_kPa",
    .readFrom = "Pressure_kPa",
    .missing = defaultKPa,
    .standard = 101.325, // intentional: differs from the default for a missing key
};

/// The choice for a list entry; nullptr for any other text.
const UnitChoice* choiceOf(const std::string& entry)
{
    for (const UnitChoice* choice : {&english, &metric}) {
        if (entry == choice->entry)
            return choice;
    }
    return nullptr;
}

} // namespace

Settings::Settings() : Form("Settings", FormKind::Dialog)
{
    setCaption("Options/Settings");
    layOut();
    setDefaultButton(btnOK);
    setCancelButton(btnCancel);
    onHelpKey([this] { OpenOptionsHelp(*this); });
    Combo1.onClick([this] { Combo1_Click(); });
}

void Settings::layOut()
{
    auto* const grid = new Grid(*this, {20, 20, 20, 20}, 12);
    grid->setVerticalSpacing(14);
    AddCells(*grid, 0, {&lblUnits, &Combo1});
    AddCells(*grid, 1, {&lblBP, &txtBP, &Label1});
    grid->setColumnMinimumWidth(2, WidthOfCharacters(Label1, 6));
    grid->setColumnStretch(1, 1);
    grid->setRowMinimumHeight(2, 12);
    grid->addLayout(ButtonRow({&btnDefault}, {&btnOK, &btnCancel}), 3, 0, 1, 3);

    txtBP.alignRight();
    lblUnits.describe(Combo1);
    lblBP.describe(txtBP);
    Combo1.setAccessibleName("Units");
}

void Settings::Form_Load()
{
    Combo1.addItem(english.entry);
    Combo1.addItem(metric.entry);
    Combo1.select(IsMetric() ? 1 : 0);
    fitToControls();
    placeInTheMiddle(2);
}

/// Shows the pressure stored for the chosen unit system, which can differ from the current one.
void Settings::Combo1_Click()
{
    const UnitChoice& choice = Combo1.text() == english.entry ? english : metric;
    Label1.setCaption(choice.unit);
    txtBP.setText(StoredText(choice.readFrom, choice.missing));
    NameWithUnit(txtBP, "Barometric pressure", Label1.caption());
}

void Settings::btnOK_Click()
{
    if (const UnitChoice* const choice = choiceOf(Combo1.text())) {
        UnitSystem = choice->unitSystem; // intentional: set before the check, so it remains after a refusal
        Label1.setCaption(choice->unit);
        const double pressure = ParseDouble(txtBP.text());
        if (pressure < choice->lowest || pressure > choice->highest) {
            MsgBox(choice->refusal);
            return;
        }
        StoreText("Metric_Units", choice->storedFlag);
        StoreText(choice->storedUnder, txtBP.text());
    }
    BaroPressure = RoundToSingle(ParseDouble(txtBP.text()));
    Unload();
}

/// Saves at once. A later Cancel does not undo it.
void Settings::btnDefault_Click()
{
    if (const UnitChoice* const choice = choiceOf(Combo1.text())) {
        UnitSystem = choice->unitSystem;
        Label1.setCaption(choice->unit);
        StoreText("Metric_Units", choice->storedFlag);
        StoreText(choice->storedUnder, PlainText(choice->standard));
        BaroPressure = RoundToSingle(choice->standard);
    }
    txtBP.setText(PlainText(BaroPressure));
}
