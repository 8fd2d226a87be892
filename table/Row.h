#pragma once

#include "core/StatePoint.h"

#include <optional>
#include <string>
#include <string_view>

/// One of the five humidity items. The numbers are positions in HumidityItems.
enum class Item
{
    WetBulb,
    DewPoint,
    RelativeHumidity,
    HumidityRatio,
    Grains
};

/// The texts that describe a state, with the item's text in `humidity`. An empty pressure is the default.
struct RowInput
{
    std::string_view tdb, humidity, pressure;
};

/// Reads and solves rows as the air properties calculator does.
class RowSolver
{
public:
    /// @param pressure  the default, psi or kPa; without one, a row without a pressure is refused
    RowSolver(Item item, std::optional<Single> pressure) : given(item), defaultPressure(pressure) {}

    /// Solves the state into StatePoint.
    /// @param note  receives the warning for a clipped item, or the reason for a refusal; empty otherwise
    /// @return      false if the row is refused
    bool solve(const RowInput& input, std::string& note) const;

private:
    void read(const RowInput& input) const;
    void run() const;

    Item given;
    std::optional<Single> defaultPressure;
};

/// The name of the item's column in a table's header.
std::string_view NameOf(Item item);
