#include "chart/States.h"

#include "chart/Runs.h"
#include "chart/Texts.h"
#include "core/NumberPicture.h"
#include "core/StandardAtmosphere.h"
#include "core/StatePoint.h"

namespace chart {
namespace {

std::vector<std::string> rowOf(const QString& name, const Reading& reading)
{
    std::vector<std::string> cells{name.toStdString()};
    for (const Figure& figure : FiguresOf(reading))
        cells.push_back(figure.value.toStdString());
    cells.push_back(PressureText(reading.P).section(' ', 0, 0).toStdString());
    return cells;
}

std::vector<std::string> headings()
{
    std::vector<std::string> cells{"State"};
    for (const Figure& figure : FiguresOf({}))
        cells.push_back((figure.name + ", " + figure.unit).toStdString());
    cells.emplace_back(IsMetric() ? "Pressure, kPa" : "Pressure, psi");
    return cells;
}

} // namespace

forms::TableContents StateTable(const std::vector<Place>& pins)
{
    forms::TableContents table{.headings = headings(), .rows = {}};
    int number = 0;
    for (const Run& run : ShownRuns()) {
        for (const RunState& state : run.states) {
            const QString name = QString("%1 %2, %3")
                                     .arg(++number)
                                     .arg(TitleOf(run.calculator))
                                     .arg(QString::fromStdString(state.name));
            table.rows.push_back(rowOf(name, ReadingAt(Air(state.P), {state.Tdb, state.W})));
        }
    }
    QString letter;
    for (const Place& pin : pins) {
        letter = letter.isEmpty() ? "A" : NextLetter(letter);
        table.rows.push_back(rowOf(letter + " Pin", ReadingAt(Air::inForce(), pin)));
    }
    return table;
}

QString ChartTitle()
{
    const Single pressure = Air::inForce().pressure();
    QString title = QString("Psychrometric chart, %1 units, %2")
                        .arg(IsMetric() ? "Metric (SI)" : "English (I-P)", PressureText(pressure));
    if (pressure > 0) {
        const double altitude = StandardAltitude(IsMetric() ? pressure / 1000.0 : pressure, IsMetric());
        title += QString(", altitude %1 %2")
                     .arg(QString::fromStdString(FormatNumber(TaggedNumber(altitude), "#,##0")),
                          IsMetric() ? "m" : "ft");
    }
    return title;
}

} // namespace chart
