#include "platform/help/HelpPanes.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <utility>

namespace help {

namespace {

constexpr int pageRole = Qt::UserRole;
constexpr const char* searchHint = "Finds the pages that hold all the words.";

QVBoxLayout* makeColumn(QWidget* pane)
{
    auto* const column = new QVBoxLayout(pane);
    column->setContentsMargins(10, 12, 10, 10);
    column->setSpacing(8);
    return column;
}

QLabel* makeLabel(const QString& text, QWidget* buddy)
{
    auto* const label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

template <class Widget>
Widget* makeNamed(const QString& name, const QString& accessibleName)
{
    auto* const widget = new Widget;
    widget->setObjectName(name);
    widget->setAccessibleName(accessibleName);
    return widget;
}

/// A list whose lines open a page on a click or Enter.
QListWidget* makeList(const QString& name, const QString& accessibleName,
                      const std::function<void(const QString&)>& openPage)
{
    auto* const list = makeNamed<QListWidget>(name, accessibleName);
    list->setUniformItemSizes(true);
    const auto open = [openPage](const QListWidgetItem* item) { openPage(item->data(pageRole).toString()); };
    QObject::connect(list, &QListWidget::itemClicked, list, open);
    QObject::connect(list, &QListWidget::itemActivated, list, open);
    return list;
}

QLineEdit* makeField(const QString& name, const QString& accessibleName)
{
    auto* const field = makeNamed<QLineEdit>(name, accessibleName);
    field->setClearButtonEnabled(true);
    field->setMaxLength(200);
    return field;
}

/// Line size for a list or tree, with some space above and below the text.
QSize lineSize(const QWidget& list) { return {0, list.fontMetrics().height() + 9}; }

void addLine(QListWidget& list, const QString& text, const QString& page)
{
    auto* const item = new QListWidgetItem(text, &list);
    item->setData(pageRole, page);
    item->setToolTip(text);
    item->setSizeHint(lineSize(list));
}

/// Hides the lines that don't contain the text, and selects the first visible one.
void filter(QListWidget& list, const QString& text)
{
    QListWidgetItem* first = nullptr;
    for (int row = 0; row < list.count(); ++row) {
        QListWidgetItem* const item = list.item(row);
        item->setHidden(!item->text().contains(text.trimmed(), Qt::CaseInsensitive));
        if (first == nullptr && !item->isHidden())
            first = item;
    }
    list.setCurrentItem(first);
}

} // namespace

ContentsPane::ContentsPane(const HelpBook& book, const OpenHelpPage& openPage)
    : tree(makeNamed<QTreeWidget>("helpContents", "Contents"))
{
    tree->setHeaderHidden(true);
    tree->setUniformRowHeights(true);
    makeColumn(this)->addWidget(tree);
    setFocusProxy(tree);
    const auto open = [openPage](const QTreeWidgetItem* item) {
        openPage(item->data(0, pageRole).toString(), {});
    };
    connect(tree, &QTreeWidget::itemClicked, this, open);
    connect(tree, &QTreeWidget::itemActivated, this, open);

    QList<QTreeWidgetItem*> parents{tree->invisibleRootItem()}; // the root, then the last line of each level
    for (const SitemapEntry& entry : book.contents()) {
        parents.resize(std::min<qsizetype>(parents.size(), entry.level + 1));
        auto* const item = new QTreeWidgetItem(parents.last(), {entry.title});
        item->setData(0, pageRole, entry.page);
        item->setToolTip(0, entry.title);
        item->setSizeHint(0, lineSize(*tree));
        parents.append(item);
    }
    tree->expandToDepth(0);
}

void ContentsPane::showPage(const QString& page)
{
    const auto isItsOwn = [&page](const QTreeWidgetItem* item) {
        const QString reference = item->data(0, pageRole).toString();
        return !page.isEmpty() && reference.section('#', 0, 0).compare(page, Qt::CaseInsensitive) == 0;
    };
    QTreeWidgetItem* shown = tree->currentItem();
    if (shown == nullptr || !isItsOwn(shown)) {
        QTreeWidgetItemIterator line(tree);
        while (*line != nullptr && !isItsOwn(*line))
            ++line;
        shown = *line;
    }
    tree->setCurrentItem(shown);
    if (shown != nullptr)
        shown->setExpanded(true);
}

QWidget* makeIndexPane(const HelpBook& book, const OpenHelpPage& openPage)
{
    auto* const field = makeField("helpIndexFilter", "Keyword");
    auto* const list =
        makeList("helpIndex", "Keywords", [openPage](const QString& page) { openPage(page, {}); });
    auto* const pane = new QWidget;
    auto* const column = makeColumn(pane);
    column->addWidget(makeLabel("&Keyword", field));
    column->addWidget(field);
    column->addWidget(list);
    pane->setFocusProxy(field);
    QObject::connect(field, &QLineEdit::textChanged, list,
                     [list](const QString& text) { filter(*list, text); });
    QObject::connect(field, &QLineEdit::returnPressed, list, [list] {
        if (list->currentItem() != nullptr)
            emit list->itemActivated(list->currentItem());
    });
    for (const SitemapEntry& entry : book.index())
        addLine(*list, QString(qsizetype{4} * entry.level, ' ') + entry.title, entry.page);
    return pane;
}

SearchPane::SearchPane(std::shared_ptr<const HelpBook> book, const OpenHelpPage& openPage)
    : pages(std::move(book)),
      field(makeField("helpSearchField", "Words to search for")),
      summary(new QLabel(searchHint)),
      results(makeList("helpSearchResults", "Pages found",
                       [this, openPage](const QString& page) { openPage(page, words); }))
{
    auto* const button = new QPushButton("&Find");
    button->setObjectName("helpFind");
    button->setAutoDefault(false);
    summary->setObjectName("helpSearchSummary");
    summary->setWordWrap(true);

    auto* const line = new QHBoxLayout;
    line->addWidget(field);
    line->addWidget(button);
    auto* const column = makeColumn(this);
    column->addWidget(makeLabel("&Words", field));
    column->addLayout(line);
    column->addWidget(summary);
    column->addWidget(results);
    setFocusProxy(field);
    connect(button, &QPushButton::clicked, this, [this] { search(); });
    connect(field, &QLineEdit::returnPressed, this, [this] { search(); });
}

void SearchPane::takeFocus()
{
    field->setFocus(Qt::ShortcutFocusReason);
    field->selectAll();
}

void SearchPane::search()
{
    words = SearchWords(field->text());
    results->clear();
    for (const HelpSearch::Result& result : pages.find(words))
        addLine(*results, result.title, result.page);
    const int count = results->count();
    if (words.isEmpty())
        summary->setText(searchHint);
    else
        summary->setText(count == 0 ? "No page holds all these words."
                                    : QString::number(count) + (count == 1 ? " page" : " pages"));
    if (count == 0)
        return;
    results->setCurrentRow(0);
    results->setFocus(Qt::OtherFocusReason);
}

} // namespace help
