#pragma once

#include "core/MainMod.h"
#include "reports/Commands.h"
#include "reports/ReportFile.h"
#include "tests/platform/AnyForm.h"
#include "tests/platform/Dialogs.h"

#include <gtest/gtest.h>

#include <QDate>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <functional>
#include <string>
#include <vector>

/// Today's date in the tests' locale.
inline QString Today()
{
    const QDate date = QDate::currentDate();
    const char* const months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                  "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    return QString("%1 %2 %3").arg(date.day()).arg(months[date.month() - 1]).arg(date.year());
}

/// The bytes of a file, or "(none)".
inline std::string BytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(none)";
}

/// The expected text of a report, laid out by hand, with today's date.
inline std::string ExpectedReport(const char* name)
{
    const std::string text = BytesOf(QString(DUNMOOR_TEST_DATA "/reports/") + name + ".txt");
    return QString::fromStdString(text).replace("@DATE@", Today()).toStdString();
}

/// The text that a report writes; after a failure, the lines before it and the error.
inline std::string TextOfReport(const WriteReport& writeReport)
{
    std::string text;
    ReportWriter report([&text](const std::string& line) { text += line + '\n'; });
    try {
        writeReport(report);
    } catch (const std::exception& failure) {
        text += std::string("(") + failure.what() + ")";
    }
    return text;
}

/// A calculator with its own temporary report folders, on a machine without printers.
class ReportCommandTest : public testing::Test
{
protected:
    void SetUp() override
    {
        qputenv("CUPS_SERVER", "/nonexistent/socket");
        QCoreApplication::setApplicationName("Dunmoor");
        base = folder.filePath("application");
        QDir().mkpath(base);
        QDir().mkpath(folder.filePath("user"));
        ReportsBase = [] { return base.toStdString(); };
        FillUnitTables();
        form<AnyForm>().Show();
    }

    void TearDown() override
    {
        EXPECT_TRUE(dialogs.unexpected.empty()) << dialogs.unexpected.front().toStdString();
        FormRegistry::clear();
    }

    /// A user's file, outside the application's folder.
    QString file(const QString& name) const { return folder.filePath("user/" + name); }

    /// Expects words in the text of a printed page.
    static void expectWords(const std::string& printed, const std::vector<std::string>& expected)
    {
        for (const std::string& words : expected)
            EXPECT_NE(printed.find(words), std::string::npos) << words << " in\n" << printed;
    }

    /// Names a file in the next save dialog, which has this title. Acts there first.
    QString saveInDialog(
        const QString& title, const std::function<void()>& actions = [] {})
    {
        const QString path = file("saved");
        dialogs.answer("SaveDialog", [title, path, actions](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), title);
            actions();
            SaveAs(path)(dialog);
        });
        return path;
    }

    Dialogs dialogs;
    QTemporaryDir folder;
    static inline QString base;
};

/// The unit mode for the rest of the test.
inline void InMetric() { UnitSystem = True16; }
