// The wet bulb search compared with its plain form: millions of searches, results to the last bit and
// failures by number.

#include "core/WetBulbBracket.h"
#include "tests/core/Searches.h"

#include <limits>

namespace {

const std::vector<Single>& Edges()
{
    using Limits = std::numeric_limits<Single>;
    static const std::vector<Single> edges = [] {
        std::vector<Single> values{0.0F};
        for (const Single value : {Limits::denorm_min(),
                                   Limits::min(),
                                   1e-20F,
                                   1e-9F,
                                   0.001F,
                                   0.005F,
                                   0.0050000004F,
                                   0.01F,
                                   0.62198F,
                                   1.0F,
                                   14.696F,
                                   20.0F,
                                   25.0025F,
                                   32.0F,
                                   35.0025F,
                                   50.0F,
                                   50.00502F,
                                   70.0F,
                                   70.005F,
                                   100.0F,
                                   125.0F,
                                   212.0F,
                                   273.15F,
                                   391.99F,
                                   392.0F,
                                   459.67F,
                                   1093.0F,
                                   1966.0F,
                                   2091.7F,
                                   2501.0F,
                                   101325.0F,
                                   1e9F,
                                   1e20F,
                                   Limits::max()}) {
            values.push_back(value);
            values.push_back(-value);
        }
        return values;
    }();
    return edges;
}

} // namespace

TEST_F(EnglishSearches, AirOfTheScreensIsTheSame)
{
    compareRandom(5, "air of the screens", &Searches::ofScreens);
}
TEST_F(MetricSearches, AirOfTheScreensIsTheSame)
{
    compareRandom(5, "air of the screens", &Searches::ofScreens);
}

TEST_F(EnglishSearches, AirAboutZeroDegreesIsTheSame)
{
    compareRandom(1, "a wet bulb near 0 degrees", &Searches::aboutZero);
}
TEST_F(MetricSearches, AirAboutZeroDegreesIsTheSame)
{
    compareRandom(1, "a wet bulb near 0 degrees", &Searches::aboutZero);
}

TEST_F(EnglishSearches, AirAboutFreezingIsTheSame)
{
    compareRandom(1, "a wet bulb near freezing", &Searches::aboutFreezing);
}
TEST_F(MetricSearches, AirAboutFreezingIsTheSame)
{
    compareRandom(1, "a wet bulb near freezing", &Searches::aboutFreezing);
}

TEST_F(EnglishSearches, AirFarOutIsTheSame) { compareRandom(1, "air beyond all limits", &Searches::farOut); }
TEST_F(MetricSearches, AirFarOutIsTheSame) { compareRandom(1, "air beyond all limits", &Searches::farOut); }

TEST_F(EnglishSearches, BoilingAirIsTheSame) { compareRandom(1, "air near boiling", &Searches::boiling); }
TEST_F(MetricSearches, BoilingAirIsTheSame) { compareRandom(1, "air near boiling", &Searches::boiling); }

TEST_F(EnglishSearches, AnyThreeSinglesAreTheSame)
{
    compareRandom(1, "any three singles", &Searches::anyThree);
}

TEST_F(MetricSearches, AnyThreeSinglesAreTheSame)
{
    compareRandom(1, "any three singles", &Searches::anyThree);
}

TEST_F(Searches, FailAlikeAtEveryEdge)
{
    for (const Boolean16 mode : {False16, True16}) {
        UnitSystem = mode;
        for (const Single tdb : Edges()) {
            for (const Single w : Edges()) {
                for (const Single p : Edges())
                    compare({tdb, w, p});
            }
        }
    }
    EXPECT_EQ(different, 0);
    EXPECT_GT(failures, 100); // otherwise the cases don't reach the edges
}

// At a pressure equal to a candidate's saturation pressure, the search divides by zero on the pass that tries
// that candidate, not earlier.
TEST_F(Searches, FailAlikeWhereACandidateBoils)
{
    for (const Boolean16 mode : {False16, True16}) {
        UnitSystem = mode;
        for (int degrees = -20; degrees <= 120; ++degrees) {
            const auto tdb = static_cast<Single>(degrees);
            WetBulbBracket bracket(tdb);
            compare({tdb, 0.01F, SaturationPressure(ToAbsolute(bracket.lower))});
            for (int pass = 0; pass < 12; ++pass) {
                compare({tdb, 0.01F, SaturationPressure(ToAbsolute(bracket.mid))});
                compare({tdb, -0.01F, SaturationPressure(ToAbsolute(bracket.mid))});
                bracket.narrow(degrees % 2 == 0 ? 1 : -1);
            }
        }
    }
    EXPECT_EQ(different, 0);
    EXPECT_GT(failures, 500);
}
