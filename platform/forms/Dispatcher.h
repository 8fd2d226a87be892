#pragma once

#include <exception>
#include <functional>
#include <string>

namespace forms {

class Form;

using Handler = std::function<void()>;

/// Runs one event handler of a form. A failure that leaves the handler is fatal: its report is shown,
/// and the process ends with status 1 when the box is closed. While a
/// handler runs its form is kept in memory, also when the handler unloads it.
void runHandler(Form& form, const Handler& handler) noexcept;

/// How a fatal failure is told to the user; the program sets it at start.
using FailureReport = std::string (*)(const std::exception& failure);
inline FailureReport DescribeFailure = [](const std::exception& failure) {
    return std::string(failure.what());
};

/// Ends the process from a handler, status 0: the event loop stops when the handlers have returned.
void endProcess();

} // namespace forms
