#include "reports/SaveFrame.h"

#include "platform/SaveDialog.h"
#include "reports/ReportFile.h"
#include "reports/ReportFolders.h"

#include <exception>

using namespace forms;

using namespace std::string_view_literals;

void SaveReport(const Form& owner, const std::string& title, const WriteReport& writeReport)
{
    try {
        const std::string folder = DataFolder();
        const std::string name = ShowSaveDialog(owner, "All Files (*.*)\0*.*\0"sv, title, folder);
        ReportFile.openForOutput(name); // throws on Cancel, which gives an empty name
        ReportWriter report([](const std::string& line) { ReportFile.writeLine(line); });
        writeReport(report);
        ReportFile.close();
    } catch (const std::exception&) {
        // Intentional: failures are not reported.
    }
}
