// The form of every help page, and the examples that it announces.

#include "tests/help/WorkedExample.h"
#include "tests/support/ProgramTest.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <gtest/gtest.h>

TEST(HelpPages, HaveTheirTitleAsHeadingAndNothingButPlainCharacters)
{
    for (const QString& name : helpPages()) {
        const HelpElement page = readHelpPage(name);
        ASSERT_EQ(page.all("title").size(), 1U) << name.toStdString();
        ASSERT_EQ(page.all("h1").size(), 1U) << name.toStdString();
        EXPECT_EQ(page.all("title").front()->words(), page.all("h1").front()->words());
        for (const QChar letter : helpSource(name))
            ASSERT_LT(letter.unicode(), 128) << name.toStdString(); // readable in any viewer and code page
        for (const char* forbidden : {"script", "font", "style", "frame", "iframe", "object"})
            EXPECT_TRUE(page.all(forbidden).empty()) << name.toStdString() << ": " << forbidden;
    }
}

// The desktop's colors and the reader's text size apply to every page.
TEST(HelpPages, NameNoColoursAndNoFixedSizesOfText)
{
    for (const QString& name : helpPages()) {
        readHelpPage(name).visit([&name](const HelpElement& element) {
            for (const char* forbidden : {"style", "color", "bgcolor", "background", "text", "link"})
                EXPECT_FALSE(element.attributes.contains(forbidden)) << name.toStdString() << element.line;
        });
    }
    const QString sheet = helpSource("dunmoor.css");
    EXPECT_TRUE(sheet.contains("font-size: small"));
    static const QRegularExpression fixed("color|background|font-size:\\s*\\d|#[0-9a-f]");
    EXPECT_FALSE(sheet.contains(fixed));
}

// Every announced example has steps to follow and figures to compare.
TEST(HelpPages, GiveTheExamplesThatTheyAnnounce)
{
    for (const QString& name : helpPages()) {
        const HelpElement page = readHelpPage(name);
        QString announced;
        page.visit([&](const HelpElement& element) {
            if (element.is("h2")) {
                EXPECT_EQ(announced, "") << name.toStdString();
                announced = element.words().startsWith("Example") ? element.words() : QString();
            } else if (element.is("ol", "example")) {
                const WorkedExample example = readExample(name, element);
                EXPECT_GE(example.steps.size(), 2U) << example.id.toStdString();
                EXPECT_FALSE(element.all("td", "figure").empty()) << name.toStdString();
                announced.clear();
            }
        });
        EXPECT_EQ(announced, "") << name.toStdString();
    }
}

TEST(HelpPages, HaveExamplesOfEveryCalculatorInBothUnitSystems)
{
    for (const QString name : {"air-properties", "mixed-air", "cooling", "heating", "humidification"}) {
        const HelpElement page = readHelpPage(name + ".html");
        int english = 0;
        int metric = 0;
        for (const HelpElement* list : page.all("ol", "example"))
            ++(list->words().contains("Metric, SI") ? metric : english);
        EXPECT_GE(english, 1) << name.toStdString();
        EXPECT_GE(metric, 1) << name.toStdString();
    }
}

TEST(HelpExamples, RefuseAStepThatNobodyCanFollow)
{
    HelpElement item{"li", {{"class", "step"}}, {}, {}, 7};
    item.children.push_back({{}, {}, "Wiggle ", {}, 7});
    item.children.push_back({"b", {{"class", "btnOK"}}, {}, {{{}, {}, "OK", {}, 7}}, 7});
    const HelpElement list{"ol", {{"class", "example"}, {"id", "odd"}}, {}, {item}, 6};
    EXPECT_THROW(readExample("odd.html", list), std::runtime_error);
    EXPECT_THROW(readExample("odd.html", HelpElement{"ol", {}, {}, {}, 6}), std::runtime_error);
}

using HelpVersion = ProgramTest;

TEST_F(HelpVersion, IsThatOfTheProgram)
{
    start();
    ASSERT_FALSE(QCoreApplication::applicationVersion().isEmpty());
    const HelpElement page = readHelpPage("index.html");
    QStringList told;
    for (const HelpElement* cell : page.all("td")) {
        if (cell->words().startsWith("shows the version"))
            told << cell->words();
    }
    EXPECT_EQ(told, QStringList("shows the version, " + QCoreApplication::applicationVersion()))
        << told.join(" | ").toStdString();
}
