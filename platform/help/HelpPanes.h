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

/// Opens a page of the help, with words to mark on it.
using OpenHelpPage = std::function<void(const QString& reference, const QStringList& words)>;

/// The contents tree.
class ContentsPane : public QWidget
{
public:
    explicit ContentsPane(OpenHelpPage openPage);

    void setBook(const HelpBook& book);
    /// Selects the line of a page, where there is one.
    void showPage(const QString& page);

private:
    QTreeWidget* tree;
};

/// The index, with a field that leaves in the list what contains the text typed.
class IndexPane : public QWidget
{
public:
    explicit IndexPane(OpenHelpPage openPage);

    void setBook(const HelpBook& book);

private:
    void filter(const QString& text);

    QLineEdit* field;
    QListWidget* list;
};

/// The search through the text of all pages.
class SearchPane : public QWidget
{
public:
    explicit SearchPane(OpenHelpPage openPage);

    void setBook(std::shared_ptr<const HelpBook> book);
    void takeFocus();

private:
    void search();

    std::unique_ptr<HelpSearch> pages;
    QStringList words; // of the results shown
    QLineEdit* field;
    QLabel* summary;
    QListWidget* results;
};
