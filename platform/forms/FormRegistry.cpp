#include "platform/forms/Forms.h"

#include <QCoreApplication>
#include <QTimer>

#include <map>
#include <vector>

namespace forms {

namespace {

// Intentionally never destroyed: if exit() ends the process, for example when the display goes away, the
// destructor would destroy the windows after the toolkit. clear() destroys the forms at a normal end.
auto& loadedForms = *new std::map<std::type_index, std::unique_ptr<Form>>;
auto& retiredForms = *new std::vector<std::unique_ptr<Form>>;

} // namespace

Form* FormRegistry::find(std::type_index type)
{
    const auto found = loadedForms.find(type);
    return found == loadedForms.end() ? nullptr : found->second.get();
}

Form& FormRegistry::adopt(std::type_index type, std::unique_ptr<Form> newForm)
{
    Form& adopted = *newForm;
    loadedForms[type] = std::move(newForm); // before the load handler, which may refer to the form
    adopted.load();
    return adopted;
}

void FormRegistry::retire(Form& unloaded)
{
    for (auto entry = loadedForms.begin(); entry != loadedForms.end(); ++entry) {
        if (entry->second.get() == &unloaded) {
            retiredForms.push_back(std::move(entry->second));
            loadedForms.erase(entry);
            break;
        }
    }
    unloaded.retired = true;
}

void FormRegistry::destroyIfIdle(Form& unloaded)
{
    if (!unloaded.retired || unloaded.runningHandlers > 0)
        return;
    // Deferred, because the toolkit may still be delivering the event that unloaded the form.
    QTimer::singleShot(0, qApp, [idle = &unloaded] {
        std::erase_if(retiredForms,
                      [idle](const auto& form) { return form.get() == idle && form->runningHandlers == 0; });
    });
}

void FormRegistry::clear()
{
    loadedForms.clear();
    retiredForms.clear();
}

} // namespace forms
