#pragma once

#include <exception>
#include <functional>
#include <string>

namespace forms {

class Form;

using Handler = std::function<void()>;

/// Runs an event handler of a form. If an exception leaves the handler, shows its report and ends the process
/// with status 1 when the box is closed. Keeps the form in memory while the handler runs, even if the handler
/// unloads it.
void RunHandler(Form& form, const Handler& handler) noexcept;

/// Formats the report of a fatal failure. The program sets this at startup.
using FailureReport = std::string (*)(const std::exception& failure);
inline FailureReport DescribeFailure = [](const std::exception& failure) {
    return std::string(failure.what());
};

/// Ends the process with status 0, from within a handler. The event loop stops when all handlers have
/// returned.
void EndProcess();

} // namespace forms
