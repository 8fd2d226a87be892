#pragma once

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

#include <QTest>

#include <ostream>
#include <vector>

struct ShownForm
{
    const char* name;
    Form& (*use)();
    const char* hiddenFrame = nullptr; ///< shown later by the form's handlers
};

template <class F>
Form& Use()
{
    return form<F>();
}

inline const ShownForm everyForm[] = {
    {"MainForm", Use<MainForm>},
    {"Settings", Use<Settings>},
    {"About", Use<About>},
    {"AirPropertiesCalc", Use<AirPropertiesCalc>},
    {"MixedAir", Use<MixedAir>},
    {"MixedAirWithVolumes", Use<MixedAir>, "Frame4"},
    {"cfmForm", Use<cfmForm>},
    {"Answers1", Use<Answers1>},
    {"CoolingLoad1", Use<CoolingLoad1>},
    {"CoolingLoad2", Use<CoolingLoad2>},
    {"CoolingLoad3", Use<CoolingLoad3>},
    {"HeatingLoad1", Use<HeatingLoad1>},
    {"HeatingLoad2", Use<HeatingLoad2>},
    {"Humid1", Use<Humid1>},
    {"humid2", Use<humid2>},
};

struct Case
{
    ShownForm form;
    bool metric;
};

inline std::vector<Case> EveryFormInBothModes()
{
    std::vector<Case> cases;
    for (const ShownForm& form : everyForm) {
        cases.push_back({form, false});
        cases.push_back({form, true});
    }
    return cases;
}

inline std::ostream& operator<<(std::ostream& out, const Case& shown) { return out << shown.form.name; }

inline std::string NameOf(const testing::TestParamInfo<Case>& info)
{
    return std::string(info.param.form.name) + (info.param.metric ? "InMetric" : "InEnglish");
}

/// Every form as it is first shown.
class EveryFormTest : public ProgramTest, public testing::WithParamInterface<Case>
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

    QWidget* window = nullptr;
};
