// Recalculates the help's table of standard pressures, and the altitudes of the lowest accepted pressures.

#include "tests/help/HelpPage.h"

#include <QLocale>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <cmath>

namespace {

/// The standard atmosphere: p = p0 (1 - factor z)^5.2559.
struct StandardAtmosphere
{
    double seaLevel;
    double factor; ///< per foot or meter

    double pressureAt(double altitude) const { return seaLevel * std::pow(1 - factor * altitude, exponent); }
    double altitudeOf(double pressure) const
    {
        return (1 - std::pow(pressure / seaLevel, 1 / exponent)) / factor;
    }
    static constexpr double exponent = 5.2559;
};

constexpr StandardAtmosphere english{14.696, 6.8754e-6};
constexpr StandardAtmosphere metric{101.325, 2.25577e-5};
constexpr double displayedHalf = 0.0005 + 1e-9; // three decimals

double number(const QString& text)
{
    bool isNumber = false;
    const double value = QLocale::c().toDouble(text, &isNumber);
    EXPECT_TRUE(isNumber) << text.toStdString();
    return value;
}

std::vector<std::vector<double>> rowsOfPage()
{
    const HelpElement page = readHelpPage("options.html");
    std::vector<std::vector<double>> rows;
    for (const HelpElement* table : page.all("table")) {
        if (table->attributes.value("id") != "altitudes")
            continue;
        for (const HelpElement* line : table->all("tr")) {
            std::vector<double> row;
            for (const HelpElement* cell : line->all("td"))
                row.push_back(number(cell->words()));
            if (!row.empty())
                rows.push_back(row);
        }
    }
    return rows;
}

/// The altitude that the page gives for a pressure.
double altitudeOnPage(const QString& pressure)
{
    const QRegularExpression sentence(QRegularExpression::escape(pressure) +
                                      ",( is)? that of about (?<altitude>[\\d,]+) (ft|m)\\b");
    return number(sentence.match(readHelpPage("options.html").words()).captured("altitude"));
}

} // namespace

TEST(HelpAltitudeTable, IsTheStandardAtmosphere)
{
    const std::vector<std::vector<double>> rows = rowsOfPage();
    ASSERT_EQ(rows.size(), 11U);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        ASSERT_EQ(rows[i].size(), 4U);
        const auto step = static_cast<double>(i);
        EXPECT_EQ(rows[i][0], 1000 * step);
        EXPECT_NEAR(rows[i][1], english.pressureAt(1000 * step), displayedHalf);
        EXPECT_EQ(rows[i][2], 300 * step);
        EXPECT_NEAR(rows[i][3], metric.pressureAt(300 * step), displayedHalf);
    }
}

TEST(HelpAltitudeTable, NamesTheAltitudesOfTheLowestPressures)
{
    EXPECT_NEAR(altitudeOnPage("11 psi"), english.altitudeOf(11), 50);
    EXPECT_NEAR(altitudeOnPage("47 kPa"), metric.altitudeOf(47), 50);
}
