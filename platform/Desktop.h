#pragma once

#include <string>

namespace forms {
class Form;
} // namespace forms

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

/// Today's date in the short form of the user's locale, without the time.
std::string ShortDate();

constexpr int SW_SHOWNORMAL = 1;

/// Opens a "mailto:" link or a web address in the desktop's program for it.
/// @param verb        "open"; any other verb is refused
/// @param parameters  arguments for a program; ignored for a link
/// @param directory   working directory for a program; ignored for a link
/// @return            above 32 if the desktop accepted the target, else 32 or less
int ShellExecuteA(const forms::Form& owner, const std::string& verb, const std::string& target,
                  const std::string& parameters, const std::string& directory, int showCommand);

/// Starts a program with a normal window. Returns false if it doesn't start.
bool StartProgramFile(const std::string& path);
