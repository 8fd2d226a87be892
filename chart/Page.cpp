#include "chart/Page.h"

#include "chart/Choices.h"
#include "chart/Export.h"
#include "chart/States.h"
#include "platform/Desktop.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace chart {
namespace {

using Cells = std::vector<std::string>;

/// A table on paper, in columns as wide as their texts.
class PaperTable
{
public:
    PaperTable(const forms::TableContents& contents, const QFont& inFont, double pageWidth)
        : table(contents), font(inFont), metrics(inFont)
    {
        for (std::size_t column = 0; column < table.headings.size(); ++column)
            widths.push_back(widthOf(column));
        double all = 0;
        for (const double width : widths)
            all += width;
        scale = std::min(1.0, pageWidth / all);
    }

    double lineHeight() const { return metrics.height() * 1.25 * scale; }

    /// Paints the headings and as many rows.
    void paint(QPainter& painter, const QPointF& corner, std::size_t rows) const
    {
        painter.save();
        painter.translate(corner);
        painter.scale(scale, scale);
        painter.setFont(font);
        painter.setPen(Qt::black);
        const double line = metrics.height() * 1.25;
        paintHeadings(painter, line);
        for (std::size_t row = 0; row < rows; ++row)
            paintCells(painter, table.rows.at(row), static_cast<double>(row + 2) * line);
        painter.restore();
    }

private:
    double widthOf(std::size_t column) const
    {
        constexpr double gap = 14;
        double width = 0;
        for (const QString& part : QString::fromStdString(table.headings.at(column)).split(", "))
            width = std::max(width, metrics.horizontalAdvance(part));
        for (const Cells& row : table.rows)
            width = std::max(width, metrics.horizontalAdvance(QString::fromStdString(row.at(column))));
        return width + gap;
    }

    /// The unit is below the name.
    void paintHeadings(QPainter& painter, double line) const
    {
        Cells names;
        Cells units;
        for (const std::string& heading : table.headings) {
            const QStringList parts = QString::fromStdString(heading).split(", ");
            names.push_back(parts.front().toStdString());
            units.push_back(parts.size() > 1 ? parts.back().toStdString() : "");
        }
        paintCells(painter, names, 0);
        paintCells(painter, units, line * 0.8);
        double width = 0;
        for (const double column : widths)
            width += column;
        painter.drawLine(QPointF(0, line * 1.9), QPointF(width, line * 1.9));
    }

    void paintCells(QPainter& painter, const Cells& cells, double top) const
    {
        double left = 0;
        for (std::size_t column = 0; column < cells.size(); ++column) {
            const QRectF place(left, top, widths.at(column), metrics.height());
            const int side = column == 0 ? Qt::AlignLeft : Qt::AlignRight;
            painter.drawText(place, side | Qt::AlignVCenter, QString::fromStdString(cells.at(column)));
            left += widths.at(column);
        }
    }

    const forms::TableContents& table;
    QFont font;
    QFontMetricsF metrics;
    std::vector<double> widths;
    double scale = 1;
};

/// How many rows are printed, and the height that they need.
struct Portion
{
    std::size_t rows = 0;
    std::size_t leftOut = 0;
    double height = 0;
};

Portion portionOf(std::size_t allRows, double pageHeight, double line)
{
    constexpr double largestPart = 0.4; // of the page, for the table
    const auto fitting = static_cast<std::size_t>(std::max(0.0, pageHeight * largestPart / line - 4));
    Portion portion;
    portion.rows = std::min(allRows, fitting);
    portion.leftOut = allRows - portion.rows;
    portion.height = line * (static_cast<double>(portion.rows) + (portion.leftOut > 0 ? 3.3 : 2.3));
    return portion;
}

QFont tableFont()
{
    constexpr int pixels = 12;
    QFont font = PaperFont();
    font.setPixelSize(pixels);
    return font;
}

} // namespace

void PaintPage(QPainter& painter, const QSizeF& size, const View& view)
{
    const forms::TableContents states = StateTable(Choices::inForce().pins());
    const PaperTable table(states, tableFont(), size.width());
    const double line = table.lineHeight();
    const Portion portion = portionOf(states.rows.size(), size.height(), line);
    const double chartHeight = size.height() - portion.height - line;

    View ofChart = view;
    ofChart.hasPinTable = false;
    PaintOnPaper(painter, {size.width(), chartHeight}, ofChart);
    table.paint(painter, {0, chartHeight + line / 2}, portion.rows);
    painter.setFont(tableFont());
    painter.setPen(Qt::black);
    const QRectF page({0, 0}, size);
    painter.drawText(page, Qt::AlignRight | Qt::AlignTop, QString::fromStdString(ShortDate()));
    if (portion.leftOut > 0)
        painter.drawText(page, Qt::AlignLeft | Qt::AlignBottom,
                         QString("%1 more states are not shown.").arg(portion.leftOut));
}

} // namespace chart
