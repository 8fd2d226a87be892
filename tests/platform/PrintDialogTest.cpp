// The print dialog: what it offers, and the ways out that change nothing.

#include "tests/platform/PrintDialogTest.h"

#include <QApplication>
#include <QChildEvent>
#include <QComboBox>
#include <QRadioButton>
#include <QSpinBox>

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

TEST_F(PrintDialogTest, OffersTheFilePrinterWhereThereIsNoOther)
{
    ask([](QDialog& dialog) {
        auto& printers = Child<QComboBox>(dialog, "printers");
        EXPECT_EQ(printers.count(), 1);
        EXPECT_EQ(printers.currentText(), "Print to File (PDF)");
        Cancel(dialog);
    });
}

TEST_F(PrintDialogTest, ProposesAFileAndNotAFolder)
{
    ask([](QDialog& dialog) {
        EXPECT_TRUE(Child<QLineEdit>(dialog, "filename").text().endsWith("/Dunmoor.pdf"));
        Cancel(dialog);
    });
}

TEST_F(PrintDialogTest, OffersNeitherASelectionNorAPageRange)
{
    ask([](QDialog& dialog) {
        for (QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
            if (button->text().contains("Options"))
                button->click(); // opens the lower half
        }
        EXPECT_TRUE(Child<QSpinBox>(dialog, "copies").isVisible());
        for (const char* range :
             {"printRange", "pagesRadioButton", "from", "printSelection", "printCurrentPage", "pageSetCombo"})
            EXPECT_FALSE(Child<QWidget>(dialog, range).isVisible()) << range;
        Cancel(dialog);
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
        EXPECT_FALSE(Child<QWidget>(dialog, "other-gbPrintRange").parentWidget()->isHidden());
        Cancel(dialog);
    });
    EXPECT_FALSE(ShowPrintDialog(form<AnyForm>()));
}

TEST_F(PrintDialogTest, BelongsToTheFormThatAsks)
{
    ask([](QDialog& dialog) {
        EXPECT_EQ(dialog.parentWidget(), form<AnyForm>().window());
        Cancel(dialog);
    });
}

TEST_F(PrintDialogTest, ChangesNothingOnCancel)
{
    CurrentPrinter().setPort(pdf("before.pdf").toStdString());
    const bool confirmed = ask([this](QDialog& dialog) {
        Child<QLineEdit>(dialog, "filename").setText(pdf());
        Child<QSpinBox>(dialog, "copies").setValue(7);
        Child<QRadioButton>(dialog, "grayscale").click();
        inProperties(dialog, [](QDialog& properties) {
            Child<QRadioButton>(properties, "landscape").click();
            Child<QComboBox>(properties, "pageSizeCombo").setCurrentText("A5");
            Confirm(properties);
        });
        Cancel(dialog);
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
        Child<QLineEdit>(dialog, "filename").setText(pdf());
        dialog.close();
    }));
    EXPECT_EQ(CurrentPrinter().port(), "");
}

} // namespace
