#pragma once

#include "platform/help/HelpBook.h"
#include "platform/help/HelpPanes.h"

#include <QKeySequence>
#include <QWidget>

#include <functional>
#include <memory>

class HelpPage;
class QAction;
class QLabel;
class QTabWidget;
class QToolBar;
class QWindow;

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
    OpenHelpPage opener();
    void makeToolBar();
    void makeShortcuts();
    QAction* addCommand(const QString& name, const QString& text, const QKeySequence& key,
                        const std::function<void()>& handler);
    QAction* addButton(const QString& name, const QString& text, const char* label, const QKeySequence& key,
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
    QAction* back = nullptr;
    QAction* forward = nullptr;
    QTabWidget* tabs;
    ContentsPane* contents;
    IndexPane* index;
    SearchPane* search;
    HelpPage* page;
    QLabel* notice;
};
