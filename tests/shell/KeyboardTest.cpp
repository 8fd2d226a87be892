// Every form by keyboard only: Tab reaches every control, and no two access keys are the same.

#include "tests/screens/CalculatorFixture.h"

#include <QAbstractButton>

#include <map>
#include <set>

namespace {

/// A form, and the steps from the main menu that show it with all its buttons enabled.
struct Sight
{
    const char* form;
    const char* button; ///< of the main menu
    std::function<void(CalculatorTest&, User&, const std::function<void()>& look)> open;
};

void PrintTo(const Sight& sight, std::ostream* out) { *out << sight.form; }

class Keyboard : public CalculatorTest, public testing::WithParamInterface<Sight>
{
public:
    using CalculatorTest::answerVolume;
    using CalculatorTest::calculate;

protected:
    /// Runs the checks while the form is active.
    void see(const std::function<void()>& look)
    {
        start();
        bool seen = false;
        if (*GetParam().button != '\0')
            user.click(GetParam().button);
        GetParam().open(*this, user, [&] {
            ASSERT_EQ(user.window(), GetParam().form);
            look();
            seen = true;
        });
        EXPECT_TRUE(seen);
    }

    /// The visible controls that Tab can reach.
    std::set<std::string> reachable()
    {
        std::set<std::string> names;
        for (const QWidget* control : User::findWindow(user.window())->findChildren<QWidget*>()) {
            const QString name = control->objectName();
            const bool isControl = !name.isEmpty() && !name.startsWith("qt_");
            if (isControl && control->isVisible() && control->isEnabled() &&
                (control->focusPolicy() & Qt::TabFocus) != 0)
                names.insert(name.toStdString());
        }
        return names;
    }

    /// The controls and menus that use each access key of the form and its menu bar.
    std::map<QChar, Names> accessKeys()
    {
        std::map<QChar, Names> keys;
        const auto add = [&keys](const QObject& control, const QString& caption) {
            const QString key = QKeySequence::mnemonic(caption).toString();
            if (!key.isEmpty())
                keys[key.back()].push_back(control.objectName().toStdString());
        };
        auto* const window = static_cast<QMainWindow*>(User::findWindow(user.window()));
        for (const auto* button : window->findChildren<QAbstractButton*>())
            add(*button, button->text());
        for (const QAction* entry : window->menuBar()->actions())
            add(entry->menu() != nullptr ? static_cast<const QObject&>(*entry->menu()) : *entry,
                entry->text());
        return keys;
    }
};

const auto atOnce = [](CalculatorTest& /*test*/, User& /*user*/, const auto& look) { look(); };

Sight inDialogOf(const char* form, const char* button, const char* opener, const char* closer)
{
    return {form, button, [=](CalculatorTest& test, User& user, const auto& look) {
                auto& screen = static_cast<Keyboard&>(test);
                if (*button != '\0')
                    screen.calculate("70", "txtRH", "50");
                user.inDialog(form, [&user, look, closer] {
                    look();
                    user.click(closer);
                });
                if (std::string(opener).starts_with("mnu"))
                    user.choose(opener);
                else
                    user.click(opener);
            }};
}

const Sight sights[] = {
    {"MainForm", "", atOnce},
    inDialogOf("Settings", "", "mnuOptions", "btnCancel"),
    inDialogOf("About", "", "mnuAbout", "cmdOK"),
    {"AirPropertiesCalc", "btnAirCalc", atOnce},
    {"MixedAir", "btnMixedAir",
     [](CalculatorTest& test, User& /*user*/, const auto& look) {
         auto& screen = static_cast<Keyboard&>(test);
         screen.calculate("70", "txtRH", "50");
         screen.answerVolume("btnSaveOSA", "1000");
         look();
     }},
    inDialogOf("cfmForm", "btnMixedAir", "btnSaveOSA", "btnCancel"),
    {"Answers1", "btnMixedAir",
     [](CalculatorTest& test, User& user, const auto& look) {
         auto& screen = static_cast<Keyboard&>(test);
         screen.calculate("70", "txtRH", "50");
         screen.answerVolume("btnSaveOSA", "1000");
         screen.answerVolume("btnRA", "1000");
         user.click("btnMixedAir");
         look();
     }},
    {"CoolingLoad1", "btnCooling", atOnce},
    {"HeatingLoad1", "btnHeating", atOnce},
    {"Humid1", "btnHumidity", atOnce},
    inDialogOf("humid2", "btnHumidity", "btnHumidityDesired", "btnOK"),
};

INSTANTIATE_TEST_SUITE_P(On, Keyboard, testing::ValuesIn(sights),
                         [](const auto& sight) { return std::string(sight.param.form); });

} // namespace

TEST_P(Keyboard, ReachesEveryControlByTab)
{
    see([this] {
        const std::set<std::string> controls = reachable();
        ASSERT_FALSE(controls.empty());
        const Names stops = tabStopsFrom(*controls.begin());
        EXPECT_EQ(std::set<std::string>(stops.begin(), stops.end()), controls)
            << testing::PrintToString(stops);
    });
}

TEST_P(Keyboard, HasNoTwoAccessKeysAlike)
{
    see([this] {
        for (const auto& [key, controls] : accessKeys()) {
            // The captions "&Help" and "&Heating Load " are required, so Alt+H alternates between them.
            if (user.window() == "MainForm" && key == QChar('H'))
                EXPECT_EQ(controls.size(), 2U);
            else
                EXPECT_EQ(controls.size(), 1U) << QString(key).toStdString();
        }
    });
}

TEST_P(Keyboard, HasNoTwoAccessKeysAlikeInAMenu)
{
    see([this] {
        for (const auto* drop : User::findWindow(user.window())->findChildren<QMenu*>()) {
            std::set<QString> keys;
            for (const QAction* entry : drop->actions()) {
                const QString key = QKeySequence::mnemonic(entry->text()).toString();
                const bool isNew = key.isEmpty() || keys.insert(key).second;
                // The captions "&Print Results" and "&Previous Screen" are required, so P alternates between
                // them.
                EXPECT_EQ(isNew, entry->objectName() != "mnuPrevious") << entry->text().toStdString();
            }
        }
    });
}

TEST_F(CalculatorTest, CalculatesAStateByTheKeyboardAlone)
{
    start();
    user.key(Qt::Key_A, Qt::AltModifier);
    ASSERT_EQ(user.window(), "AirPropertiesCalc");
    EXPECT_EQ(focusAtOpening(), "txtTdb");
    user.keys("70");
    while (user.focus() != "txtRH")
        user.key(Qt::Key_Tab);
    user.keys("50");
    while (user.focus() != "btnCALCULATE")
        user.key(Qt::Key_Tab);
    user.key(Qt::Key_Space);
    EXPECT_EQ(user.text("txtTwb"), "58.4");
    user.key(Qt::Key_M, Qt::AltModifier);
    EXPECT_EQ(user.window(), "MainForm");
}
