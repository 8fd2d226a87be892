#include "table/Properties.h"
#include "table/TableError.h"
#include "table/Tables.h"

namespace {

constexpr int HeaderLines = 8;

// The fields of an hour that are used, from 0.
enum Field : std::size_t
{
    Year,
    Month,
    Day,
    Hour,
    DryBulb = 6,
    DewPoint,
    Pressure = 9,
    UsedFields
};

void skipHeader(Records& records)
{
    for (int i = 0; i < HeaderLines; ++i) {
        if (!records.next() || (i == 0 && records.fields()[0] != "LOCATION"))
            throw TableError(
                "not a weather file in EPW form: it begins with 8 lines, the first with LOCATION");
    }
}

/// A field, or an empty text if it holds the format's figure for a missing value: nines only.
std::string_view present(std::string_view field, std::string_view missing)
{
    return field.starts_with(missing) &&
                   field.find_first_not_of("0.", missing.size()) == std::string_view::npos
               ? std::string_view()
               : field;
}

void addTwoDigits(Output& output, std::string_view number)
{
    output.add(number.size() == 1 ? "0" : "");
    output.add(number);
}

/// The time stamp as in the file: hour 1 is the hour that ends at 01:00.
void addTime(Output& output, const std::vector<std::string_view>& fields)
{
    output.add(fields[Year]);
    output.add("-");
    addTwoDigits(output, fields[Month]);
    output.add("-");
    addTwoDigits(output, fields[Day]);
    output.add("T");
    addTwoDigits(output, fields[Hour]);
    output.add(":00");
}

/// The texts of an hour. The calculators read the pressure in kPa, so the file's Pa get an exponent.
struct HourTexts
{
    std::string_view tdb, td, pascals;
    std::string kilopascals;

    explicit HourTexts(const std::vector<std::string_view>& fields)
        : tdb(present(fields[DryBulb], "99.9")),
          td(present(fields[DewPoint], "99.9")),
          pascals(present(fields[Pressure], "999999")),
          kilopascals(pascals)
    {
        if (!kilopascals.empty())
            kilopascals += "e-3";
    }
};

void addGiven(Output& output, const std::vector<std::string_view>& fields, const HourTexts& hour)
{
    addTime(output, fields);
    for (const std::string_view text : {hour.tdb, hour.td, hour.pascals}) {
        output.add(",");
        output.add(text);
    }
}

} // namespace

RowCount SolveEpw(Records& records, Output& output, const TableOptions& options)
{
    skipHeader(records);
    output.add("time,tdb_C,td_C,p_Pa");
    AddPropertyNames(output, Item::DewPoint);
    output.endRow();

    const RowSolver solver(Item::DewPoint, options.pressure);
    RowCount count;
    std::string note;
    while (records.next()) {
        const auto& fields = records.fields();
        if (fields.size() < UsedFields)
            throw TableError("line " + std::to_string(records.line()) + ": not an hour in EPW form");
        const HourTexts hour(fields);
        const bool isSolved = solver.solve({hour.tdb, hour.td, hour.kilopascals}, note);
        addGiven(output, fields, hour);
        AddProperties(output, Item::DewPoint, isSolved, note);
        output.endRow();
        ++count.rows;
        count.refused += isSolved ? 0 : 1;
    }
    return count;
}
