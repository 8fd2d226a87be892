#include "reports/PrintFrame.h"

#include "core/RunTimeError.h"
#include "platform/PrintDialog.h"
#include "reports/ReportFile.h"
#include "reports/ReportFolders.h"

#include <exception>

using namespace forms;

namespace {

void WriteTemporaryFile(const std::string& path, const WriteReport& writeReport)
{
    ReportFile.openForOutput(path, Links::Refuse);
    ReportWriter report([](const std::string& line) { ReportFile.writeLine(line); });
    writeReport(report);
    ReportFile.close();
}

void PrintFile(const std::string& path)
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

void PrintReport(const Form& owner, const std::string& temporaryFile, const WriteReport& writeReport,
                 const std::optional<PrinterFont>& font)
{
    if (!ShowPrintDialog(owner))
        return;
    try {
        const std::string path = TempFolder() + '/' + temporaryFile;
        if (font)
            CurrentPrinter().setFont(*font);
        WriteTemporaryFile(path, writeReport);
        PrintFile(path);
    } catch (const std::exception&) {
        // Intentional: failures are not reported.
    }
}
