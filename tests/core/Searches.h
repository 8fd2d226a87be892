#pragma once

#include "tests/core/AccuracyDocument.h"
#include "tests/core/CoreTest.h"
#include "tests/core/PlainForms.h"
#include "tests/core/Thoroughness.h"

#include <cmath>
#include <random>

/// What the wet bulb search reads.
struct Air
{
    Single tdb, w, p;
};

/// The outcome of a search: the bits of its result, or the number of its failure.
struct Outcome
{
    Single result = 0.0F;
    int error = 0;

    bool operator==(const Outcome& other) const
    {
        return error == other.error && SameBits(result, other.result);
    }
};

inline Outcome OutcomeOf(Single (*search)(Single, Single, Single), const Air& air)
{
    Outcome outcome;
    outcome.error = ErrorOf([&] { outcome.result = search(air.tdb, air.w, air.p); });
    return outcome;
}

/// Compares the search with its plain form for air of many kinds.
class Searches : public EnglishCore
{
protected:
    void compare(const Air& air)
    {
        const Outcome fast = OutcomeOf(SolveWetBulb, air);
        const Outcome plain = OutcomeOf(PlainSolveWetBulb, air);
        failures += plain.error != 0 ? 1 : 0;
        if (!(fast == plain) && ++different <= 10)
            ADD_FAILURE() << std::hexfloat << "tdb " << air.tdb << ", w " << air.w << ", p " << air.p << ": "
                          << fast.result << " error " << fast.error << ", plain " << plain.result << " error "
                          << plain.error;
    }

    /// Compares random states of one kind, which the member function draws.
    void compareRandom(int millions, const std::string& kind, Air (Searches::*draw)())
    {
        const long count = millions * 1000000L * ProofFactor() / OneOf("searches", 1, 50);
        for (long i = 0; i < count; ++i)
            compare((this->*draw)());
        EXPECT_EQ(different, 0);
        if (IsProof())
            ExpectInAccuracyDocument("| " + std::string(IsMetric() ? "Metric" : "English") + " | " + kind +
                                     " | " + std::to_string(count) + " | " + std::to_string(different) +
                                     " |");
    }

    Single uniform(double least, double most)
    {
        return RoundToSingle(std::uniform_real_distribution<double>(least, most)(random));
    }

    /// Distributed evenly over the orders of magnitude.
    Single magnitude(double least, double most)
    {
        return RoundToSingle(
            std::exp(std::uniform_real_distribution<double>(std::log(least), std::log(most))(random)));
    }

    Single anySingle()
    {
        while (true) {
            const auto value = std::bit_cast<Single>(static_cast<std::uint32_t>(random()));
            if (std::isfinite(value))
                return value;
        }
    }

    Single anySign(Single value) { return random() % 2 == 0 ? value : -value; }

public:
    /// Air that the screens accept, up to slightly above saturation.
    Air ofScreens()
    {
        const Single tdb = IsMetric() ? uniform(-40, 50) : uniform(-40, 125);
        const Single p = IsMetric() ? uniform(50000, 110000) : uniform(7, 16);
        const Single ws = HumidityRatioFromVaporPressure(SaturationPressure(ToAbsolute(tdb)), p);
        return {tdb, RoundToSingle(ws * uniform(0, 1.02)), p};
    }

    /// Air with a wet bulb near 0 degrees, where a search runs all its passes and ends between two singles.
    Air aboutZero()
    {
        const Single p = IsMetric() ? uniform(50000, 110000) : uniform(7, 16);
        const Single wetBulb = anySign(magnitude(1e-9, 1.0));
        const Single tdb = RoundToSingle(wetBulb + magnitude(0.005, 60.0));
        const Single ws = HumidityRatioFromVaporPressure(SaturationPressure(ToAbsolute(wetBulb)), p);
        return {tdb, HumidityRatioFromWetBulb(wetBulb, tdb, ws), p};
    }

    /// Air near the freezing point, where the saturation pressure changes from ice to water.
    Air aboutFreezing()
    {
        const Single freezing = IsMetric() ? 0.0F : 32.0F;
        const Single p = IsMetric() ? uniform(50000, 110000) : uniform(7, 16);
        const Single wetBulb = RoundToSingle(freezing + anySign(magnitude(1e-7, 0.1)));
        const Single tdb = RoundToSingle(wetBulb + magnitude(0.005, 60.0));
        const Single ws = HumidityRatioFromVaporPressure(SaturationPressure(ToAbsolute(wetBulb)), p);
        return {tdb, HumidityRatioFromWetBulb(wetBulb, tdb, ws), p};
    }

    /// Temperatures beyond both ends of the saturation pressure, and humidities and pressures of every size.
    Air farOut()
    {
        return {uniform(-600, 3000), anySign(magnitude(1e-30, 1e12)), anySign(magnitude(1e-30, 1e12))};
    }

    Air anyThree() { return {anySingle(), anySingle(), anySingle()}; }

    /// A pressure close to a candidate's saturation pressure.
    Air boiling()
    {
        const Single tdb = IsMetric() ? uniform(-40, 200) : uniform(-40, 390);
        const Single candidate = RoundToSingle(tdb - uniform(0, IsMetric() ? 50 : 70));
        const Single p = SaturationPressure(ToAbsolute(candidate));
        return {tdb, anySign(magnitude(1e-6, 1e6)), RoundToSingle(p * uniform(0.999, 1.02))};
    }

protected:
    std::mt19937_64 random{2024};
    int failures = 0;
    int different = 0;
};

class EnglishSearches : public Searches
{};

class MetricSearches : public Searches
{
protected:
    MetricSearches() { UnitSystem = True16; }
};
