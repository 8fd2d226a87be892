#include "platform/forms/Dispatcher.h"

#include "platform/forms/Form.h"
#include "platform/forms/MsgBox.h"

#include <QCoreApplication>

#include <cstdlib>

namespace forms {

void RunHandler(Form& form, const Handler& handler) noexcept
{
    const Form::RunningHandler running(form);
    try {
        handler();
    } catch (const std::exception& failure) {
        MsgBox(DescribeFailure(failure));
        std::_Exit(EXIT_FAILURE); // immediately: this path must not write any settings
    }
}

void EndProcess()
{
    QCoreApplication::exit(EXIT_SUCCESS); // quit() would close the shown forms, and one could refuse
}

} // namespace forms
