#include "chart/CrossHair.h"

#include "chart/Texts.h"

namespace chart {
namespace {

constexpr double margin = 4;
constexpr double away = 14; // from the cross hair to the panel

struct Row
{
    Label name;
    Label figure;
};

std::vector<Row> rowsOf(const Layout& chart, const Lettering& letters, const Place& place)
{
    std::vector<Row> rows;
    for (const Figure& figure : FiguresOf(ReadingAt(chart.air, place)))
        rows.push_back({letters.label(figure.name), letters.label(figure.value + " " + figure.unit)});
    return rows;
}

QSizeF sizeOf(const std::vector<Row>& rows, const Lettering& letters)
{
    double names = 0;
    double figures = 0;
    for (const Row& row : rows) {
        names = std::max(names, row.name.size.width());
        figures = std::max(figures, row.figure.size.width());
    }
    return {names + figures + 3 * margin, static_cast<double>(rows.size()) * letters.height() + 2 * margin};
}

/// On the side of the cross hair with more space, within the picture.
QRectF panelAt(const QPointF& point, const QSizeF& size, const Layout& chart)
{
    const QPointF middle = chart.plane.plot.center();
    const double x = point.x() > middle.x() ? point.x() - away - size.width() : point.x() + away;
    const double y = point.y() > middle.y() ? point.y() - away - size.height() : point.y() + away;
    return {std::clamp(x, 0.0, std::max(0.0, chart.size.width() - size.width())),
            std::clamp(y, 0.0, std::max(0.0, chart.size.height() - size.height())), size.width(),
            size.height()};
}

} // namespace

void AddCrossHair(Layout& chart, const Lettering& letters)
{
    const Plane& plane = chart.plane;
    if (!chart.view.crossHair || !plane.holds(*chart.view.crossHair))
        return;
    const Place& place = *chart.view.crossHair;
    constexpr double far = 2000; // degrees, beyond every plot
    const Span& span = plane.span;
    for (const QLineF& whole : {QLineF(plane.at(-far, place.W), plane.at(far, place.W)),
                                QLineF(plane.at(place.Tdb, span.w.low), plane.at(place.Tdb, span.w.high))}) {
        if (const std::optional<QLineF> line = Within(plane.plot, whole))
            chart.crossHair.push_back(*line);
    }
    const std::vector<Row> rows = rowsOf(chart, letters, place);
    const QRectF panel = panelAt(plane.at(place), sizeOf(rows, letters), chart);
    chart.crossHairPanel = panel;
    double y = panel.top() + margin + letters.height() / 2;
    for (Row row : rows) {
        row.name.center = {panel.left() + margin + row.name.size.width() / 2, y};
        row.figure.center = {panel.right() - margin - row.figure.size.width() / 2, y};
        chart.crossHairReading.insert(chart.crossHairReading.end(), {row.name, row.figure});
        y += letters.height();
    }
}

} // namespace chart
