#pragma once

#include "platform/help/HelpBook.h"

#include <QWidget>

#include <memory>

class ContentsPane;
class HelpPage;
class IndexPane;
class QLabel;
class QSplitter;
class QTabWidget;
class QToolBar;
class QWindow;
class SearchPane;

/// The window that shows help files. It stands in no form's way and no form stands in its: it goes in front
/// of the window that asked for it, and moves on to a modal window that would block it. Closing it ends it.
class HelpWindow : public QWidget
{
public:
    HelpWindow();

    void setBook(std::shared_ptr<const HelpBook> shown);
    /// Shows the page of a topic, or the first page and a notice where the file has no such topic.
    void goToTopic(int topic);
    /// Comes to the front, before the window that asks.
    void showFor(QWidget& asking);

protected:
    bool event(QEvent* event) override;

private:
    QWidget* makePanes();
    void makeToolBar();
    void makeShortcuts();
    QAction* addCommand(const QString& name, const QString& text, const QList<QKeySequence>& keys,
                        const std::function<void()>& handler);
    void attachTo(QWindow* before);
    void placeBeside(const QWidget& asking);
    void openPage(const QString& reference, const QStringList& words);
    void pageHasChanged();
    void startSearch();
    void searchOn();
    void switchPanes();
    void print();

    std::shared_ptr<const HelpBook> book;
    QToolBar* tools;
    QTabWidget* tabs;
    ContentsPane* contents;
    IndexPane* index;
    SearchPane* search;
    HelpPage* page;
    QLabel* notice;
};
