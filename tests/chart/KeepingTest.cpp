// The chart as files, on the clipboard and on paper.

#include "tests/chart/ChartInWindow.h"
#include "tests/chart/WholeState.h"
#include "tests/platform/Pdf.h"

#include "platform/Printer.h"

#include <QComboBox>
#include <QMessageBox>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace {

constexpr auto title = "Psychrometric chart, English (I-P) units, 14.696 psi, altitude 0 ft";

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "(none)";
}

/// What a drawing consists of.
struct Drawing
{
    QString title;
    QStringList texts;
    int lines = 0; ///< paths and polylines without a filling, each with a color of its own group
    bool isWellFormed = false;
};

Drawing drawingIn(const QByteArray& svg)
{
    Drawing drawing;
    QXmlStreamReader xml(svg);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"title")
            drawing.title = xml.readElementText();
        else if (xml.name() == u"text")
            drawing.texts << xml.readElementText().trimmed();
        else if (xml.name() == u"polyline" || xml.name() == u"path")
            ++drawing.lines;
    }
    drawing.isWellFormed = !xml.hasError();
    return drawing;
}

/// Everything that a print dialog or a report sets on the printer.
std::string printerSettings()
{
    const Printer& printer = CurrentPrinter();
    QPrinter& device = printer.device();
    const QPageLayout page = device.pageLayout();
    std::ostringstream all;
    all << printer.deviceName() << '|' << printer.port() << '|' << printer.font().name << printer.font().size
        << printer.font().bold << '|' << page.orientation() << page.pageSize().id() << '|'
        << page.margins().left() << ',' << page.margins().top() << '|' << device.resolution() << '|'
        << device.copyCount() << device.colorMode() << device.duplex();
    return all.str();
}

} // namespace

class KeptChart : public ChartInWindow
{
protected:
    QString path(const char* name) const { return folder.filePath(name); }

    using Button = QMessageBox::StandardButton;

    /// Saves by the context menu's keys, and answers the question that follows, if one is expected.
    void save(const QString& as, int filter = 0, std::optional<Button> button = {})
    {
        user.inDialog("SaveDialog", [as, filter] {
            auto& dialog = *qobject_cast<QDialog*>(QApplication::activeModalWidget());
            Child<QComboBox>(dialog, "fileTypeCombo").setCurrentIndex(filter);
            SaveAs(as)(dialog);
        });
        if (button) {
            user.inDialog("QuestionBox", [this, button] {
                auto& box = *qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                question = box.text().toStdString();
                box.button(*button)->click();
            });
        }
        press(Qt::Key_S, Qt::ControlModifier);
    }

    void print(const QString& to)
    {
        user.inDialog("PrintDialog",
                      [to] { PrintToFile(to)(*qobject_cast<QDialog*>(QApplication::activeModalWidget())); });
        press(Qt::Key_P, Qt::ControlModifier);
    }

    QTemporaryDir folder;
    std::string question;
};

TEST_F(KeptChart, IsAnSvgDrawingWithTextAndALineForEachCurve)
{
    start();
    runCooling();
    save(path("chart.svg"));
    const Drawing drawing = drawingIn(contentsOf(path("chart.svg")));
    EXPECT_TRUE(drawing.isWellFormed);
    EXPECT_EQ(drawing.title, title);
    for (const char* text :
         {title, "Dry bulb, °F", "Humidity ratio, lb/lb", "Enthalpy, Btu/lb", "50 %", "entering", "leaving"})
        EXPECT_FALSE(drawing.texts.filter(text).isEmpty()) << text;
    chart::View view;
    view.title = title;
    const auto curves = chart::Layout(QSizeF(924, 636), QApplication::font(), view).curves.size();
    EXPECT_GE(drawing.lines, static_cast<int>(curves) - 10);
    EXPECT_LE(drawing.lines, 3 * static_cast<int>(curves)) << "a line is in pieces";
}

TEST_F(KeptChart, IsAPdfOfOnePageWithText)
{
    start();
    runCooling();
    save(path("chart.pdf"));
    EXPECT_EQ(PagesOf(path("chart.pdf")), 1);
    const QString text = OutputOf("pdftotext", {"-raw", path("chart.pdf"), "-"});
    for (const char* words : {title, "Dry bulb, °F", "entering", "leaving", "At 14.696 psi"})
        EXPECT_TRUE(text.contains(words)) << words << " is not in " << text.toStdString();
    EXPECT_TRUE(OutputOf("pdfinfo", {path("chart.pdf")}).contains(title));
    EXPECT_TRUE(OutputOf("pdfinfo", {path("chart.pdf")}).contains("720 x 504 pts"));
    EXPECT_EQ(OutputOf("pdfimages", {"-list", path("chart.pdf")}).split('\n', Qt::SkipEmptyParts).size(), 2)
        << "no picture, only the heading of the list";
}

TEST_F(KeptChart, IsAPngOf300DotsPerInch)
{
    start();
    save(path("chart.PNG"));
    const QImage picture(path("chart.PNG"));
    EXPECT_EQ(picture.size(), QSize(3000, 2100));
    EXPECT_EQ(picture.dotsPerMeterX(), 11811);
    EXPECT_EQ(picture.dotsPerMeterY(), 11811);
    EXPECT_EQ(picture.pixelColor(2, 2), QColor(Qt::white));
}

