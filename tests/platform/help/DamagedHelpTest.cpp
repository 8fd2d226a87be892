// No damage to a help file crashes the program.

#include "tests/platform/help/DamagedHelp.h"

#include <gtest/gtest.h>

using namespace help;

namespace {

/// Far more than a help file of 20 KB needs, far less than a damaged size field could request.
#ifdef __SANITIZE_ADDRESS__
constexpr long enoughMemory = 1000; // MiB; freed memory stays in quarantine for a while
#else
constexpr long enoughMemory = 100; // MiB
#endif

class DamagedHelpTest : public testing::TestWithParam<unsigned>
{
protected:
    void SetUp() override { memoryBefore = DamagedHelp::mostMemory(); }
    void expectLittleMemory() const { EXPECT_LT(DamagedHelp::mostMemory() - memoryBefore, enoughMemory); }

    DamagedHelp damaged{DUNMOOR_SAMPLE_HELP};
    long memoryBefore = 0;
};

TEST_P(DamagedHelpTest, IsReadWithAnyByteChanged)
{
    damaged.readWithBytesChanged(GetParam(), 120);
    EXPECT_GT(damaged.readable, 90);
    EXPECT_GT(damaged.damagedPages, 10) << "the damage is felt";
    expectLittleMemory();
}
INSTANTIATE_TEST_SUITE_P(Seeds, DamagedHelpTest, testing::Range(1U, 5U));

TEST_F(DamagedHelpTest, IsReadCutOffAnywhere)
{
    damaged.readBeginnings(0, damaged.size(), 128);
    EXPECT_EQ(damaged.readable + damaged.unreadable, (damaged.size() + 127) / 128);
    EXPECT_GT(damaged.unreadable, 25);
    expectLittleMemory();
}

TEST_F(DamagedHelpTest, IsReadWithTheBytesThatTellSizesChanged)
{
    const QByteArray whole = BytesOf(DUNMOOR_SAMPLE_HELP);
    for (qsizetype place = 0; place < 0xE0; ++place) { // the headers
        QByteArray bytes = whole;
        bytes[place] = place % 4 == 3 ? '\x7f' : '\xff'; // large, and not negative
        UnpackChm(bytes);
    }
    expectLittleMemory();
}

TEST_F(DamagedHelpTest, IsWholeWithoutDamage)
{
    damaged.read(BytesOf(DUNMOOR_SAMPLE_HELP));
    EXPECT_EQ(damaged.readable, 1);
}

} // namespace
