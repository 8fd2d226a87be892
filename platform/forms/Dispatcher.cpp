#include "platform/forms/Dispatcher.h"

#include "platform/forms/Form.h"
#include "platform/forms/MsgBox.h"

#include <QCoreApplication>

#include <cstdlib>

namespace forms {

namespace {

[[noreturn]] void reportAndEnd(const std::exception& failure)
{
    MsgBox(DescribeFailure(failure));
    std::_Exit(EXIT_FAILURE); // at once: nothing may be written to the settings on this way out
}

} // namespace

void runHandler(Form& form, const Handler& handler) noexcept
{
    const Form::RunningHandler running(form);
    try {
        handler();
    } catch (const std::exception& failure) {
        reportAndEnd(failure);
    }
}

void endProcess()
{
    QCoreApplication::exit(
        EXIT_SUCCESS); // quit() would close the forms that are still shown, and could be refused
}

} // namespace forms
