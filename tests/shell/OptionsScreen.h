#pragma once

#include "shell/Settings.h"
#include "tests/support/ProgramTest.h"

#include <functional>
#include <string>
#include <vector>

using namespace forms;

class OptionsScreen : public ProgramTest
{
protected:
    /// Opens the options, runs the actions there, and returns when the options are closed.
    void inOptions(const std::function<void()>& actions)
    {
        user.inDialog("Settings", actions);
        user.choose("mnuOptions");
        EXPECT_FALSE(isLoaded<Settings>());
    }

    /// The same for actions that leave the options open. Cancels them.
    void inCancelledOptions(const std::function<void()>& actions)
    {
        inOptions([&] {
            actions();
            user.click("btnCancel");
        });
    }

    /// Types a pressure into the open options and presses OK.
    void confirm(const std::string& pressure)
    {
        user.type("txtBP", pressure);
        user.click("btnOK");
    }

    void expectRefused(const std::vector<std::string>& pressures, const Message& message)
    {
        const Single before = BaroPressure;
        for (const std::string& refused : pressures) {
            inCancelledOptions([&] {
                user.messages.clear();
                confirm(refused);
                EXPECT_EQ(user.messages, std::vector{message}) << refused;
                EXPECT_EQ(user.window(), "Settings");
                EXPECT_EQ(BaroPressure, before);
            });
        }
    }

    void expectTaken(const std::vector<std::string>& pressures, const std::string& key,
                     const std::string& metric)
    {
        for (const std::string& taken : pressures) {
            inOptions([&] { confirm(taken); });
            EXPECT_TRUE(user.messages.empty());
            EXPECT_EQ(BaroPressure, std::stof(taken));
            EXPECT_EQ(stored(key), taken);
            EXPECT_EQ(stored("Metric_Units"), metric);
        }
    }

    /// Changes both settings and leaves the options in a way that isn't OK.
    void expectNothingTaken(const std::function<void()>& leave)
    {
        start();
        inOptions([&] {
            user.chooseFromList("Combo1", "Metric, SI");
            user.type("txtBP", "95");
            leave();
        });
        EXPECT_EQ(UnitSystem, 0);
        EXPECT_EQ(BaroPressure, 14.696F);
        EXPECT_EQ(stored("Metric_Units"), "(nothing)");
    }

    static inline const Message psiRange{"Please input an atmospheric pressure between 11 and 16 psi.",
                                         "Dunmoor"};
    static inline const Message kPaRange{"Please input an atmospheric pressure between 47 and 108 kPa.",
                                         "Dunmoor"};
};
