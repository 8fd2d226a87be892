#include "platform/Printer.h"

#include <QApplication>
#include <QFileInfo>
#include <QFontDatabase>
#include <QLocale>
#include <QPainter>
#include <QPrintEngine>
#include <QPrinterInfo>
#include <QTextLayout>

namespace {

/// A font of fixed pitch, so that columns align.
QFont firstFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSize(10);
    // The smallest spacing, too small to see. It stops the toolkit from drawing "fi" as a ligature, so that a
    // search for "Specific" in a PDF file succeeds.
    font.setLetterSpacing(QFont::AbsoluteSpacing, 1.0 / 64);
    return font;
}

QPageSize::PageSizeId usualPaper()
{
    const bool american = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return american ? QPageSize::Letter : QPageSize::A4;
}

/// Breaks a text into lines of at most this width, between words if possible.
void breakIntoLines(QTextLayout& layout, double width)
{
    QTextOption wrapping;
    wrapping.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(wrapping);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(width);
    }
    layout.endLayout();
}

/// Returns false for a folder and for a pipe, which would block.
bool isRegularOrNew(const std::string& path)
{
    const QFileInfo file(QString::fromStdString(path));
    return !path.empty() && (file.isFile() || !file.exists());
}

/// Print system options that have no setting of their own: pages per sheet, cover sheets, options of one
/// printer model. The toolkit's print engine keeps them under this key.
constexpr auto printSystemOptions = QPrintEngine::PrintEnginePropertyKey(0xfe00);

std::unique_ptr<Printer> currentPrinter;

} // namespace

std::unique_ptr<QPrinter> OpenDevice(const std::string& name)
{
    auto device = name == FilePrinter
                      ? std::make_unique<QPrinter>(QPrinter::HighResolution)
                      : std::make_unique<QPrinter>(QPrinterInfo::printerInfo(QString::fromStdString(name)),
                                                   QPrinter::HighResolution);
    if (name == FilePrinter) {
        device->setOutputFormat(QPrinter::PdfFormat);
        device->setPageSize(QPageSize(usualPaper()));
    }
    device->setDocName(QCoreApplication::applicationName());
    device->setCreator(QCoreApplication::applicationName());
    constexpr double margin = 15.0; // in millimeters
    device->setPageMargins({margin, margin, margin, margin}, QPageLayout::Millimeter);
    return device;
}

std::string DeviceName(const QPrinter& device)
{
    return device.outputFormat() == QPrinter::PdfFormat ? FilePrinter : device.printerName().toStdString();
}

void CopyPrintSystemOptions(QPrinter& from, QPrinter& to)
{
    const QVariant options = from.printEngine()->property(printSystemOptions);
    if (options.isValid()) // another version of the toolkit may not know the key
        to.printEngine()->setProperty(printSystemOptions, options);
}

void CopySettings(QPrinter& from, QPrinter& to)
{
    to.setCopyCount(from.copyCount());
    to.setDuplex(from.duplex());
    to.setPageOrientation(from.pageLayout().orientation());
    to.setPageSize(from.pageLayout().pageSize());
    to.setResolution(from.resolution());
    to.setColorMode(from.colorMode());
    to.setPaperSource(from.paperSource());
    to.setPageMargins(from.pageLayout().margins(), from.pageLayout().units());
    to.setCollateCopies(from.collateCopies());
    to.setPageOrder(from.pageOrder());
    CopyPrintSystemOptions(from, to);
}

std::vector<std::string> PrinterNames()
{
    std::vector<std::string> names;
    for (const QString& name : QPrinterInfo::availablePrinterNames())
        names.push_back(name.toStdString());
    names.push_back(FilePrinter);
    return names;
}

Printer& CurrentPrinter()
{
    if (currentPrinter == nullptr) {
        const std::string systemDefault = QPrinterInfo::defaultPrinterName().toStdString();
        currentPrinter =
            std::make_unique<Printer>(systemDefault.empty() ? PrinterNames().front() : systemDefault);
        qAddPostRoutine([] { currentPrinter.reset(); }); // devices must go before the toolkit
    }
    return *currentPrinter;
}

Printer::Printer(const std::string& device) : openDevice(OpenDevice(device)), lineFont(firstFont()) {}
Printer::~Printer() { dropDocument(); }

