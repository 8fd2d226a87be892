// How far saturation pressures and dew points are from their equations. The equations are evaluated again in
// long double, which has 11 bits more than double, and rounded to single where the calculator rounds.

#include "tests/core/AccuracyDocument.h"
#include "tests/core/CoreTest.h"
#include "tests/core/Thoroughness.h"

#include <algorithm>
#include <array>
#include <cmath>

static_assert(std::numeric_limits<long double>::digits >= 64);

namespace {

using Wide = long double;

// In units in the last place. Half a unit is the least that rounding leaves. The dew point rounds a logarithm
// first: next to a tie, double and long double may round it to different singles, up to 4 units of the dew
// point apart.
constexpr Wide NextToHalf = 0.50001L;
constexpr Wide DewPointBound = 5.0L;

std::uint32_t bitsOf(Single value) { return std::bit_cast<std::uint32_t>(value); }

/// c1 to c7 as printed in the ASHRAE Handbook of Fundamentals.
using Coefficients = std::array<Wide, 7>;
constexpr Coefficients iceEnglish{-10214.165L,    -4.8932428L,     -0.0053765794L, 1.9202377e-7L,
                                  3.5575832e-10L, -9.0344688e-14L, 4.1635019L};
constexpr Coefficients waterEnglish{-10440.39L,     -11.29465L, -0.027022355L, 1.289036e-5L,
                                    -2.4780681e-9L, 0.0L,       6.5459673L};
constexpr Coefficients iceMetric{-5674.5359L,   6.3925247L,     -0.009677843L, 6.22115701e-7L,
                                 2.0747825e-9L, -9.484024e-13L, 4.1635019L};
constexpr Coefficients waterMetric{-5800.2206L,    1.3914993L, -0.048640239L, 4.1764768e-5L,
                                   -1.4452093e-8L, 0.0L,       6.5459673L};

Wide wideSaturationPressure(Single T)
{
    const bool isIce = T <= (IsMetric() ? 273.15F : 491.67F);
    const Coefficients& c =
        IsMetric() ? (isIce ? iceMetric : waterMetric) : (isIce ? iceEnglish : waterEnglish);
    const Wide t = T;
    const Wide polynomial = c[1] + t * (c[2] + t * (c[3] + t * (c[4] + t * c[5])));
    return std::exp(c[0] / t + polynomial + c[6] * std::log(t));
}

/// The dew point in deg C. The calculator rounds the logarithm of the pressure to single.
Wide wideDewPoint(Wide logarithm, Wide exact)
{
    const Wide a = logarithm;
    const Wide above =
        6.54L + a * (14.526L + a * (0.7389L + a * 0.09486L)) + 0.4569L * std::exp(0.1984L * exact);
    return above < 0.0L ? 6.09L + a * (12.608L + a * 0.4959L) : above;
}

/// In the unit of the mode, before the last rounding.
Wide wideDewPointFromVaporPressure(Single pw)
{
    const Single kiloPascals = IsMetric() ? pw : static_cast<Single>(pw * 6.8947333L);
    const Wide exact = std::log(static_cast<Wide>(kiloPascals));
    const Wide td = wideDewPoint(static_cast<Single>(exact), exact);
    return IsMetric() ? td : static_cast<Single>(td) * 1.8L + 32.0L;
}

/// Compares a relation with its long double evaluation.
class Comparison
{
public:
    void add(Single argument, Single result, Wide exact)
    {
        ++compared;
        if (result != static_cast<Single>(exact) && ++different <= 20)
            std::cout << std::hexfloat << "rounded differently: " << argument << std::defaultfloat << '\n';
        const int exponent = std::max(std::ilogb(exact), std::numeric_limits<Single>::min_exponent - 1);
        const Wide unit = std::ldexp(1.0L, exponent - 23);
        largest = std::max(largest, std::fabs(result - exact) / unit);
    }

    /// Every single from first to last, or a sample.
    void addRange(Single first, Single last, std::uint32_t sample, Single (*relation)(Single),
                  Wide (*exact)(Single))
    {
        const std::uint32_t step = IsProof() ? 1 : sample;
        for (std::uint32_t bits = bitsOf(first); bits <= bitsOf(last); bits += step) {
            const auto argument = std::bit_cast<Single>(bits);
            add(argument, relation(argument), exact(argument));
        }
    }

    void expectRounded(const std::string& what, Wide bound) const
    {
        EXPECT_LT(largest, bound);
        if (IsProof())
            ExpectInAccuracyDocument("| " + what + " | " + std::to_string(compared) + " | " +
                                     std::to_string(static_cast<double>(largest)) + " | " +
                                     std::to_string(different) + " |");
    }

private:
    long compared = 0;
    long different = 0;
    Wide largest = 0.0L; // in units in the last place
};

} // namespace

class EnglishRounding : public EnglishCore
{};
class MetricRounding : public MetricCore
{};

TEST_F(EnglishRounding, OfTheSaturationPressureIsTheLastBit)
{
    Comparison all;
    all.addRange(std::nextafter(311.0F, 400.0F), std::nextafter(851.67F, 0.0F), 61, SaturationPressure,
                 wideSaturationPressure);
    all.expectRounded("saturation pressure, English", NextToHalf);
}

TEST_F(MetricRounding, OfTheSaturationPressureIsTheLastBit)
{
    Comparison all;
    all.addRange(std::nextafter(175.0F, 400.0F), std::nextafter(473.0F, 0.0F), 61, SaturationPressure,
                 wideSaturationPressure);
    all.expectRounded("saturation pressure, Metric", NextToHalf);
}

TEST_F(EnglishRounding, OfTheDewPointIsTheLastBit)
{
    const auto last = static_cast<Single>(std::numeric_limits<Single>::max() / KiloPascalPerPsi);
    EXPECT_EQ(ErrorOf([&] { DewPointFromVaporPressure(std::nextafter(last, 1e38F)); }), Overflow); // in kPa
    Comparison all;
    all.addRange(0x1p-149F, last, 4001, DewPointFromVaporPressure, wideDewPointFromVaporPressure);
    all.expectRounded("dew point, English", DewPointBound);
}

TEST_F(MetricRounding, OfTheDewPointIsTheLastBit)
{
    Comparison all;
    all.addRange(0x1p-149F, std::numeric_limits<Single>::max(), 4001, DewPointFromVaporPressure,
                 wideDewPointFromVaporPressure);
    all.expectRounded("dew point, Metric", DewPointBound);
}

// The logarithm rounded to single moves the dew point by up to its slope times half a unit.
TEST_F(MetricRounding, OfTheLogarithmMovesTheDewPointOfAirByHundredThousandths)
{
    Wide largest = 0.0L;
    for (std::uint32_t bits = bitsOf(0.01F); bits <= bitsOf(101.325F); bits += IsProof() ? 1 : 61) {
        const auto pw = std::bit_cast<Single>(bits);
        const Wide a = std::log(static_cast<Wide>(pw));
        largest = std::max(largest, std::fabs(DewPointFromVaporPressure(pw) - wideDewPoint(a, a)));
    }
    EXPECT_LT(largest, 1.5e-5L);
}
