#include "platform/SaveDialog.h"

#include "platform/forms/Form.h"

#include <QFileDialog>

using namespace forms;

namespace {

/// Removes the text before the next NUL and returns it.
QString takeItem(std::string_view& filter)
{
    const std::string_view item = filter.substr(0, filter.find('\0'));
    filter.remove_prefix(std::min(item.size() + 1, filter.size()));
    return QString::fromUtf8(item.data(), static_cast<qsizetype>(item.size()));
}

/// The filters in the toolkit's form, "text (pattern)".
QStringList nameFilters(std::string_view filter)
{
    QStringList names;
    while (!filter.empty()) {
        const QString text = takeItem(filter);
        const QString pattern = takeItem(filter);
        names << text + " (" + (pattern == "*.*" ? "*" : pattern) + ")";
    }
    return names;
}

std::string withoutBlanksAround(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace

std::string ShowSaveDialog(const Form& owner, std::string_view filter, const std::string& title,
                           const std::string& folder)
{
    QFileDialog dialog(owner.window(), QString::fromStdString(title), QString::fromStdString(folder));
    dialog.setObjectName("SaveDialog");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontUseNativeDialog); // some native dialogs ask before overwriting
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(nameFilters(filter));
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return withoutBlanksAround(dialog.selectedFiles().value(0).toStdString());
}
