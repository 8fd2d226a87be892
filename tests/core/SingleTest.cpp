#include "tests/core/CoreTest.h"

#include <cmath>
#include <limits>

TEST(Single, RoundsToTheNearestSingleTiesToEven)
{
    EXPECT_EQ(RoundToSingle(0.1), 0.1F);
    EXPECT_EQ(RoundToSingle(16777217.0), 16777216.0F);
    EXPECT_EQ(RoundToSingle(16777219.0), 16777220.0F);
    EXPECT_EQ(RoundToSingle(-273.15), -273.15F);
}

TEST(Single, OverflowsExactlyWhereRoundingWouldPassTheLargestSingle)
{
    const double last = std::nextafter(SingleOverflow, 0.0);
    EXPECT_EQ(RoundToSingle(last), std::numeric_limits<Single>::max());
    EXPECT_EQ(RoundToSingle(-last), std::numeric_limits<Single>::lowest());
    EXPECT_EQ(ErrorOf([] { RoundToSingle(SingleOverflow); }), Overflow);
    EXPECT_EQ(ErrorOf([] { RoundToSingle(-SingleOverflow); }), Overflow);
    EXPECT_EQ(ErrorOf([] { RoundToSingle(std::numeric_limits<double>::infinity()); }), Overflow);
}

TEST(Single, RefusesWhatIsNoNumber)
{
    EXPECT_EQ(ErrorOf([] { RoundToSingle(std::numeric_limits<double>::quiet_NaN()); }), InvalidArgument);
}

TEST(Single, UnderflowsSilently)
{
    EXPECT_EQ(RoundToSingle(1e-50), 0.0F);
    EXPECT_EQ(RoundToSingle(0x1p-149), std::numeric_limits<Single>::denorm_min());
}

TEST(Single, BooleansAreMinusOneAndZero)
{
    EXPECT_EQ(True16, -1);
    EXPECT_EQ(False16, 0);
    EXPECT_EQ(sizeof(Boolean16), 2U);
}
