#include "screens/AirPropertiesCalc.h"
#include "screens/Answers1.h"
#include "screens/CoolingLoad1.h"
#include "screens/CoolingLoad2.h"
#include "screens/CoolingLoad3.h"
#include "screens/HeatingLoad1.h"
#include "screens/HeatingLoad2.h"
#include "screens/Humid1.h"
#include "screens/MixedAir.h"
#include "screens/cfmForm.h"
#include "screens/humid2.h"
#include "shell/About.h"
#include "shell/MainForm.h"
#include "shell/Settings.h"
#include "tests/support/ProgramTest.h"

#include <QAccessible>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <vector>

using namespace forms;

namespace {

struct ShownForm
{
    const char* name;
    Form& (*use)();
    const char* hiddenFrame = nullptr; ///< shown later by the form's handlers
};

template <class F>
Form& use()
{
    return form<F>();
}

const ShownForm everyForm[] = {
    {"MainForm", use<MainForm>},
    {"Settings", use<Settings>},
    {"About", use<About>},
    {"AirPropertiesCalc", use<AirPropertiesCalc>},
    {"MixedAir", use<MixedAir>},
    {"MixedAirWithVolumes", use<MixedAir>, "Frame4"},
    {"cfmForm", use<cfmForm>},
    {"Answers1", use<Answers1>},
    {"CoolingLoad1", use<CoolingLoad1>},
    {"CoolingLoad2", use<CoolingLoad2>},
    {"CoolingLoad3", use<CoolingLoad3>},
    {"HeatingLoad1", use<HeatingLoad1>},
    {"HeatingLoad2", use<HeatingLoad2>},
    {"Humid1", use<Humid1>},
    {"humid2", use<humid2>},
};

struct Case
{
    ShownForm form;
    bool metric;
};

std::vector<Case> everyFormInBothModes()
{
    std::vector<Case> cases;
    for (const ShownForm& form : everyForm) {
        cases.push_back({form, false});
        cases.push_back({form, true});
    }
    return cases;
}

std::ostream& operator<<(std::ostream& out, const Case& shown) { return out << shown.form.name; }

std::string nameOf(const testing::TestParamInfo<Case>& info)
{
    return std::string(info.param.form.name) + (info.param.metric ? "InMetric" : "InEnglish");
}

bool isText(const QWidget& widget) { return qobject_cast<const QLabel*>(&widget) != nullptr; }

bool isInput(const QWidget& widget)
{
    return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QPushButton*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr;
}

/// The size that shows a control's full text. The height of wrapped text depends on its width.
QSize neededSize(const QWidget& widget)
{
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    if (label != nullptr && label->wordWrap())
        return {0, label->heightForWidth(label->width())};
    const auto* const button = qobject_cast<const QPushButton*>(&widget);
    if (button != nullptr)
        return button->fontMetrics().size(Qt::TextShowMnemonic, button->text()) + QSize(8, 4);
    return widget.minimumSizeHint();
}

QString accessibleName(QWidget& widget)
{
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
}

} // namespace

/// Every form as it is first shown.
class EveryForm : public ProgramTest, public testing::WithParamInterface<Case>
{
protected:
    void SetUp() override
    {
        GetParam().metric ? startInMetric() : start();
        Form& shown = GetParam().form.use();
        shown.Show();
        window = shown.window();
        if (GetParam().form.hiddenFrame != nullptr)
            window->findChild<QWidget*>(GetParam().form.hiddenFrame)->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
    }

    /// The visible controls that show text, accept input or are a picture.
    std::vector<QWidget*> controls() const
    {
        std::vector<QWidget*> found;
        for (QWidget* const widget : window->findChildren<QWidget*>()) {
            const bool isEmptyLabel =
                isText(*widget) && widget->property("text").toString().trimmed().isEmpty();
            const bool isOurs = isText(*widget) || isInput(*widget) || widget->objectName() == "Image1";
            if (isOurs && !isEmptyLabel && widget->isVisible() && !widget->objectName().isEmpty())
                found.push_back(widget);
        }
        return found;
    }

    QRect placeOf(const QWidget& widget) const { return {widget.mapTo(window, QPoint(0, 0)), widget.size()}; }

    QWidget* window = nullptr;
};

TEST_P(EveryForm, ShowsNoControlOverAnother)
{
    const std::vector<QWidget*> all = controls();
    ASSERT_GE(all.size(), 3U);
    for (std::size_t i = 0; i < all.size(); ++i) {
        for (std::size_t j = i + 1; j < all.size(); ++j) {
            EXPECT_FALSE(placeOf(*all[i]).intersects(placeOf(*all[j])))
                << all[i]->objectName().toStdString() << " and " << all[j]->objectName().toStdString();
        }
    }
}

TEST_P(EveryForm, ShowsEachControlInsideIt)
{
    for (const QWidget* const control : controls()) {
        const QWidget* const parent = control->parentWidget();
        EXPECT_TRUE(window->rect().contains(placeOf(*control))) << control->objectName().toStdString();
        EXPECT_TRUE(parent->rect().contains(control->geometry())) << control->objectName().toStdString();
    }
    for (const QGroupBox* const frame : window->findChildren<QGroupBox*>()) {
        EXPECT_TRUE(!frame->isVisible() || window->rect().contains(placeOf(*frame)))
            << frame->objectName().toStdString();
    }
}

TEST_P(EveryForm, ShowsTheWholeTextOfEachControl)
{
    for (const QWidget* const control : controls()) {
        const QSize needed = neededSize(*control);
        EXPECT_GE(control->width(), needed.width()) << control->objectName().toStdString();
        EXPECT_GE(control->height(), needed.height()) << control->objectName().toStdString();
    }
    for (const QGroupBox* const frame : window->findChildren<QGroupBox*>()) {
        const int needed = frame->isVisible() ? frame->fontMetrics().horizontalAdvance(frame->title()) : 0;
        EXPECT_GE(frame->width(), needed) << frame->objectName().toStdString();
    }
}

TEST_P(EveryForm, GivesEachFieldALineOrTwo)
{
    for (const QLineEdit* const field : window->findChildren<QLineEdit*>()) {
        const int line = field->fontMetrics().height();
        EXPECT_GT(field->height(), line + 2) << field->objectName().toStdString();
        EXPECT_LE(field->height(), 2 * line) << field->objectName().toStdString();
    }
}

TEST_P(EveryForm, NamesEachControlForAssistiveTechnology)
{
    for (QWidget* const control : controls())
        EXPECT_FALSE(accessibleName(*control).trimmed().isEmpty()) << control->objectName().toStdString();
}

TEST_P(EveryForm, HasALabelForEachFieldThatTabReaches)
{
    std::vector<QWidget*> labelled;
    for (const QLabel* const label : window->findChildren<QLabel*>())
        labelled.push_back(label->buddy());
    for (QWidget* const control : controls()) {
        const bool isField = isInput(*control) && qobject_cast<QPushButton*>(control) == nullptr;
        // The volumes have their unit above them and their own name.
        const bool isVolume = QStringList{"txtcfm1", "txtcfm2", "txtCFM"}.contains(control->objectName());
        const bool needsOne = isField && !isVolume && (control->focusPolicy() & Qt::TabFocus) != Qt::NoFocus;
        EXPECT_TRUE(!needsOne || std::ranges::find(labelled, control) != labelled.end())
            << control->objectName().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(InBothModes, EveryForm, testing::ValuesIn(everyFormInBothModes()), nameOf);
