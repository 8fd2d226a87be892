#include "table/Row.h"

#include "core/InputLimits.h"
#include "core/NumberText.h"
#include "core/RunTimeError.h"
#include "core/Solvers.h"

#include <array>
#include <charconv>
#include <stdexcept>

namespace {

constexpr double Gap = 0.01; // degrees below the dry bulb, as in the air properties calculator

struct ItemRules
{
    std::string_view name;
    TaggedNumber MoistAirState::*value;
    const char* (*clip)();
    void (*solve)();
};

const std::array<ItemRules, 5> Rules{{
    {"twb", &MoistAirState::Twb, [] { return ClipWetBulb(Gap); }, SolveFromWetBulb},
    {"td", &MoistAirState::td, [] { return ClipDewPoint(Gap); }, SolveFromDewPoint},
    {"rh", &MoistAirState::RH, ClipRelativeHumidity, SolveFromRH},
    {"w", &MoistAirState::W, ClipHumidityRatio, SolveFromW},
    {"grains", &MoistAirState::Grains, ClipGrains, SolveFromGrains},
}};

const ItemRules& rulesOf(Item item) { return Rules[static_cast<std::size_t>(item)]; }

/// A refused row, with its reason.
class Refusal : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Parses as ParseSingle does, but refuses an empty text. Plain decimals take a faster way to the same
/// number.
Single parse(std::string_view name, std::string_view text)
{
    double value = 0.0;
    const char* const end = text.data() + text.size();
    const bool startsPlainly = !text.empty() && (text[0] == '-' || (text[0] >= '0' && text[0] <= '9'));
    const auto result = std::from_chars(text.data(), end, value);
    if (startsPlainly && result.ec == std::errc{} && result.ptr == end && std::isfinite(value))
        return RoundToSingle(value);
    if (text.find_first_not_of(" \t") == std::string_view::npos)
        throw Refusal(std::string(name) + " is missing");
    try {
        return RoundToSingle(ParseDouble(text));
    } catch (const RunTimeError&) {
        throw Refusal(std::string(name) + " is not a number");
    }
}

/// The ranges of the air properties calculator, with its messages.
void checkTdb()
{
    if (!(StatePoint.Tdb >= LowestTdb && StatePoint.Tdb <= HighestTdb))
        throw Refusal("Temperature Input Out of Range");
    if (IsMetric() && StatePoint.Tdb > HighestMetricTdb)
        throw Refusal("Input Out of Range");
}

} // namespace

std::string_view NameOf(Item item) { return rulesOf(item).name; }

void RowSolver::read(const RowInput& input) const
{
    StatePoint.Tdb = parse("tdb", input.tdb);
    checkTdb();
    const bool isDefault = input.pressure.empty() && defaultPressure;
    const Single shown = isDefault ? *defaultPressure : parse("p", input.pressure);
    if (!(shown > 0.0F))
        throw Refusal("p is not above 0");
    StatePoint.P = IsMetric() ? RoundToSingle(shown * 1000.0) : shown;
    const Single humidity = parse(NameOf(given), input.humidity);
    const bool isGramsPerKilogram = given == Item::HumidityRatio && IsMetric();
    StatePoint.*rulesOf(given).value = isGramsPerKilogram ? RoundToSingle(humidity / 1000.0) : humidity;
}

void RowSolver::run() const
{
    rulesOf(given).solve();
    if (given == Item::HumidityRatio && HumidityRatioTooHigh != 0)
        throw Refusal("Humidity Ratio Input is High");
    if (given == Item::Grains && GrainsTooHigh != 0)
        throw Refusal("Humidity Ratio Input is too High");
}

bool RowSolver::solve(const RowInput& input, std::string& note) const
{
    try {
        read(input);
        const char* const warning = rulesOf(given).clip();
        run();
        note = warning == nullptr ? "" : warning;
        return true;
    } catch (const Refusal& refusal) {
        note = refusal.what();
    } catch (const RunTimeError&) {
        note = "Input Out of Range";
    }
    return false;
}
