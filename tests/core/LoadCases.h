#pragma once

#include "tests/core/CoreTest.h"

#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

/// One line of a case file: its cells by column name.
class LoadCase
{
public:
    LoadCase(const std::vector<std::string>& names, const std::string& line) : line_(line)
    {
        std::istringstream stream(line);
        for (const std::string& name : names) {
            std::string cell; // remains empty for cells missing at the end of the line
            std::getline(stream, cell, ',');
            cells_[name] = cell;
        }
    }

    const std::string& text(const std::string& name) const { return cells_.at(name); }
    bool has(const std::string& name) const { return !text(name).empty(); }
    double number(const std::string& name) const { return std::strtod(text(name).c_str(), nullptr); }
    Single single(const std::string& name) const { return RoundToSingle(number(name)); }
    int integer(const std::string& name) const { return std::stoi(text(name)); }
    const std::string& line() const { return line_; }

private:
    std::string line_;
    std::map<std::string, std::string> cells_;
};

inline std::vector<LoadCase> LoadCasesIn(const std::string& file)
{
    std::ifstream stream(DUNMOOR_TEST_DATA "/" + file);
    std::vector<std::string> names;
    std::vector<LoadCase> cases;
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with('#'))
            continue;
        if (!names.empty()) {
            cases.emplace_back(names, line);
            continue;
        }
        std::istringstream header(line);
        for (std::string name; std::getline(header, name, ',');)
            names.push_back(name);
    }
    return cases;
}

/// A number and its kind, to the last bit.
inline std::string Spelling(const std::string& kind, double value)
{
    std::ostringstream text;
    text << kind << ' ' << std::hexfloat << value;
    return text.str();
}
inline std::string Spelling(NumberKind kind, double value)
{
    std::ostringstream text;
    text << kind;
    return Spelling(text.str(), value);
}
inline std::string Spelling(const TaggedNumber& number) { return Spelling(number.kind(), number.asDouble()); }

/// A number of a case, with the kind from the column for it.
inline std::string SpellingIn(const LoadCase& given, const std::string& name)
{
    return Spelling(given.text(name + ".kind"), given.number(name));
}
