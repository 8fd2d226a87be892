#include "platform/SaveDialog.h"
#include "tests/platform/AnyForm.h"
#include "tests/platform/Dialogs.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>

using namespace forms;

namespace {

using namespace std::string_view_literals;

class SaveDialogTest : public testing::Test
{
protected:
    void SetUp() override { form<AnyForm>().Show(); }
    void TearDown() override
    {
        EXPECT_TRUE(dialogs.unexpected.empty()) << dialogs.unexpected.front().toStdString();
        FormRegistry::clear();
    }

    std::string ask(Dialogs::Answer answer, std::string_view filter = "All Files (*.*)\0*.*\0"sv)
    {
        dialogs.answer("SaveDialog", std::move(answer));
        return ShowSaveDialog(form<AnyForm>(), filter, "Save Data to File", folder.path().toStdString());
    }

    std::string path(const char* name) const { return folder.filePath(name).toStdString(); }

    void makeFile(const char* name) const
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    Dialogs dialogs;
    QTemporaryDir folder;
};

TEST_F(SaveDialogTest, CarriesItsTitleAndBelongsToTheFormThatAsks)
{
    ask([](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Save Data to File");
        EXPECT_EQ(dialog.parentWidget(), form<AnyForm>().window());
        Cancel(dialog);
    });
}

TEST_F(SaveDialogTest, StartsInItsFolderWithoutAName)
{
    ask([this](QDialog& dialog) {
        EXPECT_EQ(static_cast<QFileDialog&>(dialog).directory().path(), folder.path());
        EXPECT_EQ(Child<QLineEdit>(dialog, "fileNameEdit").text(), "");
        Cancel(dialog);
    });
}

TEST_F(SaveDialogTest, ShowsFilesWithAndWithoutAnExtension)
{
    ask([](QDialog& dialog) {
        auto& types = Child<QComboBox>(dialog, "fileTypeCombo");
        EXPECT_EQ(types.count(), 1);
        EXPECT_EQ(types.currentText().trimmed(), "All Files (*.*)");
        EXPECT_EQ(static_cast<QFileDialog&>(dialog).nameFilters(), QStringList{"All Files (*.*) (*)"});
        Cancel(dialog);
    });
}

TEST_F(SaveDialogTest, TakesSeveralFilters)
{
    ask(
        [](QDialog& dialog) {
            EXPECT_EQ(static_cast<QFileDialog&>(dialog).nameFilters(),
                      (QStringList{"Text (*.txt)", "All (*)"}));
            Cancel(dialog);
        },
        "Text\0*.txt\0All\0*.*\0"sv);
}

TEST_F(SaveDialogTest, GivesThePathOfTheNameThatWasTyped)
{
    EXPECT_EQ(ask(SaveAs("report.txt")), path("report.txt"));
}

TEST_F(SaveDialogTest, AddsNoExtension) { EXPECT_EQ(ask(SaveAs("report")), path("report")); }

TEST_F(SaveDialogTest, KeepsBlanksAndLettersOfAnyLanguageInAName)
{
    EXPECT_EQ(ask(SaveAs("Zürich  Büro 3.txt")), path("Zürich  Büro 3.txt"));
}

TEST_F(SaveDialogTest, DropsBlanksAroundThePath)
{
    EXPECT_EQ(ask(SaveAs(folder.filePath("report  "))), path("report"));
}

TEST_F(SaveDialogTest, AsksNothingAboutAFileThatExists)
{
    makeFile("report");
    EXPECT_EQ(ask(SaveAs("report")), path("report"));
    EXPECT_EQ(dialogs.shown, std::vector<QString>{"SaveDialog"});
}

TEST_F(SaveDialogTest, TakesAFileInAFolderThatIsNotThere)
{
    EXPECT_EQ(ask(SaveAs(folder.filePath("missing/report"))), path("missing/report"));
}

TEST_F(SaveDialogTest, MakesNoFile)
{
    ask(SaveAs("report"));
    EXPECT_FALSE(QFile::exists(folder.filePath("report")));
}

TEST_F(SaveDialogTest, GivesAnEmptyPathOnCancel)
{
    EXPECT_EQ(ask([](QDialog& dialog) {
                  Child<QLineEdit>(dialog, "fileNameEdit").setText("report");
                  Cancel(dialog);
              }),
              "");
}

TEST_F(SaveDialogTest, GivesAnEmptyPathWhenItIsClosedByItsBox)
{
    EXPECT_EQ(ask([](QDialog& dialog) { dialog.close(); }), "");
}

TEST_F(SaveDialogTest, RemembersNothingBetweenCalls)
{
    const QTemporaryDir other;
    EXPECT_EQ(ask(SaveAs(other.filePath("report"))), other.filePath("report").toStdString());
    ask([this](QDialog& dialog) {
        EXPECT_EQ(static_cast<QFileDialog&>(dialog).directory().path(), folder.path());
        EXPECT_EQ(Child<QLineEdit>(dialog, "fileNameEdit").text(), "");
        Cancel(dialog);
    });
}

} // namespace
