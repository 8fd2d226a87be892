#include "table/Options.h"

#include "core/NumberText.h"
#include "core/RunTimeError.h"
#include "core/StandardAtmosphere.h"
#include "table/TableError.h"

#include <utility>

const char* const UsageText =
    R"(usage: dunmoor-table [--units english|metric] [--pressure P | --altitude Z] [--epw] [FILE]

Reads a table of moist air states as CSV from FILE or standard input, and writes it with
all properties to standard output. The header names the column tdb and one of twb, td, rh,
w, grains; p is optional.

  --units U      english (the default): deg F, psi, lb/lb; metric: deg C, kPa, g/kg
  --pressure P   barometric pressure where the table has none, psi or kPa
  --altitude Z   the same, from the altitude in ft or m
  --epw          read an hourly weather file in EPW form (metric)
  --help         show this text
  --version      show the version
)";

namespace {

Single numberOption(const std::string& name, const std::string& text)
{
    try {
        return RoundToSingle(ParseDouble(text));
    } catch (const RunTimeError&) {
        throw TableError(name + " needs a number, not \"" + text + "\"");
    }
}

/// Takes "--name value" and "--name=value" apart.
class Arguments
{
public:
    explicit Arguments(const std::vector<std::string>& all) : allArguments(all) {}

    bool next()
    {
        if (nextAt == allArguments.size())
            return false;
        const std::string& argument = allArguments[nextAt++];
        const std::size_t equals = argument.starts_with("--") ? argument.find('=') : std::string::npos;
        name = argument.substr(0, equals);
        attached.reset();
        if (equals != std::string::npos)
            attached = argument.substr(equals + 1);
        return true;
    }

    std::string value()
    {
        if (!attached && nextAt < allArguments.size())
            attached = allArguments[nextAt++];
        if (!attached)
            throw TableError(name + " needs a value");
        return *std::exchange(attached, std::nullopt);
    }

    void refuseUnusedValue() const
    {
        if (attached)
            throw TableError(name + " takes no value");
    }

    std::string name;

private:
    const std::vector<std::string>& allArguments;
    std::size_t nextAt = 0;
    std::optional<std::string> attached;
};

bool isMetricUnits(const std::string& units)
{
    if (units != "english" && units != "metric")
        throw TableError("--units is english or metric, not \"" + units + "\"");
    return units == "metric";
}

/// What the options say of the pressure, before the units are known.
struct PressureOptions
{
    std::optional<Single> pressure;
    std::optional<Single> altitude;
};

void completePressure(TableOptions& options, const PressureOptions& given)
{
    if (given.pressure && given.altitude)
        throw TableError("give --pressure or --altitude, not both");
    options.pressure = given.pressure;
    if (given.altitude)
        options.pressure = RoundToSingle(StandardPressure(*given.altitude, options.isMetric));
    if (options.pressure && !(*options.pressure > 0.0F))
        throw TableError("the pressure must be above 0");
}

} // namespace

TableOptions ParseOptions(const std::vector<std::string>& arguments)
{
    TableOptions options;
    PressureOptions given;
    std::optional<bool> isMetric;
    Arguments each(arguments);
    while (each.next()) {
        if (each.name == "--units")
            isMetric = isMetricUnits(each.value());
        else if (each.name == "--pressure")
            given.pressure = numberOption(each.name, each.value());
        else if (each.name == "--altitude")
            given.altitude = numberOption(each.name, each.value());
        else if (each.name == "--epw")
            options.isEpw = true;
        else if (each.name == "--help")
            options.wantsHelp = true;
        else if (each.name == "--version")
            options.wantsVersion = true;
        else if (each.name.starts_with("-") && each.name != "-")
            throw TableError("unknown option " + each.name);
        else if (!options.file.empty())
            throw TableError("more than one file: " + options.file + ", " + each.name);
        else
            options.file = each.name;
        each.refuseUnusedValue();
    }
    if (options.isEpw && isMetric == false)
        throw TableError("a weather file is metric: leave out --units english");
    options.isMetric = isMetric.value_or(options.isEpw);
    completePressure(options, given);
    return options;
}
