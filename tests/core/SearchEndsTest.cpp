// The wet bulb search ends, for every dry bulb and humidity ratio of the screens: after at most 21 passes,
// and without a division by a midpoint of 0.

#include "core/InputLimits.h"
#include "core/WetBulbBracket.h"
#include "tests/core/CoreTest.h"
#include "tests/core/Thoroughness.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <random>

namespace {

constexpr int MostPasses = 21;

/// The passes of a search whose residuals have the given signs: the action tells for each pass whether the
/// root is below the midpoint.
template <typename IsRootBelow>
int passesOf(Single tdb, IsRootBelow isRootBelow)
{
    WetBulbBracket bracket(tdb);
    while (!bracket.narrow(isRootBelow(bracket) ? -1.0F : 1.0F) && bracket.count <= MostPasses) {
    }
    return bracket.count;
}

/// Only a bracket around 0 has a midpoint of 0, and only one choice of halves keeps 0 in the bracket. Takes
/// that way from every dry bulb whose bracket is around 0: above 0.005 degrees, and at most the width of the
/// bracket.
void expectNoMidpointOfZero(Single width)
{
    const auto first = std::bit_cast<std::uint32_t>(0.005F);
    const auto last = std::bit_cast<std::uint32_t>(width);
    int most = 0;
    for (std::uint32_t bits = first; bits <= last; bits += IsProof() ? 1 : 101) {
        const auto tdb = std::bit_cast<Single>(bits);
        const int passes = passesOf(tdb, [](const WetBulbBracket& bracket) { return bracket.mid > 0.0F; });
        most = std::max(most, passes); // narrow() throws at a midpoint of 0
    }
    EXPECT_EQ(most, MostPasses);
}

/// Any dry bulb and any signs: no humidity ratio or pressure can give others. Half of the dry bulbs are those
/// of the screens.
void expectEndForAnySigns(double highest)
{
    std::mt19937_64 random(21);
    std::uniform_real_distribution<double> ofScreens(LowestTdb, highest);
    for (int i = 0; i < 1000000; ++i) {
        const auto any = std::bit_cast<Single>(static_cast<std::uint32_t>(random()));
        const Single tdb = i % 2 == 0 && std::isfinite(any) ? any : RoundToSingle(ofScreens(random));
        ASSERT_LE(passesOf(tdb, [&](const WetBulbBracket&) { return random() % 2 == 0; }), MostPasses) << tdb;
    }
}

} // namespace

class EnglishSearchEnds : public EnglishCore
{};
class MetricSearchEnds : public MetricCore
{};

TEST_F(EnglishSearchEnds, WithoutAMidpointOfZero) { expectNoMidpointOfZero(70.0F); }
TEST_F(MetricSearchEnds, WithoutAMidpointOfZero) { expectNoMidpointOfZero(50.0F); }

TEST_F(EnglishSearchEnds, WithinItsPassesWhateverTheSigns) { expectEndForAnySigns(HighestTdb); }
TEST_F(MetricSearchEnds, WithinItsPassesWhateverTheSigns) { expectEndForAnySigns(HighestMetricTdb); }
