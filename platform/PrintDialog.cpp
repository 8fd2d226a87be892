#include "platform/PrintDialog.h"

#include "platform/PrintServer.h"
#include "platform/Printer.h"
#include "platform/forms/Form.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLineEdit>
#include <QPrintDialog>
#include <QStandardPaths>

namespace {

std::string upperCase(const std::string& name)
{
    return QString::fromStdString(name).toUpper().toStdString();
}

// The next two functions and PropertiesWatch have no public API in the toolkit. They find its widgets by
// name. In a version with other names they are no-ops, and its dialog appears unchanged.

/// Hides the page range below a hidden widget, because the toolkit shows it whatever its options say.
void leaveOutPageRange(QPrintDialog& dialog)
{
    auto* const shelf = new QWidget(&dialog);
    shelf->hide();
    if (auto* const range = dialog.findChild<QWidget*>("gbPrintRange"))
        range->setParent(shelf);
}

/// Proposes a file if the toolkit proposes only a folder for the file printer.
void proposeFile(QPrintDialog& dialog)
{
    auto* const file = dialog.findChild<QLineEdit*>("filename");
    if (file == nullptr || !QFileInfo(file->text()).isDir())
        return;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QDir folder(QFileInfo(documents).isDir() ? documents : QDir::homePath());
    file->setText(folder.filePath("Dunmoor.pdf"));
}

/// Waits for the properties page that the dialog opens on request. The toolkit fills it with the printer's
/// default paper; this sets the current paper instead.
class PropertiesWatch : public QObject
{
public:
    explicit PropertiesWatch(const QPageSize& paperInForce) : paper(paperInForce)
    {
        qApp->installEventFilter(this);
    }

    bool wereConfirmed() const { return confirmed; }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Show && !confirmed && object->objectName() == "pageSetup")
            start(*static_cast<QWidget*>(object));
        return false;
    }

private:
    void start(QWidget& page)
    {
        auto* const sizes = page.findChild<QComboBox*>("pageSizeCombo");
        if (sizes != nullptr && sizes->findText(paper.name()) >= 0)
            sizes->setCurrentIndex(sizes->findText(paper.name()));
        if (auto* const dialog = qobject_cast<QDialog*>(page.window()))
            connect(dialog, &QDialog::accepted, this, [this] { confirmed = true; });
    }

    QPageSize paper;
    bool confirmed = false;
};

/// Keeps the current properties. On OK the toolkit resets them to the printer's defaults unless the user has
/// confirmed the properties page.
void keepProperties(const Printer& current, QPrinter& chosen)
{
    if (DeviceName(chosen) != current.deviceName())
        return;
    QPrinter& source = current.device();
    chosen.setPageLayout(source.pageLayout());
    chosen.setPaperSource(source.paperSource());
    if (current.deviceName() != FilePrinter) // the file printer's color mode is on the dialog itself
        chosen.setColorMode(source.colorMode());
    CopyPrintSystemOptions(source, chosen);
}

void chooseDevice(Printer& current, const QPrinter& chosen)
{
    const std::string name = upperCase(DeviceName(chosen));
    if (current.deviceName() == name)
        return;
    if (const auto printer = PrinterToGoOverTo(PrinterNames(), name))
        current.changeDevice(*printer);
}

} // namespace

std::optional<std::string> PrinterToGoOverTo(const std::vector<std::string>& printers,
                                             const std::string& upperCaseName)
{
    std::optional<std::string> last;
    for (const std::string& printer : printers) {
        if (upperCase(printer) == upperCaseName)
            last = printer;
    }
    return last;
}

bool ShowPrintDialog(const forms::Form& owner)
{
    AskPrintServer();
    if (!owner.isVisible())
        return false; // closed in the meantime
    Printer& current = CurrentPrinter();
    const std::unique_ptr<QPrinter> device =
        current.copyOfDevice(); // the dialog may change it while it is open
    QPrintDialog dialog(device.get(), owner.window());
    dialog.setObjectName("PrintDialog");
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintCollateCopies |
                      QAbstractPrintDialog::PrintShowPageSize);
    leaveOutPageRange(dialog);
    proposeFile(dialog);
    const PropertiesWatch properties(current.device().pageLayout().pageSize());
    if (dialog.exec() != QDialog::Accepted)
        return false;
    if (!properties.wereConfirmed())
        keepProperties(current, *device);

    chooseDevice(current, *device);
    current.setPort(device->outputFileName().toStdString());
    current.changeSettings([&device](QPrinter& settings) { CopySettings(*device, settings); });
    return true;
}
