#include "platform/forms/Table.h"

#include "platform/forms/Form.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTableWidget>

#include <set>

namespace forms {

namespace {

class TableView : public QTableWidget
{
public:
    explicit TableView(QWidget* parent) : QTableWidget(parent)
    {
        setEditTriggers(NoEditTriggers);
        setTabKeyNavigation(false); // the tab key leaves the table
        verticalHeader()->hide();
        horizontalHeader()->setHighlightSections(false);
        setContextMenuPolicy(Qt::ActionsContextMenu);
        auto* const copying = new QAction("&Copy", this);
        copying->setObjectName("mnuCopyCells");
        connect(copying, &QAction::triggered, this, [this] { copy(); });
        addAction(copying);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->matches(QKeySequence::Copy))
            copy();
        else
            QTableWidget::keyPressEvent(event);
    }

private:
    void copy() const
    {
        const TableContents part = selected();
        if (!part.rows.empty())
            QGuiApplication::clipboard()->setText(QString::fromStdString(TabSeparated(part)));
    }

    /// The rows and columns with selected cells. The others among them are empty.
    TableContents selected() const
    {
        std::set<int> rows;
        std::set<int> columns;
        for (const QModelIndex& cell : selectedIndexes()) {
            rows.insert(cell.row());
            columns.insert(cell.column());
        }
        TableContents part;
        for (const int column : columns)
            part.headings.push_back(
                horizontalHeaderItem(column)->data(Qt::AccessibleTextRole).toString().toStdString());
        for (const int row : rows) {
            std::vector<std::string>& cells = part.rows.emplace_back();
            for (const int column : columns)
                cells.push_back(item(row, column)->isSelected() ? textAt(row, column) : "");
        }
        return part;
    }

    std::string textAt(int row, int column) const { return item(row, column)->text().toStdString(); }
};

TableView* asView(const Table* table) { return static_cast<TableView*>(table->widget()); }

/// Broken at the blank nearest to the middle.
QString inTwoLines(QString text)
{
    const auto middle = text.size() / 2;
    const auto before = text.lastIndexOf(' ', middle);
    const auto after = text.indexOf(' ', middle);
    const bool isBefore = after < 0 || (before >= 0 && middle - before < after - middle);
    const auto blank = isBefore ? before : after;
    if (blank >= 0)
        text[blank] = '\n';
    return text;
}

QTableWidgetItem* heading(const std::string& text)
{
    const QString all = QString::fromStdString(text);
    auto* const item = new QTableWidgetItem(inTwoLines(all));
    item->setData(Qt::AccessibleTextRole, all);
    return item;
}

QTableWidgetItem* cell(const std::string& text, bool isName)
{
    auto* const item = new QTableWidgetItem(QString::fromStdString(text));
    item->setTextAlignment(isName ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

} // namespace

std::string TabSeparated(const TableContents& table)
{
    std::string text;
    const auto addLine = [&text](const std::vector<std::string>& cells) {
        for (std::size_t place = 0; place < cells.size(); ++place)
            text += (place > 0 ? "\t" : "") + cells[place];
        text += '\n';
    };
    addLine(table.headings);
    for (const std::vector<std::string>& row : table.rows)
        addLine(row);
    return text;
}

Table::Table(Form& owner, const std::string& name) : Control(owner, new TableView(owner.area()), name) {}

void Table::show(const TableContents& contents)
{
    if (contents == shown)
        return;
    shown = contents;
    TableView& view = *asView(this);
    view.clear();
    view.setColumnCount(static_cast<int>(shown.headings.size()));
    view.setRowCount(static_cast<int>(shown.rows.size()));
    for (int column = 0; column < view.columnCount(); ++column) {
        view.setHorizontalHeaderItem(column, heading(shown.headings.at(static_cast<std::size_t>(column))));
        for (int row = 0; row < view.rowCount(); ++row) {
            const auto& cells = shown.rows.at(static_cast<std::size_t>(row));
            view.setItem(row, column, cell(cells.at(static_cast<std::size_t>(column)), column == 0));
        }
    }
    view.resizeColumnsToContents();
    view.resizeRowsToContents();
}

} // namespace forms
