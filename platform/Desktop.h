#pragma once

#include <string>

/// The folder of the executable, links resolved, without a trailing separator.
std::string ApplicationFolder();

/// Sets the current directory of the process.
void MakeCurrentDirectory(const std::string& folder);

/// Makes the process ignore relative paths in the XDG variables, as the XDG standard requires.
void IgnoreRelativeFolders();

/// The characters that the user's locale uses in numbers.
struct NumberCharacters
{
    std::string decimalPoint;
    std::string groupSeparator;
};
NumberCharacters UserNumberCharacters();
