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

namespace {

constexpr int pageRole = Qt::UserRole;

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

/// A list whose lines open a page, by a click or by Enter.
QListWidget* makeList(const QString& name, const QString& accessibleName,
                      const std::function<void(const QString&)>& openPage)
{
    auto* const list = new QListWidget;
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    list->setUniformItemSizes(true);
    const auto open = [openPage](const QListWidgetItem* item) { openPage(item->data(pageRole).toString()); };
    QObject::connect(list, &QListWidget::itemClicked, list, open);
    QObject::connect(list, &QListWidget::itemActivated, list, open);
    return list;
}

QLineEdit* makeField(const QString& name, const QString& accessibleName)
{
    auto* const field = new QLineEdit;
    field->setObjectName(name);
    field->setAccessibleName(accessibleName);
    field->setClearButtonEnabled(true);
    field->setMaxLength(200);
    return field;
}

QString pageOf(const SitemapEntry& entry)
{
    return entry.targets.isEmpty() ? QString() : entry.targets[0].page;
}

/// Room for a line of a list or a tree with air around it.
QSize lineSize(const QWidget& list) { return {0, list.fontMetrics().height() + 9}; }

void addLine(QListWidget& list, const QString& text, const QString& page)
{
    auto* const item = new QListWidgetItem(text, &list);
    item->setData(pageRole, page);
    item->setToolTip(text);
    item->setSizeHint(lineSize(list));
}

} // namespace

ContentsPane::ContentsPane(OpenHelpPage openPage) : tree(new QTreeWidget)
{
    tree->setObjectName("helpContents");
    tree->setAccessibleName("Contents");
    tree->setHeaderHidden(true);
    tree->setUniformRowHeights(true);
    makeColumn(this)->addWidget(tree);
    setFocusProxy(tree);
    const auto open = [openPage = std::move(openPage)](const QTreeWidgetItem* item) {
        const QString page = item->data(0, pageRole).toString();
        if (!page.isEmpty())
            openPage(page, {});
    };
    connect(tree, &QTreeWidget::itemClicked, this, open);
    connect(tree, &QTreeWidget::itemActivated, this, open);
}

void ContentsPane::setBook(const HelpBook& book)
{
    tree->clear();
    QList<QTreeWidgetItem*> parents; // the last line of each level
    for (const SitemapEntry& entry : book.contents()) {
        parents.resize(std::min<qsizetype>(parents.size(), entry.level));
        auto* const item = new QTreeWidgetItem({entry.title});
        item->setData(0, pageRole, pageOf(entry));
        item->setToolTip(0, entry.title);
        item->setSizeHint(0, lineSize(*tree));
        if (parents.isEmpty())
            tree->addTopLevelItem(item);
        else
            parents.last()->addChild(item);
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

IndexPane::IndexPane(OpenHelpPage openPage)
    : field(makeField("helpIndexFilter", "Keyword")),
      list(makeList("helpIndex", "Keywords", [openPage = std::move(openPage)](const QString& page) {
          if (!page.isEmpty())
              openPage(page, {});
      }))
{
    auto* const column = makeColumn(this);
    column->addWidget(makeLabel("&Keyword", field));
    column->addWidget(field);
    column->addWidget(list);
    setFocusProxy(field);
    connect(field, &QLineEdit::textChanged, this, [this](const QString& text) { filter(text); });
    connect(field, &QLineEdit::returnPressed, list, [this] {
        if (list->currentItem() != nullptr && !list->currentItem()->isHidden())
            emit list->itemActivated(list->currentItem());
    });
}

void IndexPane::setBook(const HelpBook& book)
{
    field->clear();
    list->clear();
    for (const SitemapEntry& entry : book.index()) {
        const QString keyword = QString(qsizetype{4} * entry.level, ' ') + entry.title;
        if (entry.targets.size() <= 1)
            addLine(*list, keyword, pageOf(entry));
        for (qsizetype at = 0; at < entry.targets.size() && entry.targets.size() > 1; ++at) {
            const SitemapEntry::Target& target = entry.targets[at];
            addLine(*list, target.title.isEmpty() ? keyword : keyword + ": " + target.title, target.page);
        }
    }
}

void IndexPane::filter(const QString& text)
{
    QListWidgetItem* first = nullptr;
    for (int row = 0; row < list->count(); ++row) {
        QListWidgetItem* const item = list->item(row);
        item->setHidden(!item->text().contains(text.trimmed(), Qt::CaseInsensitive));
        if (first == nullptr && !item->isHidden())
            first = item;
    }
    list->setCurrentItem(first);
}

SearchPane::SearchPane(OpenHelpPage openPage)
    : field(makeField("helpSearchField", "Words to search for")),
      summary(new QLabel),
      results(
          makeList("helpSearchResults", "Pages found",
                   [this, openPage = std::move(openPage)](const QString& page) { openPage(page, words); }))
{
    auto* const button = new QPushButton("&Find");
    button->setObjectName("helpFind");
    button->setAutoDefault(false);
    summary->setObjectName("helpSearchSummary");
    summary->setWordWrap(true);
    summary->setText("Finds the pages that hold all the words.");

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

void SearchPane::setBook(std::shared_ptr<const HelpBook> book)
{
    pages = std::make_unique<HelpSearch>(std::move(book));
    field->clear();
    results->clear();
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
    for (const HelpSearch::Result& result : pages->find(words))
        addLine(*results, result.title, result.page);
    const int count = results->count();
    if (words.isEmpty())
        summary->setText("Finds the pages that hold all the words.");
    else
        summary->setText(count == 0 ? "No page holds all these words."
                                    : QString::number(count) + (count == 1 ? " page" : " pages"));
    if (count == 0)
        return;
    results->setCurrentRow(0);
    results->setFocus(Qt::OtherFocusReason);
}
