#include "reports/Commands.h"

#include "core/RunTimeError.h"
#include "platform/PrintDialog.h"
#include "platform/SaveDialog.h"
#include "reports/ReportFile.h"

#include <exception>

using namespace std::string_view_literals;

namespace {

void writeFile(const std::string& path, Links links, const WriteReport& writeReport)
{
    ReportFile.openForOutput(path, links);
    ReportWriter report([](const std::string& line) { ReportFile.writeLine(line); });
    writeReport(report);
    ReportFile.close();
}

void printFile(const std::string& path)
{
    ReportFile.openForInput(path, Links::Refuse);
    while (!ReportFile.atEnd()) {
        if (!CurrentPrinter().printLine(ReportFile.readLine()))
            Raise(ErrorNumber::PathFileAccess);
    }
    ReportFile.close();
    if (!CurrentPrinter().endDocument())
        Raise(ErrorNumber::PathFileAccess);
}

} // namespace

void PrintReport(const forms::Form& owner, const std::string& title, const std::string& temporaryFile,
                 const WriteReport& writeReport, const std::optional<PrinterFont>& font)
{
    if (!ShowPrintDialog(owner))
        return;
    try {
        const std::string path = TempFolder() + '/' + temporaryFile;
        if (font)
            CurrentPrinter().setFont(*font);
        CurrentPrinter().setTitle(title);
        writeFile(path, Links::Refuse, writeReport);
        printFile(path);
    } catch (const std::exception&) {
        // Intentional: failures are not reported.
    }
}

void SaveReport(const forms::Form& owner, const std::string& title, const WriteReport& writeReport)
{
    try {
        const std::string folder = DataFolder();
        const std::string path = ShowSaveDialog(owner, "All Files (*.*)\0*.*\0"sv, title, folder);
        writeFile(path, Links::Follow, writeReport); // throws on Cancel, which gives an empty path
    } catch (const std::exception&) {
        // Intentional: failures are not reported.
    }
}
