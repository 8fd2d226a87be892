#include "core/Mixing.h"

#include "tests/core/CoreTest.h"

#include <random>

using Mixing = EnglishCore;

TEST_F(Mixing, DividesTheVolumeByTheSpecificVolumeInSingle)
{
    EXPECT_EQ(DryAirFlow(1000.0F, 12.5F).asSingle(), 80.0F);
    EXPECT_EQ(DryAirFlow(1.0F, 3.0F).kind(), NumberKind::Single);
    EXPECT_EQ(DryAirFlow(1.0F, 3.0F).asSingle(), 1.0F / 3.0F);
}

TEST_F(Mixing, WeighsEachStreamByItsDryAir)
{
    EXPECT_EQ(MeanByDryAir(10.0F, 1.0F, 20.0F, 3.0F).asSingle(), 17.5F);
    EXPECT_EQ(MeanByDryAir(20.0F, 3.0F, 10.0F, 1.0F).asSingle(), 17.5F);
    EXPECT_EQ(MeanByDryAir(25.5F, 0.0F, 30.0F, 2.0F).asSingle(), 30.0F);
}

TEST_F(Mixing, RoundsEachProductAndSumToSingle)
{
    std::mt19937 random(3);
    std::uniform_real_distribution<Single> any(0.001F, 100.0F);
    int differFromDouble = 0;
    for (int i = 0; i < 10000; ++i) {
        const Single x1 = any(random);
        const Single x2 = any(random);
        const Single m1 = any(random);
        const Single m2 = any(random);
        const auto single = [](double value) { return static_cast<Single>(value); };
        const double d1 = single(static_cast<double>(x1) * m1);
        const double d2 = single(static_cast<double>(x2) * m2);
        const double above = single(d1 + d2);
        const double below = single(static_cast<double>(m2) + m1);
        const Single expected = single(above / below);
        ASSERT_TRUE(SameBits(MeanByDryAir(x1, m1, x2, m2).asSingle(), expected));
        const double once =
            (static_cast<double>(x1) * m1 + static_cast<double>(x2) * m2) / (static_cast<double>(m1) + m2);
        differFromDouble += single(once) == expected ? 0 : 1;
    }
    EXPECT_GT(differFromDouble, 100);
}

TEST_F(Mixing, FailsWithoutAir)
{
    EXPECT_EQ(ErrorOf([] { DryAirFlow(0.0F, 0.0F); }), DivisionByZero);
    EXPECT_EQ(ErrorOf([] { DryAirFlow(3e38F, 0.1F); }), Overflow);
    EXPECT_EQ(ErrorOf([] { MeanByDryAir(1.0F, 0.0F, 2.0F, 0.0F); }), DivisionByZero);
    EXPECT_EQ(ErrorOf([] { MeanByDryAir(30.0F, 3e37F, 2.0F, 1.0F); }), Overflow);
}
