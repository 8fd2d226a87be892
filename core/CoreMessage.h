#pragma once

#include <string>

/// Shows a message to the user and returns when it is closed.
using MessageHook = void (*)(const std::string& text);

/// How the solvers show their two messages. The program sets it at start; until then they are shown to
/// nobody.
inline MessageHook ShowCoreMessage = [](const std::string&) {};
