#pragma once

#include "core/MainMod.h"
#include "platform/SettingsStore.h"
#include "platform/forms/Forms.h"
#include "shell/Program.h"
#include "tests/support/User.h"

#include <gtest/gtest.h>

using namespace forms;

/// Starts the program as the user does: the main menu is shown. To change the settings that the program
/// starts with, call the functions here first in a test.
class ProgramTest : public testing::Test
{
protected:
    void TearDown() override { FormRegistry::clear(); }

    static void start() { StartProgram(); }

    static void startInMetric()
    {
        store("Metric_Units", "True");
        start();
    }

    static void store(const std::string& key, const std::string& text)
    {
        SaveSetting("Dunmoor", "Settings", key, text);
    }

    static std::string stored(const std::string& key)
    {
        return GetSetting("Dunmoor", "Settings", key, "(nothing)");
    }

    /// The calculators' warnings: of the failure branch and of the temperature range.
    static inline const Message outOfRange{"Input Out of Range, Try Again!", " ERROR"};
    static inline const Message temperatureOutOfRange{"Temperature Input Out of Range, Try Again!", " ERROR"};

    User user;
};
