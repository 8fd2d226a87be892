#pragma once

#include "platform/help/HelpBook.h"

#include <QTabWidget>

#include <memory>

class QLabel;
class QLineEdit;
class QTreeWidget;

namespace help {

class HelpPage;

/// A field for a search text.
QLineEdit* MakeField(const QString& name, const QString& accessibleName);

/// The contents tree, the index with a field that filters it, and the full-text search. They open pages in
/// the view beside them.
class HelpPanes : public QTabWidget
{
public:
    HelpPanes(std::shared_ptr<const HelpBook> shown, HelpPage& beside);

    /// Selects the line of a page in the contents, if it has one.
    void showPage(const QString& name);
    void startSearch();

private:
    QTreeWidget* makeList(const QString& name, const QString& accessibleName);
    void addContents();
    void addIndex();
    void addSearch();
    void search();

    std::shared_ptr<const HelpBook> book;
    HelpPage& page;
    QTreeWidget* contents;
    QLineEdit* searchField;
    QLabel* summary;
    QTreeWidget* results;
};

} // namespace help
