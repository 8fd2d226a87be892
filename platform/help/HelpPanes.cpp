#include "platform/help/HelpPanes.h"

#include "platform/help/HelpPage.h"
#include "platform/help/HelpSearch.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace help {
namespace {

constexpr int pageRole = Qt::UserRole;
constexpr int wordsRole = Qt::UserRole + 1; // to mark on the page
constexpr const char* searchHint = "Finds the pages that hold all the words.";

/// An empty pane that gives the focus to one of its parts.
QVBoxLayout* makePane(QWidget* focused)
{
    auto* const pane = new QWidget;
    pane->setFocusProxy(focused);
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

/// Adds a line below another, with some space above and below the text.
QTreeWidgetItem* addLine(QTreeWidgetItem* parent, const QString& text, const QString& page)
{
    auto* const line = new QTreeWidgetItem(parent, {text});
    line->setData(0, pageRole, page);
    line->setToolTip(0, text);
    line->setSizeHint(0, {0, line->treeWidget()->fontMetrics().height() + 9});
    return line;
}

/// Hides the lines that don't contain the text, and selects the first visible one.
void filter(QTreeWidget& list, const QString& text)
{
    list.setCurrentItem(nullptr);
    for (QTreeWidgetItemIterator line(&list); *line != nullptr; ++line) {
        (*line)->setHidden(!(*line)->text(0).contains(text.trimmed(), Qt::CaseInsensitive));
        if (list.currentItem() == nullptr && !(*line)->isHidden())
            list.setCurrentItem(*line);
    }
}

} // namespace

QLineEdit* MakeField(const QString& name, const QString& accessibleName)
{
    auto* const field = new QLineEdit;
    field->setObjectName(name);
    field->setAccessibleName(accessibleName);
    field->setClearButtonEnabled(true);
    field->setMaxLength(200);
    return field;
}

HelpPanes::HelpPanes(std::shared_ptr<const HelpBook> shown, HelpPage& beside)
    : book(std::move(shown)),
      page(beside),
      contents(makeList("helpContents", "Contents")),
      searchField(MakeField("helpSearchField", "Words to search for")),
      summary(new QLabel(searchHint)),
      results(makeList("helpSearchResults", "Pages found"))
{
    setObjectName("helpPanes");
    addContents();
    addIndex();
    addSearch();
}

/// A list or tree whose lines open a page on a click or Enter.
QTreeWidget* HelpPanes::makeList(const QString& name, const QString& accessibleName)
{
    auto* const list = new QTreeWidget;
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    list->setHeaderHidden(true);
    list->setUniformRowHeights(true);
    list->setRootIsDecorated(false);
    const auto open = [this](const QTreeWidgetItem* line) {
        page.open(line->data(0, pageRole).toString(), line->data(0, wordsRole).toStringList());
    };
    connect(list, &QTreeWidget::itemClicked, this, open);
    connect(list, &QTreeWidget::itemActivated, this, open);
    return list;
}

void HelpPanes::addContents()
{
    contents->setRootIsDecorated(true);
    QVBoxLayout* const column = makePane(contents);
    column->addWidget(contents);
    addTab(column->parentWidget(), "&Contents");
    QList<QTreeWidgetItem*> parents{contents->invisibleRootItem()}; // then the last line of each level
    for (const SitemapEntry& entry : book->contents()) {
        parents.resize(std::min<qsizetype>(parents.size(), entry.level + 1));
        parents.append(addLine(parents.last(), entry.title, entry.page));
    }
    contents->expandToDepth(0);
}

void HelpPanes::addIndex()
{
    auto* const field = MakeField("helpIndexFilter", "Keyword");
    auto* const list = makeList("helpIndex", "Keywords");
    QVBoxLayout* const column = makePane(field);
    column->addWidget(makeLabel("&Keyword", field));
    column->addWidget(field);
    column->addWidget(list);
    addTab(column->parentWidget(), "&Index");
    connect(field, &QLineEdit::textChanged, list, [list](const QString& text) { filter(*list, text); });
    connect(field, &QLineEdit::returnPressed, list, [list] {
        if (list->currentItem() != nullptr)
            emit list->itemActivated(list->currentItem(), 0);
    });
    for (const SitemapEntry& entry : book->index())
        addLine(list->invisibleRootItem(), QString(qsizetype{4} * entry.level, ' ') + entry.title,
                entry.page);
}

void HelpPanes::addSearch()
{
    auto* const button = new QPushButton("&Find");
    button->setObjectName("helpFind");
    button->setAutoDefault(false);
    summary->setObjectName("helpSearchSummary");
    summary->setWordWrap(true);
    auto* const line = new QHBoxLayout;
    line->addWidget(searchField);
    line->addWidget(button);
    QVBoxLayout* const column = makePane(searchField);
    column->addWidget(makeLabel("&Words", searchField));
    column->addLayout(line);
    column->addWidget(summary);
    column->addWidget(results);
    addTab(column->parentWidget(), "&Search");
    connect(button, &QPushButton::clicked, this, &HelpPanes::search);
    connect(searchField, &QLineEdit::returnPressed, this, &HelpPanes::search);
}

void HelpPanes::showPage(const QString& name)
{
    const auto isItsOwn = [&name](const QTreeWidgetItem* line) {
        const QString reference = line->data(0, pageRole).toString();
        return !name.isEmpty() && reference.section('#', 0, 0).compare(name, Qt::CaseInsensitive) == 0;
    };
    QTreeWidgetItem* shown = contents->currentItem();
    if (shown == nullptr || !isItsOwn(shown)) {
        QTreeWidgetItemIterator line(contents);
        while (*line != nullptr && !isItsOwn(*line))
            ++line;
        shown = *line;
    }
    contents->setCurrentItem(shown);
    if (shown != nullptr)
        shown->setExpanded(true);
}

void HelpPanes::startSearch()
{
    setCurrentIndex(count() - 1);
    searchField->setFocus(Qt::ShortcutFocusReason);
    searchField->selectAll();
}

void HelpPanes::search()
{
    const QStringList words = SearchWords(searchField->text());
    results->clear();
    for (const FoundPage& found : FindPages(*book, words))
        addLine(results->invisibleRootItem(), found.title, found.page)->setData(0, wordsRole, words);
    const int count = results->topLevelItemCount();
    if (words.isEmpty())
        summary->setText(searchHint);
    else
        summary->setText(count == 0 ? "No page holds all these words."
                                    : QString::number(count) + (count == 1 ? " page" : " pages"));
    if (count == 0)
        return;
    results->setCurrentItem(results->topLevelItem(0));
    emit results->itemActivated(results->currentItem(), 0);
    results->setFocus(Qt::OtherFocusReason);
}

} // namespace help
