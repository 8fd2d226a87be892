#pragma once

#include "platform/forms/Form.h"

#include <memory>
#include <typeindex>

namespace forms {

/// Owns the one instance of each form class.
class FormRegistry
{
public:
    static Form* find(std::type_index type);
    static Form& adopt(std::type_index type, std::unique_ptr<Form> newForm);
    /// Removes an unloaded form, so that the next use creates a new one. Destroys it when it is idle.
    static void retire(Form& unloaded);
    static void destroyIfIdle(Form& unloaded);
    /// Destroys all forms at the end of the process without running their unload handlers.
    static void clear();
};

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
