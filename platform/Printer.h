#pragma once

#include <QFont>
#include <QPrinter>

#include <memory>
#include <string>
#include <vector>

class QPainter;

/// A font by its name, its size in points, and its weight.
struct PrinterFont
{
    std::string name;
    int size = 0;
    bool bold = false;
};

/// The printer object: a device, its settings, and the document that is being printed on it. Lines go down
/// the page one after the other, and on to the next page where one is full.
///
/// While a document is unfinished its device and settings stay as they are: setting them does nothing.
class Printer
{
public:
    explicit Printer(const std::string& device);
    /// Drops a document that was not ended.
    ~Printer();

    /// Goes over to another device, with the settings that it offers; the font stays.
    void changeDevice(const std::string& device);

    std::string deviceName() const;
    std::string driverName() const;
    std::string port() const; ///< where it stands; of the file printer, the file
    int pageWidth() const;    ///< between the margins, in the device's own dots

    QPageLayout::Orientation orientation() const { return device_->pageLayout().orientation(); }
    QPageSize paperSize() const { return device_->pageLayout().pageSize(); }
    QPrinter::PaperSource paperBin() const { return device_->paperSource(); }
    int copies() const { return device_->copyCount(); }
    QPrinter::DuplexMode duplex() const { return device_->duplex(); }
    int printQuality() const { return device_->resolution(); } ///< dots per inch
    QPrinter::ColorMode colorMode() const { return device_->colorMode(); }

    void setPort(const std::string& file); ///< of the file printer alone
    void setOrientation(QPageLayout::Orientation orientation);
    void setPaperSize(const QPageSize& size);
    void setPaperBin(QPrinter::PaperSource bin);
    void setCopies(int copies);
    void setDuplex(QPrinter::DuplexMode mode);
    void setPrintQuality(int dotsPerInch);
    void setColorMode(QPrinter::ColorMode mode);

    /// The font of the lines from here on.
    PrinterFont font() const;
    void setFont(const PrinterFont& font);

    /// Prints a line, on several lines of the page where it is wider than that. The first one begins the
    /// document. False where the device takes none.
    [[nodiscard]] bool printLine(const std::string& line);

    /// Ends the document and sends it off. Without a document nothing happens.
    [[nodiscard]] bool endDocument();

    /// The toolkit's device, for a dialog to read and for what only the device itself knows.
    QPrinter& device() { return *device_; }
    bool isPrinting() const { return painter != nullptr; }

private:
    bool beginDocument();
    bool makeRoomFor(double height);
    void dropDocument();

    std::unique_ptr<QPrinter> device_;
    std::unique_ptr<QPainter> painter;
    QFont font_;
    double usedHeight = 0; // of the page, in dots
};

/// The name of the printer that writes PDF files. It is there on every system.
inline const std::string FilePrinter = "Print to File (PDF)";

/// The device of a name, with the settings that it offers.
std::unique_ptr<QPrinter> OpenDevice(const std::string& name);
std::string DeviceName(const QPrinter& device);

/// The names of all printers: those of the system, in its order, then the file printer.
std::vector<std::string> PrinterNames();

/// The printer that the program prints on: at first the system's default, without one the first printer there
/// is. What is set on it stays until the program ends.
Printer& CurrentPrinter();
