#pragma once

#include "tests/platform/help/HelpTest.h"

#include <string>
#include <vector>

using Lines = std::vector<std::string>;

/// A reader of the sample's first page.
class HelpWindowTest : public HelpTest
{
protected:
    void SetUp() override
    {
        HelpTest::SetUp();
        ask(100);
    }

    static void searchFor(const QString& words)
    {
        press(Qt::Key_F3);
        typeWords(words);
        press(Qt::Key_Return);
    }
};
