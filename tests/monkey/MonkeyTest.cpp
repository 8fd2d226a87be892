// One life of the monkey. `./dev monkey` runs many, each in a process of its own, because the state is
// process-wide.

#include "tests/monkey/Monkey.h"
#include "platform/SettingsStore.h"
#include "platform/forms/Forms.h"
#include "shell/Program.h"

#include <gtest/gtest.h>

#include <QApplication>

TEST(Monkey, EndsTheProgramOnlyWhereItMayEnd)
{
    const auto seed = qEnvironmentVariable("DUNMOOR_MONKEY_SEED", "1").toUInt();
    constexpr int actionsOfALife = 2000;
    if (seed % 2 == 0)
        SaveSetting("Dunmoor", "Settings", "Metric_Units", "True");
    StartProgram();
    const Monkey monkey(seed, actionsOfALife);
    EXPECT_EQ(QApplication::exec(), 0);
    forms::FormRegistry::clear();
    monkey.tell("ended in order");
}
