#pragma once

#include "core/Single.h"

#include <optional>
#include <string>
#include <vector>

/// What the command line asks for.
struct TableOptions
{
    bool isMetric = false;
    bool isEpw = false;
    bool wantsHelp = false;
    bool wantsVersion = false;
    std::optional<Single> pressure; ///< psi or kPa, from --pressure or --altitude
    std::string file;               ///< empty for standard input
};

/// @param arguments  without the program's name
/// @throws TableError for anything that it can't use
TableOptions ParseOptions(const std::vector<std::string>& arguments);

extern const char* const UsageText;
