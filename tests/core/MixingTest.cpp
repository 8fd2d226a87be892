#include "core/Mixing.h"

#include "tests/core/CoreTest.h"

#include <cmath>
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

namespace {

constexpr double HalfUnit = 0x1p-24; // the largest relative error of one rounding to single

struct Stream
{
    Single W = 0;
    Single h = 0;
    TaggedNumber flow;
};

Stream anyStream(std::mt19937& random)
{
    const auto uniform = [&](Single least, Single most) {
        return std::uniform_real_distribution<Single>(least, most)(random);
    };
    const Single W = uniform(0.00001F, 0.1F);
    return {W, EnthalpyOf(uniform(-40.0F, 125.0F), W),
            DryAirFlow(uniform(1.0F, 1e6F), uniform(10.0F, 20.0F))};
}

/// The mean carries what both streams carried: a product, two sums and the quotient round once each.
void expectConserved(Single x1, const TaggedNumber& m1, Single x2, const TaggedNumber& m2)
{
    const double mean = MeanByDryAir(x1, m1, x2, m2).asDouble();
    const double first = x1 * m1.asDouble();
    const double second = x2 * m2.asDouble();
    const double bound = 4.0 * HalfUnit * (std::fabs(first) + std::fabs(second));
    ASSERT_NEAR(mean * (m1.asDouble() + m2.asDouble()), first + second, bound * 1.000001);
}

void expectMixturesToConserve()
{
    std::mt19937 random(7);
    for (int i = 0; i < 200000; ++i) {
        const Stream a = anyStream(random);
        const Stream b = anyStream(random);
        const double flow = a.flow.asDouble() + b.flow.asDouble();
        ASSERT_NEAR((a.flow + b.flow).asDouble(), flow, flow * HalfUnit);
        expectConserved(a.W, a.flow, b.W, b.flow);
        expectConserved(a.h, a.flow, b.h, b.flow);

        const Single W = MeanByDryAir(a.W, a.flow, b.W, b.flow).asSingle();
        const Single h = MeanByDryAir(a.h, a.flow, b.h, b.flow).asSingle();
        const Single t = DryBulbFromEnthalpy(h, W);
        const double heat = IsMetric() ? 1.0 + 1.805 * W : 0.24 + 0.444 * W;
        ASSERT_NEAR(EnthalpyOf(t, W), h, 1.000001 * HalfUnit * (std::fabs(t) * heat + std::fabs(h)));
    }
}

} // namespace

using MetricMixing = MetricCore;

TEST_F(Mixing, ConservesDryAirWaterAndEnergy) { expectMixturesToConserve(); }
TEST_F(MetricMixing, ConservesDryAirWaterAndEnergy) { expectMixturesToConserve(); }

TEST_F(Mixing, FailsWithoutAir)
{
    EXPECT_EQ(ErrorOf([] { DryAirFlow(0.0F, 0.0F); }), DivisionByZero);
    EXPECT_EQ(ErrorOf([] { DryAirFlow(3e38F, 0.1F); }), Overflow);
    EXPECT_EQ(ErrorOf([] { MeanByDryAir(1.0F, 0.0F, 2.0F, 0.0F); }), DivisionByZero);
    EXPECT_EQ(ErrorOf([] { MeanByDryAir(30.0F, 3e37F, 2.0F, 1.0F); }), Overflow);
}