TEST_F(KeptChart, GetsTheSuffixOfTheChosenKindIfItHasNone)
{
    start();
    save(path("plain"));
    save(path("with.point"), 1);
    save(path("third"), 2);
    EXPECT_TRUE(contentsOf(path("plain.pdf")).startsWith("%PDF"));
    EXPECT_TRUE(contentsOf(path("with.point.svg")).startsWith("<?xml"));
    EXPECT_TRUE(contentsOf(path("third.png")).startsWith("\x89PNG"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 3);
}

TEST_F(KeptChart, ReplacesAFileOnlyAfterYes)
{
    start();
    QFile file(path("chart.svg"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("mine");
    file.close();
    save(path("chart"), 1, QMessageBox::No);
    EXPECT_EQ(contentsOf(path("chart.svg")), "mine");
    EXPECT_EQ(question, path("chart.svg").toStdString() + "\nexists already. Replace it?");
    save(path("chart.svg"), 0, QMessageBox::Yes);
    EXPECT_TRUE(contentsOf(path("chart.svg")).startsWith("<?xml"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1) << "nothing is left beside it";
}

TEST_F(KeptChart, TellsOfAFailureAndLeavesNothing)
{
    start();
    save("/proc/chart.svg"); // nobody can write there
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages.back().text, "The picture can't be saved as\n/proc/chart.svg");
    ASSERT_TRUE(QDir(folder.path()).mkdir("folder.pdf"));
    save(path("folder"));
    EXPECT_EQ(user.messages.size(), 2U);
    EXPECT_TRUE(QFileInfo(path("folder.pdf")).isDir());
    EXPECT_TRUE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

TEST_F(KeptChart, IsPrintedOnOneLandscapePageWithTheTable)
{
    start();
    runMixedAir();
    runCooling();
    clickAt(layout().plane.at(75, 0.0093));
    print(path("chart.pdf"));
    EXPECT_EQ(PagesOf(path("chart.pdf")), 1);
    const QStringList size = OutputOf("pdfinfo", {path("chart.pdf")}).split('\n').filter("Page size");
    const QStringList numbers = size.value(0).section(':', 1).simplified().split(' ');
    EXPECT_GT(numbers.value(0).toDouble(), numbers.value(2).toDouble()) << size.join("").toStdString();
    const QString text = OutputOf("pdftotext", {"-layout", path("chart.pdf"), "-"});
    for (const char* words : {title, "State", "Dry bulb", "Specific volume", "1 Mixed air, outside",
                              "5 Cooling, leaving", "A Pin"})
        EXPECT_TRUE(text.contains(words)) << words << " is not in " << text.toStdString();
    EXPECT_TRUE(text.contains(QString::fromStdString(FormatNumber(CoolingEnteringAir.h, "#0.00"))));
    EXPECT_TRUE(text.contains(QRegularExpression("\\d{1,4}.*20\\d\\d"))) << "the date";
}

TEST_F(KeptChart, LeavesThePrinterAsTheReportsSetIt)
{
    start();
    runCooling();
    CurrentPrinter().setFont({"Arial", 9, true});
    CurrentPrinter().changeSettings([](QPrinter& device) {
        device.setPageSize(QPageSize(QPageSize::A5));
        device.setCopyCount(2);
    });
    CurrentPrinter().setPort(path("chart.pdf").toStdString());
    const std::string before = printerSettings();
    print(path("chart.pdf"));
    EXPECT_EQ(PagesOf(path("chart.pdf")), 1);
    EXPECT_EQ(printerSettings(), before);
    EXPECT_NE(CurrentPrinter().device().docName(), title);
    EXPECT_FALSE(CurrentPrinter().isPrinting());
}

TEST_F(KeptChart, TellsThatItCannotBePrinted)
{
    start();
    CurrentPrinter().setPort(path("no/such/folder/chart.pdf").toStdString());
    EXPECT_FALSE(
        CurrentPrinter().printPage("title", QPageLayout::Landscape, [](QPainter&, const QSizeF&) {}));
    EXPECT_FALSE(QFileInfo::exists(path("no")));
}

TEST_F(KeptChart, IsWhiteOnPaperOnADarkDesktop)
{
    start();
    press(Qt::Key_C, Qt::ControlModifier);
    const QImage light = QGuiApplication::clipboard()->image();
    QPalette dark(QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 32));
    QApplication::setPalette(dark);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->image(), light);
}

TEST_F(KeptChart, OfTheWindowHasItsZoom)
{
    start();
    open();
    key(Qt::Key_C, Qt::ControlModifier);
    const QImage whole = QGuiApplication::clipboard()->image();
    key(Qt::Key_Plus);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_GT(PixelsThatDiffer(QGuiApplication::clipboard()->image(), whole), 50000);
}

TEST_F(KeptChart, ChangesNothingOfTheState)
{
    start();
    runMixedAir();
    runCooling();
    const std::string before = wholeState();
    press(Qt::Key_C, Qt::ControlModifier);
    save(path("chart.pdf"));
    save(path("chart.svg"));
    save(path("chart.png"));
    print(path("page.pdf"));
    EXPECT_EQ(wholeState(), before);
}
