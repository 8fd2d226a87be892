#include "platform/SaveDialog.h"

#include "platform/forms/Form.h"

#include <QFileDialog>
#include <QRegularExpression>

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

} // namespace

std::string ShowSaveDialog(const forms::Form& owner, std::string_view filter, const std::string& title,
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
    static const QRegularExpression blanksAround("^ +| +\\z");
    return dialog.selectedFiles().value(0).remove(blanksAround).toStdString();
}
