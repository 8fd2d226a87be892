#pragma once

#include "platform/forms/Controls.h"
#include "platform/forms/Forms.h"
#include "platform/forms/Menu.h"
#include "platform/forms/MsgBox.h"
#include "platform/forms/TextField.h"
#include "tests/support/User.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QVBoxLayout>
#include <QWidget>

#include <algorithm>
#include <string>
#include <vector>

using namespace forms;

/// What the handlers did, in order.
using Calls = std::vector<std::string>;
inline Calls calls;

inline Handler Recorder(const std::string& what)
{
    return [what] { calls.push_back(what); };
}

/// The recorded calls that a test asks about.
inline Calls Only(std::initializer_list<std::string> asked)
{
    Calls found;
    std::ranges::copy_if(calls, std::back_inserter(found),
                         [asked](const auto& call) { return std::ranges::count(asked, call) != 0; });
    return found;
}

/// A test's additions to the life-cycle handlers of a form.
struct Life
{
    Handler load;
    Handler activate;
    Handler queryUnload;
    Handler unload;
};

/// A small form with a column of controls that records its life cycle.
class TestForm : public Form
{
public:
    TestForm(const std::string& name, FormKind kind, const Life& itsLife)
        : Form(name, kind), formName(name), life(itsLife)
    {
        auto* const column = new QVBoxLayout(area());
        for (Control* control : std::initializer_list<Control*>{&txtFirst, &txtSecond, &txtThird, &btnFirst,
                                                                &btnSecond, &lblFirst, &Combo1})
            column->addWidget(control->widget());
    }
    ~TestForm() override { calls.push_back(formName + " is destroyed"); }

    TextField txtFirst{*this, "txtFirst"};
    TextField txtSecond{*this, "txtSecond"};
    TextField txtThird{*this, "txtThird"};
    Button btnFirst{*this, "btnFirst", "&First"};
    Button btnSecond{*this, "btnSecond", "&Second"};
    Label lblFirst{*this, "lblFirst", "A label"};
    DropDownList Combo1{*this, "Combo1"};

protected:
    void Form_Load() override { record("Form_Load", life.load); }
    void Form_Activate() override { record("Form_Activate", life.activate); }
    void Form_QueryUnload(CloseReason reason) override
    {
        record("Form_QueryUnload " + std::to_string(static_cast<int>(reason)), life.queryUnload);
    }
    void Form_Unload() override { record("Form_Unload", life.unload); }

private:
    void record(const std::string& handler, const Handler& added)
    {
        calls.push_back(formName + "." + handler);
        if (added)
            added();
    }

    std::string formName;
    const Life& life;
};

class FirstScreen : public TestForm
{
public:
    static inline Life life;
    FirstScreen() : TestForm("FirstScreen", FormKind::Screen, life) {}
};

class SecondScreen : public TestForm
{
public:
    static inline Life life;
    SecondScreen() : TestForm("SecondScreen", FormKind::Screen, life) {}
};

class FirstDialog : public TestForm
{
public:
    static inline Life life;
    FirstDialog() : TestForm("FirstDialog", FormKind::Dialog, life) {}
};

class SecondDialog : public TestForm
{
public:
    static inline Life life;
    SecondDialog() : TestForm("SecondDialog", FormKind::Dialog, life) {}
};

class FormsTest : public testing::Test
{
protected:
    FormsTest()
    {
        QGuiApplication::setQuitOnLastWindowClosed(false);
        for (Life* life : {&FirstScreen::life, &SecondScreen::life, &FirstDialog::life, &SecondDialog::life})
            *life = {};
        calls.clear();
    }
    ~FormsTest() override { FormRegistry::clear(); }

    /// Shows the first screen and clears the calls recorded so far.
    static FirstScreen& showFirstScreen()
    {
        form<FirstScreen>().Show();
        QApplication::processEvents();
        calls.clear();
        return form<FirstScreen>();
    }

    /// Lets the toolkit finish: destroys idle unloaded forms.
    static void comeToRest()
    {
        for (int round = 0; round < 3; ++round) // a layout request takes several rounds to reach the window
            QApplication::processEvents();
    }

    User user;
};
