#include "chart/PinTable.h"

#include "chart/Runs.h"
#include "chart/Texts.h"

#include <algorithm>

namespace chart {
namespace {

constexpr double columnGap = 10;
constexpr double mostOfPicture = 0.3;

/// The names of the calculators are too wide for a column.
QString shortName(const QString& name)
{
    if (name == "Relative humidity")
        return "Rel. hum.";
    if (name == "Humidity ratio")
        return "Hum. ratio";
    return name == "Specific volume" ? QString("Volume") : name;
}

} // namespace

PinTable::PinTable(const Air& air, const View& view, const Lettering& inLetters) : letters(inLetters)
{
    QString letter = "A";
    for (const Place& pin : view.pins) {
        QStringList names{""};
        QStringList units{""};
        QStringList cells{letter};
        for (const Figure& figure : FiguresOf(ReadingAt(air, pin))) {
            names << shortName(figure.name);
            units << figure.unit;
            cells << figure.value;
        }
        head = {names, units};
        rows.push_back(cells);
        letter = NextLetter(letter);
    }
}

std::size_t PinTable::rowsIn(double height) const
{
    const double fitting = height / lineHeight() - static_cast<double>(head.size());
    return std::min(rows.size(), static_cast<std::size_t>(std::max(fitting + 0.01, 0.0)));
}

double PinTable::height(double ofPicture) const
{
    const std::size_t shown = rowsIn(ofPicture * mostOfPicture);
    return shown == 0 ? 0 : static_cast<double>(head.size() + shown) * lineHeight() + letters.height() / 2;
}

std::vector<double> PinTable::columnWidths() const
{
    std::vector<double> widths(static_cast<std::size_t>(head.front().size()), 0.0);
    const auto widen = [&](const QStringList& row) {
        for (std::size_t column = 0; column < widths.size(); ++column)
            widths[column] =
                std::max(widths[column], letters.label(row[static_cast<int>(column)]).size.width());
    };
    std::for_each(head.begin(), head.end(), widen);
    std::for_each(rows.begin(), rows.end(), widen);
    return widths;
}

std::vector<Label> PinTable::within(const QRectF& area) const
{
    std::vector<Label> cells;
    const std::size_t shown = rowsIn(area.height());
    if (shown == 0)
        return cells;
    std::vector<QStringList> lines = head;
    lines.insert(lines.end(), rows.end() - static_cast<std::ptrdiff_t>(shown), rows.end());
    const std::vector<double> widths = columnWidths();
    double y = area.top() + letters.height() / 2;
    for (const QStringList& line : lines) {
        double right = area.left();
        for (std::size_t column = 0; column < widths.size(); ++column) {
            Label cell = letters.label(line[static_cast<int>(column)]);
            right += widths[column] + (column == 0 ? 0 : columnGap);
            cell.center = {right - cell.size.width() / 2, y};
            if (!cell.text.isEmpty() && right <= area.right())
                cells.push_back(std::move(cell));
        }
        y += lineHeight();
    }
    return cells;
}

} // namespace chart
