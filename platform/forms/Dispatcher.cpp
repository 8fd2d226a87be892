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
    std::_Exit(EXIT_FAILURE); // immediately: this path must not write any settings
}

} // namespace

void RunHandler(Form& form, const Handler& handler) noexcept
{
    const Form::RunningHandler running(form);
    try {
        handler();
    } catch (const std::exception& failure) {
        reportAndEnd(failure);
    }
}

void EndProcess()
{
    QCoreApplication::exit(EXIT_SUCCESS); // quit() would close the shown forms, and one could refuse
}

} // namespace forms
