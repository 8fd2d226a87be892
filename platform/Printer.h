#pragma once

#include <QFont>
#include <QPrinter>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QPainter;

/// A font: name, size in points, and weight.
struct PrinterFont
{
    std::string name;
    int size = 0;
    bool bold = false;
};

/// The printer object: a device, its settings, and the document being printed on it. Lines run down the page
/// and continue on the next page.
///
/// While a document is unfinished, setting the device or its settings is a no-op.
class Printer
{
public:
    explicit Printer(const std::string& device);
    /// Discards an unfinished document.
    ~Printer();

    /// Switches to another device, with that device's settings. The font stays.
    void changeDevice(const std::string& device);

    std::string deviceName() const;
    std::string port() const;              ///< the printer's location, or the file of the file printer
    void setPort(const std::string& file); ///< for the file printer only

    /// The toolkit's device: orientation, paper, copies, color mode and so on.
    QPrinter& device() const { return *openDevice; }
    void changeSettings(const std::function<void(QPrinter&)>& change);

    /// The title of the documents that follow.
    void setTitle(const std::string& title);

    /// The font for the lines that follow.
    PrinterFont font() const;
    void setFont(const PrinterFont& font);

    /// Another device with all these settings.
    std::unique_ptr<QPrinter> copyOfDevice() const;
    /// Prints a document of one page on a copy of the device, which keeps its settings; the lines of an
    /// unfinished document are not touched. Returns false if the device refuses.
    /// @param paint  paints on a page of that size, in units of 1/96 inch
    [[nodiscard]] bool printPage(const std::string& title, QPageLayout::Orientation orientation,
                                 const std::function<void(QPainter&, const QSizeF&)>& paint) const;

    /// Prints a line and wraps it if it is too wide for the page. The first line starts the document. Returns
    /// false if the device refuses.
    [[nodiscard]] bool printLine(const std::string& line);

    /// Ends the document and sends it to the device. A no-op without a document.
    [[nodiscard]] bool endDocument();

    bool isPrinting() const { return painter != nullptr; }

private:
    bool beginDocument();
    bool makeRoomFor(double height);
    void dropDocument();

    std::unique_ptr<QPrinter> openDevice;
    std::unique_ptr<QPainter> painter;
    QFont lineFont;
    double usedHeight = 0; // on the page, in dots
};

/// The name of the printer that writes PDF files. Every system has it.
inline const std::string FilePrinter = "Print to File (PDF)";

/// Opens a device by name, with that device's settings.
std::unique_ptr<QPrinter> OpenDevice(const std::string& name);
std::string DeviceName(const QPrinter& device);
/// Copies all settings but the file's name.
void CopySettings(QPrinter& from, QPrinter& to);
/// Copies the print system's own options, such as pages per sheet.
void CopyPrintSystemOptions(QPrinter& from, QPrinter& to);

/// The names of all printers: the system's, in its order, then the file printer.
std::vector<std::string> PrinterNames();

/// The program's printer: initially the system's default, or the first printer if there is no default. Its
/// settings stay until the program ends.
Printer& CurrentPrinter();
