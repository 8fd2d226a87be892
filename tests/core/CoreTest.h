#pragma once

#include "core/MainMod.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

/// The number of the RunTimeError that the action throws, or 0.
template <typename Action>
int ErrorOf(Action&& action)
{
    try {
        action();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

constexpr int InvalidArgument = 5;
constexpr int Overflow = 6;
constexpr int DivisionByZero = 11;
constexpr int TypeMismatch = 13;

inline bool SameBits(Single a, Single b)
{
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b);
}
inline bool SameBits(double a, double b)
{
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

inline std::ostream& operator<<(std::ostream& out, NumberKind kind)
{
    constexpr const char* names[] = {"int16", "single", "double", "text"};
    return out << names[static_cast<int>(kind)];
}

/// A tagged number of a state.
using StateItem = TaggedNumber MoistAirState::*;

/// The messages that the core has shown.
inline std::vector<std::string> shownMessages;

/// The core as at process start, in English units.
class EnglishCore : public testing::Test
{
protected:
    EnglishCore()
    {
        StatePoint = {};
        UnitSystem = False16;
        BaroPressure = 0;
        AirVolume = 0;
        AirVolumePreset = 0;
        HeatingLoadValue = 0;
        HumiditySelector.clear();
        HumidityRatioTooHigh = GrainsTooHigh = False16;
        numberLocale = {};
        shownMessages.clear();
        ShowCoreMessage = [](const std::string& text) { shownMessages.push_back(text); };
    }
};

class MetricCore : public EnglishCore
{
protected:
    MetricCore() { UnitSystem = True16; }
};
