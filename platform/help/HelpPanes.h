#pragma once

#include "platform/help/HelpBook.h"
#include "platform/help/HelpSearch.h"

#include <QStringList>
#include <QWidget>

#include <functional>
#include <memory>

class QLabel;
class QLineEdit;
class QListWidget;
class QTreeWidget;

namespace help {

/// Opens a help page and marks words on it. A no-op if the reference is empty.
using OpenHelpPage = std::function<void(const QString& reference, const QStringList& words)>;

/// The contents tree.
class ContentsPane : public QWidget
{
public:
    ContentsPane(const HelpBook& book, const OpenHelpPage& openPage);

    /// Selects the line of a page, if it has one.
    void showPage(const QString& page);

private:
    QTreeWidget* tree;
};

/// The index, with a field that filters it by the typed text.
QWidget* makeIndexPane(const HelpBook& book, const OpenHelpPage& openPage);

/// The full-text search.
class SearchPane : public QWidget
{
public:
    SearchPane(std::shared_ptr<const HelpBook> book, const OpenHelpPage& openPage);

    void takeFocus();

private:
    void search();

    HelpSearch pages;
    QStringList words; // of the current results
    QLineEdit* field;
    QLabel* summary;
    QListWidget* results;
};

} // namespace help
