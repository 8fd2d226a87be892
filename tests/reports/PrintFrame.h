#pragma once

#include "reports/Commands.h"
#include "tests/reports/Reports.h"

using namespace forms;

class PrintFrame : public ReportCommandTest
{
protected:
    void print(Dialogs::Answer answer, const WriteReport& report,
               const std::optional<PrinterFont>& font = std::nullopt)
    {
        dialogs.answer("PrintDialog", std::move(answer));
        PrintReport(form<AnyForm>(), "Cooling Load", "cooling.txt", report, font);
    }

    static WriteReport oneLine(const std::string& text)
    {
        return [text](ReportWriter& report) { report.heading(text); };
    }

    static QString temporaryFile() { return base + "/tempdata/cooling.txt"; }
};
