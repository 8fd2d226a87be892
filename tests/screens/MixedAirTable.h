#pragma once

#include "tests/screens/MixedAirFixture.h"

#include <QWidget>

#include <array>

using namespace forms;

/// The mixed air table after mixing 1000 cfm at 95 and 3000 cfm at 75 degrees.
class MixedAirTable : public MixedAirTest
{
protected:
    void openTable(bool metric = false)
    {
        mixBothStreams(metric);
        ASSERT_EQ(user.window(), "Answers1");
    }

    std::vector<std::string> row(const std::string& array)
    {
        return {user.text(array + "(0)"), user.text(array + "(1)"), user.text(array + "(2)")};
    }
    using Row = std::vector<std::string>;

    int top(const std::string& control) { return user.widget(control)->y() * 10; }
    int left(const std::string& control) { return user.widget(control)->x() * 10; }
    static std::string cell(const std::string& array, std::size_t column)
    {
        return array + "(" + std::to_string(column) + ")";
    }

    struct TableRow
    {
        const char* caption;
        const char* array;
        const char* unit;
        int top;
        int metricTop;
    };
    static constexpr std::array<int, 3> columnLeft{2100, 2940, 3780};
    static constexpr TableRow rows[] = {
        {"Label10", "lblcfm", "lblcfmTail", 735, 735},
        {"Label1", "lblTdb", "lblTdbTail", 1155, 1155},
        {"Label2", "lblTwb", "lblTwbTail", 1575, 1575},
        {"Label16", "lbltd", "lbltdTail", 1995, 1995},
        {"Label12", "lblRH", "lblRHTail", 2415, 2415},
        {"Label17", "lblW", "lblWTail", 2835, 2835},
        {"lblGrainsHead", "lblGrains", "lblGrainsTail", 3255, 3255},
        {"lblSpVolHead", "lblSpVol", "lblSpVolTail", 3675, 3255},
        {"lblHHead", "lblH", "lblHTail", 4095, 3675},
    };

    /// Positions in twips. One pixel is ten twips.
    void expectPlace(const std::string& label, int atLeft, int atTop, const QSize& size)
    {
        EXPECT_EQ(left(label), atLeft / 10 * 10) << label;
        EXPECT_EQ(top(label), atTop / 10 * 10) << label;
        EXPECT_EQ(user.widget(label)->size(), size) << label;
    }

    void expectRowAt(const TableRow& row, int atTop)
    {
        EXPECT_EQ(top(row.caption), atTop / 10 * 10) << row.caption;
        EXPECT_EQ(top(row.unit), atTop / 10 * 10) << row.unit;
        for (std::size_t column = 0; column < columnLeft.size(); ++column)
            expectPlace(cell(row.array, column), columnLeft[column], atTop, QSize(75, 27));
    }

    void expectColumn(std::size_t column, const AirSnapshot& stream)
    {
        const bool metric = IsMetric();
        const std::pair<const char*, std::string> cells[] = {
            {"lblcfm", FormatNumber(stream.AirVolume, "##,##")},
            {"lblTdb", FormatNumber(stream.Tdb, "##0.0")},
            {"lblTwb", FormatNumber(stream.Twb, "##0.0")},
            {"lbltd", FormatNumber(stream.td, "##0.0")},
            {"lblRH", FormatNumber(RoundToSingle(stream.RH * 100.0), "##0.0")},
            {"lblW", metric ? FormatNumber(RoundToSingle(stream.W * 1000.0), "#0.00")
                            : FormatNumber(stream.W, "#0.0000")},
            {"lblGrains", metric ? "" : FormatNumber(stream.Grains, "##0.0")},
            {"lblSpVol", FormatNumber(stream.SpVol, "##0.000")},
            {"lblH", FormatNumber(stream.h, "##0.00")},
        };
        for (const auto& [array, text] : cells) {
            EXPECT_EQ(user.text(cell(array, column)), text) << cell(array, column);
            EXPECT_EQ(user.isEnabled(cell(array, column)), !metric || array != std::string("lblGrains"));
        }
    }

    void expectThreeColumns()
    {
        expectColumn(0, MixedOutsideAir);
        expectColumn(1, MixedReturnAir);
        expectColumn(2, MixedResultAir);
    }
};
