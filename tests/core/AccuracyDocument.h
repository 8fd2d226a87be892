#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iomanip>
#include <iostream>
#include <sstream>
#include <string>

/// A number with a fixed count of places, for such a line.
inline std::string Places(double value, int places, bool withSign = false)
{
    std::ostringstream text;
    text << std::fixed << std::setprecision(places) << (withSign ? std::showpos : std::noshowpos) << value;
    return text.str();
}

/// Prints a line of docs/accuracy.md, and expects to find it there. So the document's figures are those that
/// were measured last.
inline void ExpectInAccuracyDocument(const std::string& line)
{
    std::cout << line << '\n';
    std::ifstream file(DUNMOOR_TEST_DATA "/../../docs/accuracy.md");
    std::ostringstream document;
    document << '\n' << file.rdbuf();
    EXPECT_TRUE(document.str().find('\n' + line + '\n') != std::string::npos)
        << "docs/accuracy.md lacks: " << line;
}
