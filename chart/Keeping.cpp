#include "chart/Keeping.h"

#include "chart/Choices.h"
#include "chart/Export.h"
#include "chart/Page.h"
#include "chart/States.h"
#include "platform/PrintDialog.h"
#include "platform/Printer.h"
#include "platform/SaveDialog.h"
#include "platform/forms/MsgBox.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSaveFile>
#include <QStandardPaths>

namespace chart {
namespace {

/// The pairs of words and patterns that the save dialog wants.
std::string filters()
{
    std::string all;
    for (const PictureFormat& format : PictureFormats())
        all += format.words + std::string(" (*.") + format.suffix + ")" + '\0' + "*." + format.suffix + '\0';
    return all;
}

/// Proposes a name in the folder of the user's documents.
QString proposal()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(QFileInfo(documents).isDir() ? documents : QDir::homePath()).filePath("Chart.pdf");
}

const PictureFormat* formatOf(const QString& path)
{
    for (const PictureFormat& format : PictureFormats()) {
        if (path.endsWith(QString(".") + format.suffix, Qt::CaseInsensitive))
            return &format;
    }
    return nullptr;
}

/// Replaces the file only when everything is written.
bool write(const QString& path, const QByteArray& bytes)
{
    const QFileInfo there(path);
    if (there.exists() && !there.isFile())
        return false;
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

} // namespace

void CopyPicture(const View& view) { QGuiApplication::clipboard()->setImage(PictureOf(view)); }

void CopyFigures()
{
    const forms::TableContents table = StateTable(Choices::inForce().pins());
    QGuiApplication::clipboard()->setText(QString::fromStdString(forms::TabSeparated(table)));
}

void SavePicture(const forms::Form& owner, const View& view)
{
    const SaveChoice choice = AskWhereToSave(owner, filters(), "Save Picture", proposal().toStdString());
    if (choice.path.empty())
        return;
    QString path = QString::fromStdString(choice.path);
    const PictureFormat* format = formatOf(path);
    if (format == nullptr) {
        format = &PictureFormats().at(choice.filter);
        path += QString(".") + format->suffix;
    }
    const std::string shownPath = QDir::toNativeSeparators(path).toStdString();
    if (QFileInfo(path).isFile() && !forms::AskYesNo(shownPath + "\nexists already. Replace it?"))
        return;
    if (!write(path, format->bytes(view)))
        forms::MsgBox("The picture can't be saved as\n" + shownPath);
}

void PrintPicture(const forms::Form& owner, const View& view)
{
    if (!ShowPrintDialog(owner))
        return;
    const auto paint = [&view](QPainter& painter, const QSizeF& size) { PaintPage(painter, size, view); };
    if (!CurrentPrinter().printPage(ChartTitle().toStdString(), QPageLayout::Landscape, paint))
        forms::MsgBox("The chart can't be printed.");
}

} // namespace chart
