// The choices in the print dialog, and what the printer keeps of them.

#include "tests/platform/PrintDialogTest.h"

#include <QComboBox>
#include <QFile>
#include <QRadioButton>
#include <QSpinBox>

TEST_F(PrintDialogTest, BringsTheChoiceToTheCurrentPrinter)
{
    const bool confirmed = ask([this](QDialog& dialog) {
        Child<QLineEdit>(dialog, "filename").setText(pdf());
        Child<QRadioButton>(dialog, "grayscale").click();
        inProperties(dialog, [](QDialog& properties) {
            Child<QRadioButton>(properties, "landscape").click();
            Child<QComboBox>(properties, "pageSizeCombo").setCurrentText("A5");
            Confirm(properties);
        });
        Confirm(dialog);
    });

    EXPECT_TRUE(confirmed);
    EXPECT_EQ(CurrentPrinter().deviceName(), "Print to File (PDF)");
    EXPECT_EQ(CurrentPrinter().port(), pdf().toStdString());
    EXPECT_EQ(CurrentPrinter().device().colorMode(), QPrinter::GrayScale);
    EXPECT_EQ(CurrentPrinter().device().pageLayout().orientation(), QPageLayout::Landscape);
    EXPECT_EQ(CurrentPrinter().device().pageLayout().pageSize().id(), QPageSize::A5);
    EXPECT_FALSE(QFile::exists(pdf())); // nothing is printed yet
}

TEST_F(PrintDialogTest, OpensOnTheSettingsOfTheCurrentPrinter)
{
    CurrentPrinter().setPort(pdf("my report").toStdString());
    CurrentPrinter().device().setColorMode(QPrinter::GrayScale);
    CurrentPrinter().device().setPageOrientation(QPageLayout::Landscape);
    CurrentPrinter().device().setPageSize(QPageSize(QPageSize::A5));
    ask([this](QDialog& dialog) {
        EXPECT_EQ(Child<QLineEdit>(dialog, "filename").text(), pdf("my report"));
        EXPECT_TRUE(Child<QRadioButton>(dialog, "grayscale").isChecked());
        inProperties(dialog, [](QDialog& properties) {
            EXPECT_TRUE(Child<QRadioButton>(properties, "landscape").isChecked());
            EXPECT_EQ(Child<QComboBox>(properties, "pageSizeCombo").currentText(), "A5");
            Cancel(properties);
        });
        Cancel(dialog);
    });
}

TEST_F(PrintDialogTest, KeepsTheSettingsThatTheUserDoesNotTouch)
{
    CurrentPrinter().device().setPageOrientation(QPageLayout::Landscape);
    CurrentPrinter().device().setPageSize(QPageSize(QPageSize::A5));
    CurrentPrinter().device().setColorMode(QPrinter::GrayScale);
    CurrentPrinter().device().setResolution(600);
    CurrentPrinter().setFont({.name = "Arial", .size = 14, .bold = true});
    EXPECT_TRUE(ask(PrintToFile(pdf())));
    EXPECT_EQ(CurrentPrinter().device().pageLayout().orientation(), QPageLayout::Landscape);
    EXPECT_EQ(CurrentPrinter().device().pageLayout().pageSize().id(), QPageSize::A5);
    EXPECT_EQ(CurrentPrinter().device().colorMode(), QPrinter::GrayScale);
    EXPECT_EQ(CurrentPrinter().device().resolution(), 600);
    EXPECT_EQ(CurrentPrinter().font().size, 14);
}

TEST_F(PrintDialogTest, KeepsThePaperWhereItsPropertiesAreCancelled)
{
    CurrentPrinter().device().setPageSize(QPageSize(QPageSize::A5));
    EXPECT_TRUE(ask([this](QDialog& dialog) {
        Child<QLineEdit>(dialog, "filename").setText(pdf());
        inProperties(dialog, [](QDialog& properties) {
            Child<QComboBox>(properties, "pageSizeCombo").setCurrentText("A3");
            Cancel(properties);
        });
        Confirm(dialog);
    }));
    EXPECT_EQ(CurrentPrinter().device().pageLayout().pageSize().id(), QPageSize::A5);
}

TEST_F(PrintDialogTest, OpensOnTheLastChoice)
{
    EXPECT_TRUE(ask(PrintToFile(pdf())));
    ask([this](QDialog& dialog) {
        EXPECT_EQ(Child<QLineEdit>(dialog, "filename").text(), pdf());
        Cancel(dialog);
    });
}
