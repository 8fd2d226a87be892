// The signs that the wet bulb search knows without a residual.

#include "core/WetBulbSigns.h"

#include "tests/core/CoreTest.h"
#include "tests/core/Thoroughness.h"

#include <cmath>
#include <random>

namespace {

/// As at the end of the comment in core/WetBulbSigns.cpp: the zone is ten times what rounding can shift.
constexpr double Margin = 10.0;

class WetBulbSignsOfAir : public EnglishCore
{
protected:
    double uniform(double least, double most)
    {
        return std::uniform_real_distribution<double>(least, most)(random);
    }

    double degrees(double celsius) const { return IsMetric() ? celsius : celsius * 1.8; }

    /// Draws air over all the limits of the proof.
    void drawAir()
    {
        tdb = RoundToSingle(IsMetric() ? uniform(-40, 60) : uniform(-40, 140));
        p = RoundToSingle(IsMetric() ? uniform(40000, 200000) : uniform(6, 30));
        const Single ws = HumidityRatioFromVaporPressure(SaturationPressure(ToAbsolute(tdb)), p);
        w = RoundToSingle(ws * uniform(0.001, 0.998));
        signs = FindWetBulbSigns(tdb, w, p);
    }

    bool areKnown() const { return std::isfinite(signs.negativeBelow); }

    /// Compares residuals at random distances to both sides with the known signs.
    void expectSigns()
    {
        const double root = (static_cast<double>(signs.negativeBelow) + signs.positiveAbove) / 2.0;
        const double reach = (signs.positiveAbove - root) / Margin;
        for (int i = 0; i < 4; ++i) {
            const double distance = reach * std::exp(uniform(0.0, 5.0)); // up to 15 zones
            for (const double side : {-1.0, 1.0}) {
                const Single candidate = RoundToSingle(root + side * distance);
                const Single residual = WetBulbResidual(candidate, tdb, p, w);
                if (!(residual * side > 0.0) && ++wrong <= 10)
                    ADD_FAILURE() << std::hexfloat << "tdb " << tdb << ", w " << w << ", p " << p
                                  << ", candidate " << candidate << ", residual " << residual;
            }
        }
    }

    void expectSignsOfRandomAir()
    {
        const int count = 1000000 / OneOf("airs", 1, 50);
        int known = 0;
        for (int i = 0; i < count; ++i) {
            drawAir();
            if (areKnown()) {
                ++known;
                expectSigns();
            }
        }
        EXPECT_EQ(wrong, 0);
        EXPECT_GT(known, count * 0.97); // almost every search is guided
    }

    Single tdb = 0.0F;
    Single w = 0.0F;
    Single p = 0.0F;
    WetBulbSigns signs{};
    int wrong = 0;
    std::mt19937_64 random{7};
};

} // namespace

TEST_F(WetBulbSignsOfAir, AreRightFromATenthOfTheZoneInEnglish) { expectSignsOfRandomAir(); }

TEST_F(WetBulbSignsOfAir, AreRightFromATenthOfTheZoneInMetric)
{
    UnitSystem = True16;
    expectSignsOfRandomAir();
}

TEST_F(WetBulbSignsOfAir, AreUnknownNearFreezing)
{
    for (const Boolean16 mode : {False16, True16}) {
        UnitSystem = mode;
        p = IsMetric() ? 101325.0F : 14.696F;
        for (const double offset : {-0.04, -0.001, 0.0, 0.001, 0.04}) {
            const Single wetBulb = RoundToSingle((IsMetric() ? 0.0 : 32.0) + offset);
            tdb = RoundToSingle(wetBulb + degrees(5));
            const Single ws = HumidityRatioFromVaporPressure(SaturationPressure(ToAbsolute(wetBulb)), p);
            signs = FindWetBulbSigns(tdb, HumidityRatioFromWetBulb(wetBulb, tdb, ws), p);
            EXPECT_FALSE(areKnown()) << offset;
        }
    }
}

TEST_F(WetBulbSignsOfAir, AreUnknownOutsideTheLimitsOfTheProof)
{
    constexpr Single inf = std::numeric_limits<Single>::infinity();
    const auto known = [](Single t, Single ratio, Single pressure) {
        return std::isfinite(FindWetBulbSigns(t, ratio, pressure).negativeBelow);
    };
    EXPECT_TRUE(known(70.0F, 0.008F, 14.696F));
    for (const Single t : {-40.1F, 140.1F, inf, -inf, std::nanf("")})
        EXPECT_FALSE(known(t, 0.00005F, 14.696F)) << t;
    for (const Single pressure : {5.99F, 30.01F, 0.0F, -14.696F, inf, std::nanf("")})
        EXPECT_FALSE(known(70.0F, 0.008F, pressure)) << pressure;
    for (const Single ratio : {0.0F, -0.008F, 1e-10F, 1.01F, 1e38F, inf, std::nanf("")})
        EXPECT_FALSE(known(70.0F, ratio, 14.696F)) << ratio;
    UnitSystem = True16;
    EXPECT_TRUE(known(20.0F, 0.008F, 101325.0F));
    for (const Single pressure : {39999.0F, 200001.0F, 14.696F})
        EXPECT_FALSE(known(20.0F, 0.008F, pressure)) << pressure;
    EXPECT_FALSE(known(60.1F, 0.008F, 101325.0F));
}

TEST_F(WetBulbSignsOfAir, AreUnknownWithoutARootInTheBracket)
{
    EXPECT_FALSE(std::isfinite(FindWetBulbSigns(70.0F, 0.05F, 14.696F).negativeBelow));
    UnitSystem = True16;
    EXPECT_FALSE(std::isfinite(FindWetBulbSigns(20.0F, 0.05F, 101325.0F).negativeBelow));
}
