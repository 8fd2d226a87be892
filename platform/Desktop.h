#pragma once

#include <string>

/// The folder of the executable, links resolved, without a trailing separator.
std::string ApplicationFolder();

/// Makes a folder the current directory of the process.
void MakeCurrentDirectory(const std::string& folder);

/// Makes the process ignore relative XDG folders, as their standard asks.
void IgnoreRelativeFolders();

/// The characters that the user's locale writes numbers with.
struct NumberCharacters
{
    std::string decimalPoint;
    std::string groupSeparator;
};
NumberCharacters UserNumberCharacters();
