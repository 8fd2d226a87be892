#include "tests/core/CoreTest.h"

TEST(RunTimeError, CarriesTheNumberAndTheTextOfItsReport)
{
    const std::vector<std::pair<int, std::string>> reports{
        {5, "Invalid procedure call or argument"},
        {6, "Overflow"},
        {11, "Division by zero"},
        {13, "Type mismatch"},
        {53, "File not found"},
        {55, "File already open"},
        {75, "Path/File access error"},
        {76, "Path not found"},
    };
    for (const auto& [number, text] : reports) {
        const RunTimeError error(static_cast<ErrorNumber>(number));
        EXPECT_EQ(error.number(), number);
        EXPECT_EQ(error.what(), text);
    }
}

TEST(RunTimeError, IsCaughtAsAStandardException)
{
    try {
        Raise(ErrorNumber::FileNotFound);
        FAIL() << "nothing was thrown";
    } catch (const std::exception& error) {
        EXPECT_STREQ(error.what(), "File not found");
    }
}