void Printer::changeDevice(const std::string& device)
{
    if (!isPrinting())
        openDevice = OpenDevice(device);
}

std::string Printer::deviceName() const { return DeviceName(*openDevice); }

std::string Printer::port() const
{
    return (deviceName() == FilePrinter ? openDevice->outputFileName() : QPrinterInfo(*openDevice).location())
        .toStdString();
}

void Printer::setPort(const std::string& file)
{
    if (!isPrinting() && deviceName() == FilePrinter) {
        openDevice->setOutputFileName(QString::fromStdString(file));
        openDevice->setOutputFormat(QPrinter::PdfFormat); // whatever the extension
    }
}

void Printer::changeSettings(const std::function<void(QPrinter&)>& change)
{
    if (!isPrinting())
        change(*openDevice);
}

void Printer::setTitle(const std::string& title)
{
    changeSettings([&title](QPrinter& device) { device.setDocName(QString::fromStdString(title)); });
}

PrinterFont Printer::font() const
{
    return {.name = lineFont.family().toStdString(), .size = lineFont.pointSize(), .bold = lineFont.bold()};
}

void Printer::setFont(const PrinterFont& font)
{
    // Liberation Sans is free and has the same metrics as Arial.
    QStringList families{QString::fromStdString(font.name)};
    if (font.name == "Arial")
        families << "Liberation Sans";
    lineFont.setFamilies(families);
    lineFont.setPointSize(font.size);
    lineFont.setBold(font.bold);
}

std::unique_ptr<QPrinter> Printer::copyOfDevice() const
{
    std::unique_ptr<QPrinter> copy = OpenDevice(deviceName());
    if (deviceName() == FilePrinter && !port().empty())
        copy->setOutputFileName(QString::fromStdString(port()));
    CopySettings(*openDevice, *copy);
    return copy;
}

bool Printer::printPage(const std::string& title, QPageLayout::Orientation orientation,
                        const std::function<void(QPainter&, const QSizeF&)>& paint) const
{
    const std::unique_ptr<QPrinter> copy = copyOfDevice();
    if (deviceName() == FilePrinter) {
        copy->setOutputFormat(QPrinter::PdfFormat); // whatever the extension
        if (!isRegularOrNew(port()))
            return false;
    }
    copy->setDocName(QString::fromStdString(title));
    copy->setPageOrientation(orientation);
    QPainter page;
    if (!page.begin(copy.get()))
        return false;
    constexpr double unitsPerInch = 96;
    const double dotsPerUnit = copy->resolution() / unitsPerInch;
    page.scale(dotsPerUnit, dotsPerUnit);
    paint(page, QSizeF(copy->pageLayout().paintRectPixels(copy->resolution()).size()) / dotsPerUnit);
    return page.end();
}

bool Printer::printLine(const std::string& line)
{
    if (!isPrinting() && !beginDocument())
        return false;

    QTextLayout layout(QString::fromStdString(line), lineFont, openDevice.get());
    breakIntoLines(layout, painter->viewport().width());
    for (int i = 0; i < layout.lineCount(); ++i) {
        QTextLine part = layout.lineAt(i);
        if (!makeRoomFor(part.height()))
            return false;
        part.setPosition({0, usedHeight});
        part.draw(painter.get(), {0, 0});
        usedHeight += part.height();
    }
    return true;
}

bool Printer::endDocument()
{
    if (!isPrinting())
        return true;
    const bool ended = painter->end();
    painter.reset();
    return ended;
}

bool Printer::beginDocument()
{
    if (deviceName() == FilePrinter && !isRegularOrNew(port()))
        return false;
    painter = std::make_unique<QPainter>();
    usedHeight = 0;
    if (!painter->begin(openDevice.get()))
        painter.reset();
    return isPrinting();
}

bool Printer::makeRoomFor(double height)
{
    if (usedHeight == 0 || usedHeight + height <= painter->viewport().height())
        return true;
    usedHeight = 0;
    return openDevice->newPage();
}

void Printer::dropDocument()
{
    if (!isPrinting())
        return;
    // Ending the painter, destroying the device and the toolkit's own abort would all send the document. So
    // both live until the process ends.
    static auto* const unfinished = new std::vector<std::pair<QPainter*, QPrinter*>>;
    unfinished->emplace_back(painter.release(), openDevice.release());
}
