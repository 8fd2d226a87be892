#include "platform/SaveDialog.h"

#include "platform/forms/Form.h"

#include <QFileDialog>
#include <QRegularExpression>

#include <algorithm>

using namespace forms;

namespace {

/// The filters in the toolkit's form, "text (pattern)".
QStringList nameFilters(std::string_view filter)
{
    const QStringList items = QString::fromUtf8(filter).split(QChar('\0'));
    QStringList names;
    for (qsizetype item = 0; item + 1 < items.size(); item += 2)
        names << items[item] + " (" + (items[item + 1] == "*.*" ? "*" : items[item + 1]) + ")";
    return names;
}

/// @param file  a folder, or a file in it
SaveChoice ask(const Form& owner, std::string_view filter, const std::string& title, const std::string& file)
{
    QFileDialog dialog(owner.window(), QString::fromStdString(title), QString::fromStdString(file));
    dialog.setObjectName("SaveDialog");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontUseNativeDialog); // some native dialogs ask before overwriting
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    const QStringList filters = nameFilters(filter);
    dialog.setNameFilters(filters);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    static const QRegularExpression blanksAround("^ +| +\\z");
    // Some versions of the toolkit return the chosen filter without its pattern.
    const auto chosen = std::ranges::find_if(filters, [&dialog](const QString& offered) {
        return offered.startsWith(dialog.selectedNameFilter());
    });
    return {.path = dialog.selectedFiles().value(0).remove(blanksAround).toStdString(),
            .filter = chosen == filters.end() ? 0 : static_cast<std::size_t>(chosen - filters.begin())};
}

} // namespace

std::string ShowSaveDialog(const Form& owner, std::string_view filter, const std::string& title,
                           const std::string& folder)
{
    return ask(owner, filter, title, folder).path;
}

SaveChoice AskWhereToSave(const Form& owner, std::string_view filter, const std::string& title,
                          const std::string& proposal)
{
    return ask(owner, filter, title, proposal);
}
