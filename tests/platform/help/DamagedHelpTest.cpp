// No damage to a help file brings the program down.

#include "tests/platform/help/DamagedHelp.h"

#include <gtest/gtest.h>

namespace {

/// Far more than a help file of some 20 KB needs, and far less than a size out of it could ask for.
#ifdef __SANITIZE_ADDRESS__
constexpr long enoughMemory = 1000; // MiB; what is freed stays in quarantine for a while
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
    damaged.readWithBytesChanged(GetParam(), 260);
    EXPECT_GT(damaged.readable, 200);
    EXPECT_GT(damaged.damagedPages, 20) << "the damage is felt";
    expectLittleMemory();
}
INSTANTIATE_TEST_SUITE_P(Seeds, DamagedHelpTest, testing::Range(1U, 9U));

TEST_F(DamagedHelpTest, IsReadCutOffAnywhere)
{
    damaged.readBeginnings(0, damaged.size(), 64);
    EXPECT_EQ(damaged.readable + damaged.unreadable, (damaged.size() + 63) / 64);
    EXPECT_GT(damaged.unreadable, 50);
    expectLittleMemory();
}

TEST_F(DamagedHelpTest, IsReadWithTheBytesThatTellSizesChanged)
{
    const QByteArray whole = bytesOf(DUNMOOR_SAMPLE_HELP);
    for (const char value : {'\x7f', '\xff'}) {
        for (qsizetype place = 0; place < 0xE0; ++place) { // the headers
            QByteArray bytes = whole;
            bytes[place] = value;
            damaged.read(bytes);
        }
    }
    expectLittleMemory();
}

TEST_F(DamagedHelpTest, IsWholeWithoutDamage)
{
    damaged.read(bytesOf(DUNMOOR_SAMPLE_HELP));
    EXPECT_EQ(damaged.readable, 1);
}

} // namespace
