#pragma once

#include "platform/forms/Form.h"

namespace forms {

/// The process-wide instance of a form class. The first use creates it hidden and runs its load handler; so
/// does the first use after it was unloaded.
template <class F>
F& form()
{
    if (Form* loaded = FormRegistry::find(typeid(F)))
        return static_cast<F&>(*loaded);
    return static_cast<F&>(FormRegistry::adopt(typeid(F), std::make_unique<F>()));
}

/// Whether the form exists, shown or hidden. Does not create it.
template <class F>
bool isLoaded()
{
    return FormRegistry::find(typeid(F)) != nullptr;
}

} // namespace forms
