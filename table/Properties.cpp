#include "table/Properties.h"

#include <array>
#include <optional>

namespace {

/// A column of the results. Its values are those that the calculators show, before rounding.
struct Property
{
    std::optional<Item> item; ///< if it can be the given item
    const char* english = nullptr;
    const char* metric = nullptr; ///< nullptr if Metric has none
    TaggedNumber (*value)() = nullptr;
};

const std::array<Property, 7> Properties{{
    {Item::WetBulb, "twb_F", "twb_C", [] { return StatePoint.Twb; }},
    {Item::DewPoint, "td_F", "td_C", [] { return StatePoint.td; }},
    {Item::RelativeHumidity, "rh_percent", "rh_percent", [] { return StatePoint.RH * 100; }},
    {Item::HumidityRatio, "w_lb_per_lb", "w_g_per_kg",
     [] { return IsMetric() ? StatePoint.W * 1000 : StatePoint.W; }},
    {Item::Grains, "grains_gr_per_lb", nullptr, [] { return StatePoint.Grains; }},
    {std::nullopt, "h_Btu_per_lb", "h_kJ_per_kg", [] { return TaggedNumber(StatePoint.h); }},
    {std::nullopt, "v_ft3_per_lb", "v_m3_per_kg", [] { return StatePoint.SpVol; }},
}};

const char* nameOf(const Property& property) { return IsMetric() ? property.metric : property.english; }

bool isWritten(const Property& property, Item given)
{
    return nameOf(property) != nullptr && property.item != given;
}

} // namespace

void AddPropertyNames(Output& output, Item given)
{
    for (const Property& property : Properties) {
        if (isWritten(property, given)) {
            output.add(",");
            output.add(nameOf(property));
        }
    }
    output.add(",note");
}

void AddProperties(Output& output, Item given, bool isSolved, const std::string& note)
{
    for (const Property& property : Properties) {
        if (isWritten(property, given)) {
            output.add(",");
            if (isSolved)
                output.addNumber(property.value());
        }
    }
    output.add(",");
    output.addQuoted(note);
}
