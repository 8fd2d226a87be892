#include "tests/core/CoreTest.h"

#include <limits>
#include <type_traits>

namespace {

void ExpectHolds(const TaggedNumber& number, NumberKind kind, double value)
{
    EXPECT_EQ(number.kind(), kind);
    EXPECT_EQ(number.asDouble(), value);
}

} // namespace

TEST(TaggedNumber, StartsAsTheIntegerZero) { ExpectHolds(TaggedNumber(), NumberKind::Int16, 0.0); }

TEST(TaggedNumber, RemembersTheKindItWasLastAssigned)
{
    TaggedNumber number;
    number = 70.0F;
    ExpectHolds(number, NumberKind::Single, 70.0);
    number = 0.001;
    ExpectHolds(number, NumberKind::Double, 0.001);
    number = 100;
    ExpectHolds(number, NumberKind::Int16, 100.0);
    number = std::int16_t{-5};
    ExpectHolds(number, NumberKind::Int16, -5.0);
    number = "1000";
    ExpectHolds(number, NumberKind::Text, 1000.0);
    number = 1.5F;
    ExpectHolds(number, NumberKind::Single, 1.5);
    EXPECT_EQ(number.text(), "");
    const TaggedNumber copy = number;
    ExpectHolds(copy, NumberKind::Single, 1.5);
}

TEST(TaggedNumber, KeepsADoubleUntilAnEquationReadsIt)
{
    const TaggedNumber number = 70.0F - 0.005;
    EXPECT_EQ(number.asDouble(), 69.995);
    EXPECT_EQ(number.asSingle(), 69.995F);
    EXPECT_NE(static_cast<double>(number.asSingle()), number.asDouble());
}

TEST(TaggedNumber, FailsToTurnADoubleBeyondSinglesIntoOne)
{
    EXPECT_EQ(ErrorOf([] { TaggedNumber(1e39).asSingle(); }), Overflow);
    EXPECT_EQ(TaggedNumber(1e39).asDouble(), 1e39);
}

TEST(TaggedNumber, TakesOnlyIntegersOf16Bits)
{
    ExpectHolds(32767, NumberKind::Int16, 32767.0);
    ExpectHolds(-32768, NumberKind::Int16, -32768.0);
    EXPECT_EQ(ErrorOf([] { TaggedNumber(32768); }), Overflow);
    EXPECT_EQ(ErrorOf([] { TaggedNumber(-32769); }), Overflow);
    EXPECT_EQ(ErrorOf([] {
                  TaggedNumber number;
                  number = 40000;
              }),
              Overflow);
}

TEST(TaggedNumber, TakesNoPlainBoolean)
{
    // C++ true is 1, the calculator's true is -1: the caller must say which.
    static_assert(!std::is_constructible_v<TaggedNumber, bool>);
    static_assert(!std::is_assignable_v<TaggedNumber&, bool>);
    ExpectHolds(True16, NumberKind::Int16, -1.0);
}

TEST(TaggedNumber, RoundsHalvesToEvenIntegers)
{
    EXPECT_EQ(TaggedNumber(0.5).asInt16(), 0);
    EXPECT_EQ(TaggedNumber(1.5).asInt16(), 2);
    EXPECT_EQ(TaggedNumber(-2.5).asInt16(), -2);
    EXPECT_EQ(TaggedNumber(32767.49).asInt16(), 32767);
    EXPECT_EQ(ErrorOf([] { TaggedNumber(32767.5).asInt16(); }), Overflow);
    EXPECT_EQ(TaggedNumber(-32768.5).asInt16(), -32768);
    EXPECT_EQ(ErrorOf([] { TaggedNumber(-32769.0).asInt16(); }), Overflow);
    EXPECT_EQ(ErrorOf([] { TaggedNumber(std::numeric_limits<double>::quiet_NaN()).asInt16(); }),
              InvalidArgument);
}

TEST(TaggedNumber, ArithmeticOnIntegersStaysInteger)
{
    ExpectHolds(TaggedNumber(7) + 5, NumberKind::Int16, 12.0);
    ExpectHolds(TaggedNumber(7) - 9, NumberKind::Int16, -2.0);
    ExpectHolds(TaggedNumber(7) * 5, NumberKind::Int16, 35.0);
    EXPECT_EQ(ErrorOf([] { TaggedNumber(200) * 200; }), Overflow);
    EXPECT_EQ(ErrorOf([] { TaggedNumber(32767) + 1; }), Overflow);
    EXPECT_EQ(ErrorOf([] { TaggedNumber(-32768) - 1; }), Overflow);
}

