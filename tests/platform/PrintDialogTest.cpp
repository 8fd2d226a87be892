#include "platform/PrintDialog.h"
#include "platform/Printer.h"
#include "tests/platform/AnyForm.h"
#include "tests/platform/Dialogs.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QChildEvent>
#include <QComboBox>
#include <QFile>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>

using namespace forms;

namespace {

TEST(PrinterToGoOverTo, TakesThePrinterOfTheNameInUpperCase)
{
    EXPECT_EQ(PrinterToGoOverTo({"Office", "Lab"}, "LAB"), "Lab");
}

TEST(PrinterToGoOverTo, TakesTheLastOneWhereSeveralMatch)
{
    EXPECT_EQ(PrinterToGoOverTo({"LAB", "Office", "lab", "Hall"}, "LAB"), "lab");
}

TEST(PrinterToGoOverTo, TakesNoneWhereNoneMatches)
{
    EXPECT_EQ(PrinterToGoOverTo({"Office", "Lab"}, "HALL"), std::nullopt);
    EXPECT_EQ(PrinterToGoOverTo({"lab"}, "lab"), std::nullopt); // names in lower case never match
}

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
        child<QAbstractButton>(dialog, "properties").click();
    }

    QString pdf(const char* name = "out.pdf") const { return folder.filePath(name); }

    Dialogs dialogs;
    QTemporaryDir folder;
};

TEST_F(PrintDialogTest, OffersTheFilePrinterWhereThereIsNoOther)
{
    ask([](QDialog& dialog) {
        auto& printers = child<QComboBox>(dialog, "printers");
        EXPECT_EQ(printers.count(), 1);
        EXPECT_EQ(printers.currentText(), "Print to File (PDF)");
        cancel(dialog);
    });
}

TEST_F(PrintDialogTest, ProposesAFileAndNotAFolder)
{
    ask([](QDialog& dialog) {
        EXPECT_TRUE(child<QLineEdit>(dialog, "filename").text().endsWith("/Dunmoor.pdf"));
        cancel(dialog);
    });
}

TEST_F(PrintDialogTest, OffersNeitherASelectionNorAPageRange)
{
    ask([](QDialog& dialog) {
        for (QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
            if (button->text().contains("Options"))
                button->click(); // opens the lower half
        }
        EXPECT_TRUE(child<QSpinBox>(dialog, "copies").isVisible());
        for (const char* range :
             {"printRange", "pagesRadioButton", "from", "printSelection", "printCurrentPage", "pageSetCombo"})
            EXPECT_FALSE(child<QWidget>(dialog, range).isVisible()) << range;
        cancel(dialog);
    });
}

/// Renames the toolkit's widgets as they are created, as another version of it could.
class OtherNames : public QObject
{
public:
    OtherNames() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* /*parent*/, QEvent* event) override
    {
        if (event->type() == QEvent::ChildAdded) {
            QObject* const child = static_cast<QChildEvent*>(event)->child();
            connect(child, &QObject::objectNameChanged, this, [child](const QString& name) {
                if (!name.isEmpty() && !name.startsWith("other-"))
                    child->setObjectName("other-" + name);
            });
        }
        return false;
    }
};

TEST_F(PrintDialogTest, IsTheToolkitsPlainOneWhereItsPartsHaveOtherNames)
{
    const OtherNames otherVersion;
    dialogs.answer("other-PrintDialog", [](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QWidget*>("gbPrintRange"), nullptr);
        EXPECT_FALSE(child<QWidget>(dialog, "other-gbPrintRange").parentWidget()->isHidden());
        cancel(dialog);
    });
    EXPECT_FALSE(ShowPrintDialog(form<AnyForm>()));
}

TEST_F(PrintDialogTest, BelongsToTheFormThatAsks)
{
    ask([](QDialog& dialog) {
        EXPECT_EQ(dialog.parentWidget(), form<AnyForm>().window());
        cancel(dialog);
    });
}

