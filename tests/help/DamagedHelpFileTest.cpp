// The real help file, damaged: reading it must end and do no harm. It is twenty times as large as the sample,
// on which every kind of damage is tried, so a few tries must do.

#include "tests/platform/help/DamagedHelp.h"

#include <gtest/gtest.h>

namespace {

constexpr long enoughMemory = 600; // MiB

} // namespace

TEST(DamagedHelpFile, IsReadWithAnyByteChanged)
{
    DamagedHelp help(DUNMOOR_HELP_FILE);
    help.readWithBytesChanged(7, 12);
    EXPECT_GT(help.readable, 0);
    EXPECT_LT(DamagedHelp::mostMemory(), enoughMemory);
}

TEST(DamagedHelpFile, IsReadCutOffAnywhere)
{
    constexpr qsizetype parts = 20;
    DamagedHelp help(DUNMOOR_HELP_FILE);
    help.readBeginnings(0, help.size(), help.size() / parts);
    EXPECT_GT(help.unreadable + help.damagedPages, 0);
    EXPECT_LT(DamagedHelp::mostMemory(), enoughMemory);
}
