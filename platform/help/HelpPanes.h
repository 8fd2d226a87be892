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

/// Opens a page of the help, with words to mark on it. Does nothing if the reference is empty.
using OpenHelpPage = std::function<void(const QString& reference, const QStringList& words)>;

/// The contents tree.
class ContentsPane : public QWidget
{
public:
    ContentsPane(const HelpBook& book, const OpenHelpPage& openPage);

    /// Selects the line of a page, if there is one.
    void showPage(const QString& page);

private:
    QTreeWidget* tree;
};

/// The index, with a field that leaves in the list what contains the text typed.
QWidget* makeIndexPane(const HelpBook& book, const OpenHelpPage& openPage);

/// The search through the text of all pages.
class SearchPane : public QWidget
{
public:
    SearchPane(std::shared_ptr<const HelpBook> book, const OpenHelpPage& openPage);

    void takeFocus();

private:
    void search();

    HelpSearch pages;
    QStringList words; // of the results shown
    QLineEdit* field;
    QLabel* summary;
    QListWidget* results;
};

} // namespace help
