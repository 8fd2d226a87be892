// Every solver compared with independently computed states, to the last bit.

#include "tests/core/CoreTest.h"

#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>
#include <variant>

namespace {

using Row = std::map<std::string, std::string>;
using Field = std::variant<TaggedNumber*, Single*>;

std::vector<std::string> Split(const std::string& line)
{
    std::vector<std::string> cells;
    std::istringstream stream(line);
    for (std::string cell; std::getline(stream, cell, ',');)
        cells.push_back(cell);
    return cells;
}

std::vector<Row> RowsFor(const std::string& solver)
{
    std::ifstream file(DUNMOOR_TEST_DATA "/states.csv");
    std::vector<std::string> names;
    std::vector<Row> rows;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#'))
            continue;
        const std::vector<std::string> cells = Split(line);
        if (names.empty()) {
            names = cells;
            continue;
        }
        Row row;
        for (std::size_t i = 0; i < names.size(); ++i)
            row[names[i]] = cells.at(i);
        if (row["solver"] == solver)
            rows.push_back(row);
    }
    return rows;
}

double Number(const std::string& text) { return std::strtod(text.c_str(), nullptr); }

TaggedNumber Tagged(const std::string& kind, const std::string& text)
{
    const double value = Number(text);
    if (kind == "int16")
        return static_cast<int>(value);
    if (kind == "single")
        return RoundToSingle(value);
    return value;
}

std::vector<std::pair<std::string, Field>> FieldsOf(MoistAirState& state)
{
    return {{"Mu", &state.Mu},         {"Grains", &state.Grains}, {"RH", &state.RH},
            {"SpVol", &state.SpVol},   {"h", &state.h},           {"PwsDew", &state.PwsDew},
            {"PwsWet", &state.PwsWet}, {"Pws", &state.Pws},       {"W", &state.W},
            {"Ws", &state.Ws},         {"WsWet", &state.WsWet},   {"ReservedSingle", &state.ReservedSingle},
            {"TAbs", &state.TAbs},     {"td", &state.td},         {"P", &state.P},
            {"Pw", &state.Pw},         {"Twb", &state.Twb},       {"Tdb", &state.Tdb}};
}

void Fill(const std::string& fill)
{
    StatePoint = {};
    if (fill == "0")
        return;
    for (auto& [name, field] : FieldsOf(StatePoint))
        std::visit([](auto* number) { *number = 7.25F; }, field);
}

std::string Spelling(NumberKind kind, double value)
{
    std::ostringstream text;
    text << kind << ' ' << std::hexfloat << value;
    return text.str();
}

std::string Held(const Field& field)
{
    if (const auto* tagged = std::get_if<TaggedNumber*>(&field))
        return Spelling((*tagged)->kind(), (*tagged)->asDouble());
    return Spelling(NumberKind::Single, static_cast<double>(*std::get<Single*>(field)));
}

std::string Expected(const Row& row, const std::string& name)
{
    const bool input = name == "P" || name == "Tdb"; // their plain names are those of the inputs
    const TaggedNumber number = Tagged(row.at(name + ".kind"), row.at(input ? name + ".after" : name));
    return Spelling(number.kind(), number.asDouble());
}

std::string OutcomeOf(void (*solve)())
{
    shownMessages.clear();
    try {
        solve();
    } catch (const RunTimeError&) {
        return "raised";
    }
    return shownMessages.empty() ? "ok" : "refused";
}

class StateVectors : public EnglishCore
{
protected:
    void expectAll(const std::string& solver, void (*solve)(), StateItem item)
    {
        const std::vector<Row> rows = RowsFor(solver);
        ASSERT_EQ(rows.size(), 400U);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const Row& row = rows[i];
            SCOPED_TRACE(solver + " line " + std::to_string(i) + ", Tdb " + row.at("Tdb") + ", item " +
                         row.at("item"));
            UnitSystem = static_cast<Boolean16>(std::stoi(row.at("UnitSystem")));
            HumidityRatioTooHigh = GrainsTooHigh = False16;
            Fill(row.at("fill"));
            StatePoint.Tdb = RoundToSingle(Number(row.at("Tdb")));
            StatePoint.P = RoundToSingle(Number(row.at("P")));
            StatePoint.*item = Tagged(row.at("item_kind"), row.at("item"));

            EXPECT_EQ(OutcomeOf(solve), row.at("outcome"));
            EXPECT_EQ(std::to_string(HumidityRatioTooHigh), row.at("HumidityRatioTooHigh"));
            EXPECT_EQ(std::to_string(GrainsTooHigh), row.at("GrainsTooHigh"));
            for (const auto& [name, field] : FieldsOf(StatePoint))
                EXPECT_EQ(Held(field), Expected(row, name)) << name;
        }
    }
};

} // namespace

TEST_F(StateVectors, FromGrains) { expectAll("SolveFromGrains", SolveFromGrains, &MoistAirState::Grains); }
TEST_F(StateVectors, FromW) { expectAll("SolveFromW", SolveFromW, &MoistAirState::W); }
TEST_F(StateVectors, FromWetBulb) { expectAll("SolveFromWetBulb", SolveFromWetBulb, &MoistAirState::Twb); }
TEST_F(StateVectors, FromDewPoint) { expectAll("SolveFromDewPoint", SolveFromDewPoint, &MoistAirState::td); }
TEST_F(StateVectors, FromRelativeHumidity) { expectAll("SolveFromRH", SolveFromRH, &MoistAirState::RH); }
