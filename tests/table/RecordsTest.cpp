// Reading CSV as RFC 4180 describes it.

#include "tests/table/TableTest.h"

#include <random>

namespace {

using Fields = std::vector<std::string>;

std::vector<Fields> RecordsOf(const std::string& text)
{
    const TemporaryFile file(text);
    Records records(file.get());
    std::vector<Fields> all;
    while (records.next())
        all.emplace_back(records.fields().begin(), records.fields().end());
    return all;
}

} // namespace

TEST(CsvRecords, AreSplitAtCommasAndLines)
{
    EXPECT_EQ(RecordsOf("a,b\nc,,d\n"), (std::vector<Fields>{{"a", "b"}, {"c", "", "d"}}));
    EXPECT_EQ(RecordsOf("a,b\n,"), (std::vector<Fields>{{"a", "b"}, {"", ""}}));
    EXPECT_EQ(RecordsOf(""), std::vector<Fields>{});
}

TEST(CsvRecords, EndWithAnyLineEndOrWithTheFile)
{
    EXPECT_EQ(RecordsOf("a,b\r\nc,d"), (std::vector<Fields>{{"a", "b"}, {"c", "d"}}));
    const TemporaryFile file("a\r\nb\nc");
    Records records(file.get());
    records.next();
    EXPECT_EQ(records.lineEnd(), "\r\n");
    records.next();
    EXPECT_EQ(records.lineEnd(), "\n");
}

TEST(CsvRecords, SkipEmptyLinesAndAByteOrderMark)
{
    EXPECT_EQ(RecordsOf("\xEF\xBB\xBF\n\r\na\n\nb\n\n"), (std::vector<Fields>{{"a"}, {"b"}}));
    EXPECT_EQ(RecordsOf("\xEF\xBB\xBF"), std::vector<Fields>{});
}

TEST(CsvRecords, KeepQuotedCommasLinesAndQuotes)
{
    EXPECT_EQ(RecordsOf("\"a,b\",\"c\nd\"\r\n\"e\"\"f\",g\n"),
              (std::vector<Fields>{{"\"a,b\"", "\"c\nd\""}, {"\"e\"\"f\"", "g"}}));
    EXPECT_EQ(RecordsOf("\"\",\"\"\"\"\n"), (std::vector<Fields>{{"\"\"", "\"\"\"\""}}));
}

TEST(CsvRecords, TakeAQuoteWithinAFieldAsACharacter)
{
    EXPECT_EQ(RecordsOf("5\",6\n7\"\n"), (std::vector<Fields>{{"5\"", "6"}, {"7\""}}));
    EXPECT_EQ(RecordsOf("\"a\"b,c\n"), (std::vector<Fields>{{"\"a\"b", "c"}}));
}

TEST(CsvRecords, EndAQuoteThatIsNotClosedWithTheFile)
{
    EXPECT_EQ(RecordsOf("a,\"b\nc\n"), (std::vector<Fields>{{"a", "\"b\nc\n"}}));
}

TEST(CsvRecords, KnowTheirLines)
{
    const TemporaryFile file("a\n\n\"b\nc\"\nd\n");
    Records records(file.get());
    for (const long line : {1, 3, 5}) {
        ASSERT_TRUE(records.next());
        EXPECT_EQ(records.line(), line);
    }
}

TEST(CsvRecords, RefuseARowOfMoreThanOneMebibyte)
{
    const std::string longest(Records::Longest, 'x');
    EXPECT_EQ(RecordsOf("a\n" + longest + "\nb\n").size(), 3U);
    EXPECT_EQ(TableErrorOf([&] { RecordsOf("a\n\"" + longest + "x\nb\n"); }),
              "line 2: a row of more than 1 MiB (is a quote not closed?)");
}

// Writes random records in all their spellings, over many refills of the buffer.
TEST(CsvRecords, ReadBackWhatWasWritten)
{
    std::mt19937 random{5};
    const auto below = [&](std::size_t limit) { return random() % limit; };
    const std::vector<std::string> parts{
        "1.5", "", "abc", "\"x,y\"", "\"a\nb\"", "\"\"\"\"", "\"\r\n\"", "q\"", std::string(3000, 'z')};
    std::vector<Fields> written;
    std::string text;
    while (text.size() < 5 * Records::Longest) {
        Fields fields{"row"};
        for (std::size_t i = below(6); i > 0; --i)
            fields.push_back(parts[below(parts.size())]);
        for (const std::string& field : fields)
            text += (&field == fields.data() ? "" : ",") + field;
        text += below(2) == 0 ? "\n" : "\r\n";
        written.push_back(fields);
    }
    EXPECT_TRUE(RecordsOf(text) == written);
}
