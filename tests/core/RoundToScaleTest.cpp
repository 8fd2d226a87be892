#include "tests/core/CoreTest.h"

TEST(RoundToScale, RoundsADewPointToTenths)
{
    EXPECT_EQ(RoundToScale(50.5678F, 10), 50.6F);
    EXPECT_EQ(RoundToScale(-3.14F, 10), -3.1F);
    EXPECT_EQ(RoundToScale(50, 10), 50.0F);
    EXPECT_EQ(RoundToScale(0, 10), 0.0F);
}

TEST(RoundToScale, RoundsHalvesToEven)
{
    EXPECT_EQ(RoundToScale(50.25F, 10), 50.2F); // 502.5
    EXPECT_EQ(RoundToScale(50.75F, 10), 50.8F); // 507.5
    EXPECT_EQ(RoundToScale(-0.25F, 10), -0.2F);
}

TEST(RoundToScale, MultipliesByTheKindsOfItsOperands)
{
    // As a single, the product is exactly 33.5 and rounds to 34. As a double, it is less and rounds to 33.
    constexpr Single value = 3.35F;
    ASSERT_EQ(value * 10.0F, 33.5F);
    ASSERT_LT(static_cast<double>(value) * 10.0, 33.5);
    EXPECT_EQ(RoundToScale(value, 10), 3.4F);
    EXPECT_EQ(RoundToScale(static_cast<double>(value), 10), 3.3F);
}

TEST(RoundToScale, OverflowsBeyond16Bits)
{
    EXPECT_EQ(RoundToScale(3276.7F, 10), 3276.7F);
    EXPECT_EQ(ErrorOf([] { RoundToScale(3276.8F, 10); }), Overflow);
    EXPECT_EQ(RoundToScale(-3276.8F, 10), -3276.8F);
    EXPECT_EQ(ErrorOf([] { RoundToScale(-3276.9F, 10); }), Overflow);
    EXPECT_EQ(ErrorOf([] { RoundToScale(4000, 10); }), Overflow);
}

TEST(RoundToScale, FaultsForAScaleOfZero)
{
    EXPECT_EQ(ErrorOf([] { RoundToScale(50.0F, 0); }), DivisionByZero);
}