TEST(TaggedNumber, DivisionOfIntegersGivesADouble)
{
    ExpectHolds(TaggedNumber(100) / 100, NumberKind::Double, 1.0);
    ExpectHolds(TaggedNumber(1) / 3, NumberKind::Double, 1.0 / 3.0);
}

TEST(TaggedNumber, ASingleWithASingleOrAnIntegerRoundsToSingle)
{
    ExpectHolds(TaggedNumber(0.1F) / 3, NumberKind::Single, 0.1F / 3.0F);
    ExpectHolds(TaggedNumber(3) / 0.1F, NumberKind::Single, 3.0F / 0.1F);
    ExpectHolds(TaggedNumber(0.1F) * 0.3F, NumberKind::Single, 0.1F * 0.3F);
    ExpectHolds(TaggedNumber(16777216.0F) + 1, NumberKind::Single, 16777216.0);
    ExpectHolds(TaggedNumber(0.1F) - 0.3F, NumberKind::Single, 0.1F - 0.3F);
    EXPECT_EQ(ErrorOf([] { TaggedNumber(3e38F) + 3e38F; }), Overflow);
    EXPECT_EQ(ErrorOf([] { TaggedNumber(3e38F) * 2; }), Overflow);
}

TEST(TaggedNumber, AnythingWithADoubleOrATextIsADouble)
{
    const double widened = 0.1F;
    ExpectHolds(7000.0 * TaggedNumber(0.1F), NumberKind::Double, 7000.0 * widened);
    ExpectHolds(TaggedNumber(2) * 0.1, NumberKind::Double, 0.2);
    ExpectHolds(TaggedNumber("2.5") * 2, NumberKind::Double, 5.0);
    ExpectHolds(TaggedNumber("10") / 4.0F, NumberKind::Double, 2.5);
    ExpectHolds(TaggedNumber("1") + "2", NumberKind::Double, 3.0);
    EXPECT_EQ(ErrorOf([] { TaggedNumber(1e308) * 10.0; }), Overflow);
    EXPECT_EQ(ErrorOf([] { TaggedNumber(1e308) + 1e308; }), Overflow);
}

TEST(TaggedNumber, ReportsEveryZeroDivisor)
{
    EXPECT_EQ(ErrorOf([] { TaggedNumber(1) / 0; }), DivisionByZero);
    EXPECT_EQ(ErrorOf([] { TaggedNumber(0) / 0; }), DivisionByZero);
    EXPECT_EQ(ErrorOf([] { TaggedNumber(1.0F) / 0; }), DivisionByZero);
    EXPECT_EQ(ErrorOf([] { TaggedNumber(0.0F) / 0.0F; }), DivisionByZero);
    EXPECT_EQ(ErrorOf([] { TaggedNumber(1.0) / -0.0; }), DivisionByZero);
    EXPECT_EQ(ErrorOf([] { TaggedNumber("1") / "0"; }), DivisionByZero);
}

TEST(TaggedNumber, ReadsATextOnlyWhenItIsAskedTo)
{
    const TaggedNumber wrong = "12 cfm";
    EXPECT_EQ(wrong.text(), "12 cfm");
    EXPECT_EQ(ErrorOf([&] { wrong.asSingle(); }), TypeMismatch);
    EXPECT_EQ(ErrorOf([&] { wrong * 2; }), TypeMismatch);
    EXPECT_EQ(ErrorOf([&] { (void)(wrong > 0.0); }), TypeMismatch);
    EXPECT_EQ(ErrorOf([] { TaggedNumber("").asSingle(); }), TypeMismatch);
    EXPECT_EQ(ErrorOf([] { TaggedNumber("1e39").asSingle(); }), Overflow);
    EXPECT_EQ(TaggedNumber(" 1,200.5 ").asSingle(), 1200.5F);
}

TEST(TaggedNumber, ComparesTheValueAsHeld)
{
    // As a single, 0.999 is above the double 0.999. Just below it, rounding a double would hide the
    // difference.
    EXPECT_TRUE(TaggedNumber(0.999F) >= 0.999);
    EXPECT_TRUE(TaggedNumber(0.99899999999) < 0.999);
    EXPECT_FALSE(TaggedNumber(0.99899999999).asSingle() < 0.999F);
    EXPECT_TRUE(TaggedNumber(0.00001F) <= 0.00001);
    EXPECT_FALSE(TaggedNumber(0.1F) <= 0.1);
    EXPECT_TRUE(TaggedNumber(1) == 1.0);
    EXPECT_TRUE(TaggedNumber(1) > 0);
    EXPECT_TRUE(TaggedNumber(2.5F) != 2);
}
