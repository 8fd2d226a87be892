// Reads the state of the help's worked reading off the chart.

#include "chart/Texts.h"
#include "core/MainMod.h"
#include "tests/help/HelpPage.h"

#include <gtest/gtest.h>

TEST(HelpChartReading, HasTheFiguresOfTheChart)
{
    BaroPressure = 14.696F;
    numberLocale = {.decimalPoint = ".", .groupSeparator = ","};
    const HelpElement page = readHelpPage("chart.html");
    QStringList onPage;
    for (const HelpElement* table : page.all("table")) {
        if (table->attributes.value("id") != "figures-read")
            continue;
        for (const HelpElement* line : table->all("tr")) {
            const auto cells = line->all("td");
            if (!cells.empty())
                onPage << cells.at(0)->words() + " " + cells.at(1)->words();
        }
    }
    QStringList onChart;
    for (const chart::Figure& figure :
         chart::FiguresOf(chart::ReadingAt(chart::Air::inForce(), {75, 0.0093})))
        onChart << figure.name + " " + figure.value;
    EXPECT_EQ(onPage.join(", ").toStdString(), onChart.join(", ").toStdString());
}
