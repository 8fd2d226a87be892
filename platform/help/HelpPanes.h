#pragma once

#include "platform/help/HelpBook.h"

#include <QStringList>
#include <QTabWidget>

#include <functional>
#include <memory>

class QLabel;
class QLineEdit;
class QTreeWidget;

namespace help {

/// Opens a help page and marks words on it. A no-op if the reference is empty.
using OpenHelpPage = std::function<void(const QString& reference, const QStringList& words)>;

/// The contents tree, the index with a field that filters it, and the full-text search.
class HelpPanes : public QTabWidget
{
public:
    HelpPanes(std::shared_ptr<const HelpBook> shown, OpenHelpPage opener);

    /// Selects the line of a page in the contents, if it has one.
    void showPage(const QString& page);
    void startSearch();

private:
    QTreeWidget* makeList(const QString& name, const QString& accessibleName);
    void addContents();
    void addIndex();
    void addSearch();
    void search();

    std::shared_ptr<const HelpBook> book;
    OpenHelpPage openPage;
    QTreeWidget* contents;
    QLineEdit* searchField;
    QLabel* summary;
    QTreeWidget* results;
};

} // namespace help