TEST_F(PrintDialogTest, ChangesNothingOnCancel)
{
    CurrentPrinter().setPort(pdf("before.pdf").toStdString());
    const bool confirmed = ask([this](QDialog& dialog) {
        child<QLineEdit>(dialog, "filename").setText(pdf());
        child<QSpinBox>(dialog, "copies").setValue(7);
        child<QRadioButton>(dialog, "grayscale").click();
        inProperties(dialog, [](QDialog& properties) {
            child<QRadioButton>(properties, "landscape").click();
            child<QComboBox>(properties, "pageSizeCombo").setCurrentText("A5");
            confirm(properties);
        });
        cancel(dialog);
    });

    EXPECT_FALSE(confirmed);
    EXPECT_EQ(CurrentPrinter().port(), pdf("before.pdf").toStdString());
    EXPECT_EQ(CurrentPrinter().device().copyCount(), 1);
    EXPECT_EQ(CurrentPrinter().device().colorMode(), QPrinter::Color);
    EXPECT_EQ(CurrentPrinter().device().pageLayout().orientation(), QPageLayout::Portrait);
    EXPECT_NE(CurrentPrinter().device().pageLayout().pageSize().id(), QPageSize::A5);
    EXPECT_FALSE(QFile::exists(pdf()));
}

TEST_F(PrintDialogTest, ChangesNothingWhenItIsClosedByItsBox)
{
    EXPECT_FALSE(ask([this](QDialog& dialog) {
        child<QLineEdit>(dialog, "filename").setText(pdf());
        dialog.close();
    }));
    EXPECT_EQ(CurrentPrinter().port(), "");
}

TEST_F(PrintDialogTest, BringsTheChoiceToTheCurrentPrinter)
{
    const bool confirmed = ask([this](QDialog& dialog) {
        child<QLineEdit>(dialog, "filename").setText(pdf());
        child<QRadioButton>(dialog, "grayscale").click();
        inProperties(dialog, [](QDialog& properties) {
            child<QRadioButton>(properties, "landscape").click();
            child<QComboBox>(properties, "pageSizeCombo").setCurrentText("A5");
            confirm(properties);
        });
        confirm(dialog);
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
        EXPECT_EQ(child<QLineEdit>(dialog, "filename").text(), pdf("my report"));
        EXPECT_TRUE(child<QRadioButton>(dialog, "grayscale").isChecked());
        inProperties(dialog, [](QDialog& properties) {
            EXPECT_TRUE(child<QRadioButton>(properties, "landscape").isChecked());
            EXPECT_EQ(child<QComboBox>(properties, "pageSizeCombo").currentText(), "A5");
            cancel(properties);
        });
        cancel(dialog);
    });
}

TEST_F(PrintDialogTest, KeepsTheSettingsThatTheUserDoesNotTouch)
{
    CurrentPrinter().device().setPageOrientation(QPageLayout::Landscape);
    CurrentPrinter().device().setPageSize(QPageSize(QPageSize::A5));
    CurrentPrinter().device().setColorMode(QPrinter::GrayScale);
    CurrentPrinter().device().setResolution(600);
    CurrentPrinter().setFont({.name = "Arial", .size = 14, .bold = true});
    EXPECT_TRUE(ask(printTo(pdf())));
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
        child<QLineEdit>(dialog, "filename").setText(pdf());
        inProperties(dialog, [](QDialog& properties) {
            child<QComboBox>(properties, "pageSizeCombo").setCurrentText("A3");
            cancel(properties);
        });
        confirm(dialog);
    }));
    EXPECT_EQ(CurrentPrinter().device().pageLayout().pageSize().id(), QPageSize::A5);
}

TEST_F(PrintDialogTest, OpensOnTheLastChoice)
{
    EXPECT_TRUE(ask(printTo(pdf())));
    ask([this](QDialog& dialog) {
        EXPECT_EQ(child<QLineEdit>(dialog, "filename").text(), pdf());
        cancel(dialog);
    });
}

} // namespace
