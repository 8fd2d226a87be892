#pragma once

#include "platform/help/HelpBook.h"
#include "platform/help/HelpPanes.h"

#include <QWidget>

#include <memory>

class QAction;
class QLabel;
class QTabWidget;
class QToolBar;
class QWindow;

namespace help {

class HelpPage;

/// The window that shows a help file. It blocks no form, and no form blocks it: it stays in front of the
/// window that opened it, and of any modal window that would block it. Closing it deletes it.
class HelpWindow : public QWidget
{
public:
    explicit HelpWindow(std::shared_ptr<const HelpBook> shown);

    /// Shows the page of a topic, or the first page and a notice if the file has no such topic.
    void goToTopic(int topic);
    /// Brings the help window to the front of the window that asked for it.
    void showFor(QWidget& asking);

protected:
    bool event(QEvent* event) override;

private:
    struct Command;
    OpenHelpPage opener();
    void makeCommands();
    QAction* addCommand(const Command& command);
    void attachTo(QWindow* before);
    void placeBeside(const QWidget& asking);
    void openPage(const QString& reference, const QStringList& words);
    void pageHasChanged();
    void startSearch();
    void searchOn();
    void switchPanes();
    void resizeText(int change);
    void print();

    std::shared_ptr<const HelpBook> book;
    QToolBar* tools;
    QTabWidget* tabs;
    ContentsPane* contents;
    SearchPane* search;
    HelpPage* page;
    QLabel* notice;
};

} // namespace help
