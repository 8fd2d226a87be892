// Recalculates the help's table of deviations from published figures with the program's own relations. The
// page shows the program's figures with five digits (or whole), and deviations in percent with two decimals.
// If a figure's bound is absolute, both have two decimals more than the published figure.

#include "core/MainMod.h"
#include "tests/help/HelpPage.h"

#include <QFile>

#include <gtest/gtest.h>

#include <cmath>

namespace {

struct Published
{
    QStringList cells; ///< units, quantity, input, figure, unit, bound

    const QString& figure() const { return cells[3]; }
    bool isAbsolute() const { return cells[5].endsWith("absolute"); }
    int decimals() const { return figure().contains('.') ? int(figure().section('.', 1).size()) : 0; }

    /// The value after "name=" in the input.
    Single input(const QString& name) const
    {
        for (const QString& part : cells[2].split(' ')) {
            if (part.section('=', 0, 0) == name)
                return part.section('=', 1).toFloat();
        }
        throw std::runtime_error("no input " + name.toStdString());
    }
};

std::vector<Published> publishedFigures()
{
    QFile file(QStringLiteral(DUNMOOR_TEST_DATA "/published.csv"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    std::vector<Published> figures;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)) {
        if (line.startsWith('#'))
            continue;
        QStringList cells = line.split(',');
        for (QString& cell : cells)
            cell = cell.trimmed();
        figures.push_back({cells});
    }
    return figures;
}

Single standardPressure() { return IsMetric() ? 101325.0F : 14.696F; }

double workOutDryOrSaturated(const Published& published)
{
    const QString& quantity = published.cells[1];
    const Single t = published.input("t");
    if (quantity == "specific volume of dry air")
        return SpecificVolumeOf(ToAbsolute(t), 0.0F, standardPressure());
    const Single pws = SaturationPressure(ToAbsolute(t));
    if (quantity == "saturation pressure")
        return pws;
    const Single ws = HumidityRatioFromVaporPressure(pws, standardPressure());
    if (quantity == "saturation humidity ratio")
        return ws;
    if (quantity == "saturation enthalpy")
        return EnthalpyOf(t, ws);
    throw std::runtime_error("no quantity " + quantity.toStdString());
}

double workOutFromWetBulb(const Published& published)
{
    StatePoint.Tdb = published.input("tdb");
    StatePoint.Twb = published.input("twb");
    StatePoint.P = standardPressure();
    SolveFromWetBulb();
    const QString& quantity = published.cells[1];
    if (quantity == "humidity ratio")
        return StatePoint.W.asDouble();
    if (quantity == "dew point")
        return StatePoint.td.asDouble();
    if (quantity == "relative humidity")
        return StatePoint.RH.asDouble();
    if (quantity == "enthalpy")
        return StatePoint.h;
    if (quantity == "specific volume")
        return StatePoint.SpVol.asDouble();
    throw std::runtime_error("no quantity " + quantity.toStdString());
}

/// The row that the page must contain.
QStringList tableRow(const Published& published)
{
    UnitSystem = published.cells[0] == "Metric" ? True16 : False16;
    const double real = published.cells[2].contains("twb=") ? workOutFromWetBulb(published)
                                                            : workOutDryOrSaturated(published);
    const double deviation = real - published.figure().toDouble();
    QStringList row = published.cells.mid(0, 3);
    row << published.figure() + ' ' + published.cells[4];
    if (published.isAbsolute()) {
        const int decimals = published.decimals() + 2;
        row << QString::asprintf("%.*f", decimals, real) << QString::asprintf("%+.*f", decimals, deviation);
    } else {
        const double percent = 100 * deviation / std::fabs(published.figure().toDouble());
        row << QString::asprintf(std::fabs(real) < 1e5 ? "%.5g" : "%.0f", real)
            << QString::asprintf("%+.2f %%", percent);
    }
    return row;
}

/// The rows of both tables, the Metric ones first, each with its unit system.
std::vector<QStringList> rowsOfPage()
{
    const HelpElement page = readHelpPage("numbers.html");
    std::vector<QStringList> rows;
    for (const QString system : {"Metric", "English"}) {
        for (const HelpElement* table : page.all("table")) {
            if (table->attributes.value("id") != "deviations-" + system.toLower())
                continue;
            for (const HelpElement* line : table->all("tr")) {
                QStringList row{system};
                for (const HelpElement* cell : line->all("td"))
                    row << cell->words();
                if (row.size() > 1)
                    rows.push_back(row);
            }
        }
    }
    return rows;
}

} // namespace

TEST(HelpAccuracyTable, IsWhatTheRelationsGive)
{
    const std::vector<Published> figures = publishedFigures();
    const std::vector<QStringList> rows = rowsOfPage();
    ASSERT_EQ(figures.size(), 24U);
    EXPECT_EQ(rows.size(), figures.size());
    for (std::size_t i = 0; i < figures.size(); ++i) {
        const std::string told = i < rows.size() ? rows[i].join(" | ").toStdString() : "(no row)";
        EXPECT_EQ(told, tableRow(figures[i]).join(" | ").toStdString());
    }
}
