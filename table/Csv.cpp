#include "table/Properties.h"
#include "table/Row.h"
#include "table/TableError.h"
#include "table/Tables.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr Single StandardPsi = 14.696F;
constexpr Single StandardKPa = 101.325F;

/// The text of a field without its quotes. Numbers and names contain no doubled quotes.
std::string_view unquoted(std::string_view field)
{
    const bool isQuoted = field.size() >= 2 && field.front() == '"' && field.back() == '"';
    return isQuoted ? field.substr(1, field.size() - 2) : field;
}

/// A column's name for comparison: without quotes and blanks around it, in lower case.
std::string nameIn(std::string_view field)
{
    std::string name;
    for (const char c : unquoted(field))
        name += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    name.erase(0, name.find_first_not_of(' '));
    name.erase(name.find_last_not_of(' ') + 1);
    return name;
}

/// The positions of the input columns.
struct Columns
{
    std::size_t count;
    std::size_t tdb;
    std::size_t humidity;
    std::optional<std::size_t> pressure;
    Item item;
};

/// @throws TableError if two columns have that name
std::optional<std::size_t> find(const std::vector<std::string>& names, std::string_view name)
{
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end())
        return std::nullopt;
    if (std::find(found + 1, names.end(), name) != names.end())
        throw TableError("the header names " + std::string(name) + " twice");
    return static_cast<std::size_t>(found - names.begin());
}

Columns columnsIn(const std::vector<std::string_view>& header)
{
    std::vector<std::string> names;
    std::transform(header.begin(), header.end(), std::back_inserter(names), nameIn);
    const auto tdb = find(names, "tdb");
    if (!tdb)
        throw TableError("the header has no column tdb");

    Columns columns{names.size(), *tdb, 0, find(names, "p"), Item::WetBulb};
    int items = 0;
    for (const Item item :
         {Item::WetBulb, Item::DewPoint, Item::RelativeHumidity, Item::HumidityRatio, Item::Grains}) {
        if (const auto found = find(names, NameOf(item))) {
            columns.humidity = *found;
            columns.item = item;
            ++items;
        }
    }
    if (items != 1)
        throw TableError("the header needs exactly one of the columns twb, td, rh, w, grains");
    if (columns.item == Item::Grains && IsMetric())
        throw TableError("grains are for English units only");
    return columns;
}

/// Writes a row's own columns: as they are, or cut or filled up to the header's number of columns.
void addOwnColumns(Output& output, const Records& records, std::size_t count)
{
    const auto& fields = records.fields();
    if (fields.size() == count) {
        output.add(records.text());
        return;
    }
    for (std::size_t i = 0; i < count; ++i) {
        output.add(i == 0 ? "" : ",");
        output.add(i < fields.size() ? fields[i] : "");
    }
}

bool solveRow(const Records& records, const Columns& columns, const RowSolver& solver, std::string& note)
{
    const auto& fields = records.fields();
    if (fields.size() != columns.count) {
        note = std::to_string(fields.size()) + " columns instead of " + std::to_string(columns.count);
        return false;
    }
    const std::string_view pressure = columns.pressure ? unquoted(fields[*columns.pressure]) : "";
    return solver.solve({unquoted(fields[columns.tdb]), unquoted(fields[columns.humidity]), pressure}, note);
}

} // namespace

RowCount SolveCsv(Records& records, Output& output, const TableOptions& options)
{
    if (!records.next())
        throw TableError("no header: the input is empty");
    const Columns columns = columnsIn(records.fields());
    output.add(records.text());
    AddPropertyNames(output, columns.item);
    output.endRow(records.lineEnd());

    std::optional<Single> pressure = options.pressure;
    if (!columns.pressure && !pressure)
        pressure = IsMetric() ? StandardKPa : StandardPsi;
    const RowSolver solver(columns.item, pressure);
    RowCount count;
    std::string note;
    while (records.next()) {
        const bool isSolved = solveRow(records, columns, solver, note);
        addOwnColumns(output, records, columns.count);
        AddProperties(output, columns.item, isSolved, note);
        output.endRow(records.lineEnd());
        ++count.rows;
        count.refused += isSolved ? 0 : 1;
    }
    return count;
}
