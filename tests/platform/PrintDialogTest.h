#pragma once

#include "platform/PrintDialog.h"
#include "platform/Printer.h"
#include "tests/platform/AnyForm.h"
#include "tests/platform/Dialogs.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

using namespace forms;

/// On a machine without printers: the file printer is the current one.
class PrintDialogTest : public testing::Test
{
protected:
    void SetUp() override
    {
        qputenv("CUPS_SERVER", "/nonexistent/socket");
        form<AnyForm>().Show();
    }
    void TearDown() override
    {
        EXPECT_TRUE(dialogs.unexpected.empty()) << dialogs.unexpected.front().toStdString();
        FormRegistry::clear();
    }

    bool ask(Dialogs::Answer answer)
    {
        dialogs.answer("PrintDialog", std::move(answer));
        return ShowPrintDialog(form<AnyForm>());
    }

    /// Answers the dialog behind the button "Properties".
    void inProperties(QDialog& dialog, Dialogs::Answer answer)
    {
        dialogs.answer("", std::move(answer));
        Child<QAbstractButton>(dialog, "properties").click();
    }

    QString pdf(const char* name = "out.pdf") const { return folder.filePath(name); }

    Dialogs dialogs;
    QTemporaryDir folder;
};
