// The save and print entries of every form, through the real dialogs.

#include "tests/screens/CalculatorFixture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

class ReportCommands : public CalculatorTest
{
protected:
    void SetUp() override
    {
        qputenv("CUPS_SERVER", "/nowhere"); // so that no real printer gets a page
        reportsFolder = folder.path().toStdString();
        ReportsBase = [] { return reportsFolder; };
    }

    std::string saved(const std::string& entry)
    {
        const QString path = folder.filePath("report");
        QFile::remove(path);
        user.inDialog("SaveDialog", [path] { SaveAs(path)(dialog()); });
        user.choose(entry);
        return bytesOf(path);
    }

    /// The contents of the temporary file after printing to a PDF.
    std::string printed(const std::string& entry, const std::string& temporaryFile)
    {
        const QString path = folder.filePath("paper.pdf");
        QFile::remove(path);
        user.inDialog("PrintDialog", [path] { PrintToFile(path)(dialog()); });
        user.choose(entry);
        EXPECT_NE(bytesOf(path), "(none)") << "a document was printed";
        return bytesOf(folder.filePath("tempdata/") + QString::fromStdString(temporaryFile));
    }

    static bool has(const std::string& text, const std::string& part)
    {
        return text.find(part) != std::string::npos;
    }

private:
    static QDialog& dialog() { return *qobject_cast<QDialog*>(QApplication::activeModalWidget()); }

    static std::string bytesOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(none)";
    }

    static inline std::string reportsFolder;
    QTemporaryDir folder;
};

TEST_F(ReportCommands, OfTheAirPropertiesWriteTheFieldsOnTheScreen)
{
    start();
    user.click("btnAirCalc");
    calculate("70", "txtRH", "50");
    const std::string report = saved("mnuSave");
    EXPECT_TRUE(has(report, "\n Calculated Psychrometric Properties\n"));
    EXPECT_TRUE(has(report, "\n Relative Humidity =        50.0%\n"));
    EXPECT_EQ(printed("mnuPrintDialog", "Airprop.txt"), report);
}

TEST_F(ReportCommands, OfTheAirPropertiesEndSilentlyForTheRestOfTheRunAfterAnEmptyHumidity)
{
    start();
    user.click("btnAirCalc");
    const std::string broken = saved("mnuSave");
    EXPECT_TRUE(has(broken, "Dew Point Temp = "));
    EXPECT_FALSE(has(broken, "Relative Humidity"));
    calculate("70", "txtRH", "50");
    EXPECT_EQ(saved("mnuSave"), "(none)");
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(ReportCommands, LeaveTheWorkingFolderAlone)
{
    start();
    const QTemporaryDir place;
    for (const char* button : {"btnAirCalc", "btnCooling", "btnHeating", "btnHumidity"}) {
        user.click(button);
        calculate("70", "txtRH", "50");
        ASSERT_TRUE(QDir::setCurrent(place.path())); // some calculators go elsewhere as they open
        EXPECT_NE(saved("mnuSave"), "(none)") << button;
        EXPECT_EQ(QDir::currentPath(), place.path()) << button << ", after saving";
        printed("mnuPrintDialog", "");
        EXPECT_EQ(QDir::currentPath(), place.path()) << button << ", after printing";
        user.choose("mnuMain1");
    }
    EXPECT_TRUE(QDir(place.path()).isEmpty()) << "nothing is written there";
    QDir::setCurrent("/");
}

TEST_F(ReportCommands, OfBothMixedAirScreensWriteTheSameRecords)
{
    start();
    user.click("btnMixedAir");
    calculate("95", "txtRH", "40");
    answerVolume("btnSaveOSA", "1000");
    calculate("75", "txtRH", "50");
    answerVolume("btnRA", "3000");
    user.click("btnMixedAir");
    const std::string report = saved("mnuSave2File");
    EXPECT_TRUE(has(report, "\n Air Flow Rate =            4,000          cfm\n"));
    EXPECT_EQ(printed("mnuPrintResults", "mixedair.txt"), report);
    user.click("btnOK");
    EXPECT_EQ(saved("mnuSave"), report);
    EXPECT_EQ(printed("mnuPrintDialog", "mixedair.txt"), report);
}

TEST_F(ReportCommands, OfTheCoolingCalculatorWriteBeforeAnythingWasSaved)
{
    start();
    user.click("btnCooling");
    const std::string report = saved("mnuSave");
    EXPECT_TRUE(has(report, "\n Cooling Load Summary\n"));
    EXPECT_EQ(printed("mnuPrintDialog", "cooling.txt"), report);
}

TEST_F(ReportCommands, OfTheHeatingCalculatorWriteTheirTwoLayouts)
{
    start();
    user.click("btnHeating");
    const std::string report = saved("mnuSave");
    const std::string paper = printed("mnuPrintDialog", "heating.txt");
    EXPECT_TRUE(has(report, "\n Heating Load Summary\n"));
    EXPECT_TRUE(has(paper, "\n Heating Load Summary\n"));
    EXPECT_NE(paper, report);
}

TEST_F(ReportCommands, OfBothHumidificationScreensWriteTheSame)
{
    start();
    user.click("btnHumidity");
    const std::string report = saved("mnuSave");
    const std::string paper = printed("mnuPrintDialog", "humidity.txt");
    EXPECT_TRUE(has(report, "\n Moisture Required\n"));
    EXPECT_TRUE(has(paper, "\n Moisture Required\n"));
    calculate("30", "txtRH", "60");
    const std::string calculated = saved("mnuSave");
    const std::string calculatedPaper = printed("mnuPrintDialog", "humidity.txt");
    EXPECT_NE(calculated, report);
    user.inDialog("humid2", [&] {
        EXPECT_EQ(saved("mnuSave"), calculated);
        EXPECT_EQ(printed("mnuPrint", "humidity.txt"), calculatedPaper);
        user.click("btnOK");
    });
    user.click("btnHumidityDesired");
}
