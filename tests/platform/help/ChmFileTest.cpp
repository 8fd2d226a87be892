// The members of a compiled help file.

#include "tests/platform/help/DamagedHelp.h"

#include <gtest/gtest.h>

namespace {

QString source(const char* name) { return QString(DUNMOOR_TEST_DATA) + "/help/" + name; }

class ChmFileTest : public testing::Test
{
protected:
    const std::unique_ptr<ChmFile> file = ChmFile::open(bytesOf(DUNMOOR_SAMPLE_HELP));
};

TEST_F(ChmFileTest, ListsTheMembersThatPeopleSee)
{
    ASSERT_NE(file, nullptr);
    QStringList names = file->names();
    EXPECT_EQ(names.removeAll("_#_README_#_"), 1) << "the mark of the compiler";
    names.sort();
    EXPECT_EQ(names, (QStringList{"air.html", "images/chart.png", "index.html", "mixed air.html",
                                  "more/units.html", "sample.css", "sample.hhc", "sample.hhk"}));
}

TEST_F(ChmFileTest, ReadsEveryMemberAsItWas)
{
    for (const char* name : {"index.html", "air.html", "mixed air.html", "more/units.html", "sample.css",
                             "images/chart.png", "sample.hhc", "sample.hhk"})
        EXPECT_EQ(file->read(name), bytesOf(source(name))) << name;
    EXPECT_EQ(file->read("index.html"), bytesOf(source("index.html"))) << "a second time, and backwards";
}

TEST_F(ChmFileTest, TakesUpperAndLowerCaseAsOne)
{
    EXPECT_TRUE(file->has("Images/CHART.png"));
    EXPECT_EQ(file->read("INDEX.HTML"), bytesOf(source("index.html")));
}

TEST_F(ChmFileTest, HasNothingOfAnotherName)
{
    for (const char* name : {"", "/", "missing.html", "/index.html", "../index.html", "images"}) {
        EXPECT_FALSE(file->has(name)) << name;
        EXPECT_EQ(file->read(name), std::nullopt) << name;
    }
}

TEST_F(ChmFileTest, ReadsTheFilesOwnTables) { EXPECT_TRUE(file->read("#SYSTEM").has_value()); }

TEST(ChmFile, OpensAFileWithBothIdentifiers)
{
    QByteArray bytes = bytesOf(DUNMOOR_SAMPLE_HELP);
    bytes[0x28] = 0x11;
    EXPECT_NE(ChmFile::open(bytes), nullptr);
}

TEST(ChmFile, OpensNothingElse)
{
    EXPECT_EQ(ChmFile::open({}), nullptr);
    EXPECT_EQ(ChmFile::open("ITSF"), nullptr);
    EXPECT_EQ(ChmFile::open(bytesOf(source("images/chart.png"))), nullptr);
    EXPECT_EQ(ChmFile::open(QByteArray(ChmFile::largestFile + 1, 'x')), nullptr);
    QByteArray wrong = bytesOf(DUNMOOR_SAMPLE_HELP);
    wrong[0x20] = static_cast<char>(wrong[0x20] + 1); // in the first identifier alone
    EXPECT_EQ(ChmFile::open(wrong), nullptr);
}

} // namespace
