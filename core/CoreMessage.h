#pragma once

#include <string>

/// Shows a message to the user and returns when it is closed.
using MessageHook = void (*)(const std::string& text);

/// Shows the two messages of the solvers. The program sets it at start; the default ignores the message.
inline MessageHook ShowCoreMessage = [](const std::string&) {};
