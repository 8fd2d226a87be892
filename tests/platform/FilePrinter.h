#pragma once

#include "platform/Printer.h"
#include "tests/platform/Pdf.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

/// A machine without any printer.
class NoPrinters : public testing::Test
{
protected:
    void SetUp() override { qputenv("CUPS_SERVER", "/nonexistent/socket"); }

    QString pdf(const char* name = "out.pdf") const { return folder.filePath(name); }

    QTemporaryDir folder;
};

/// The file printer with its own file.
class FilePrinterTest : public NoPrinters
{
protected:
    void SetUp() override
    {
        NoPrinters::SetUp();
        printer.setPort(pdf().toStdString());
        printer.device().setPageSize(QPageSize(QPageSize::A4));
    }

    void print(const std::vector<std::string>& lines)
    {
        for (const std::string& line : lines)
            ASSERT_TRUE(printer.printLine(line));
    }

    Printer printer{FilePrinter};
};
