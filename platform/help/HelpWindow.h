#pragma once

#include "platform/help/HelpBook.h"

#include <QWidget>

#include <functional>
#include <memory>

class QAction;
class QLabel;
class QLineEdit;
class QToolBar;
class QWindow;

namespace help {

class HelpPage;
class HelpPanes;

/// The window that shows a help file. It blocks no form, and no form blocks it: it stays in front of the
/// window that opened it, and of any modal window that would block it. Closing it deletes it.
class HelpWindow : public QWidget
{
public:
    explicit HelpWindow(std::shared_ptr<const HelpBook> shown);

    /// Shows the page of a topic, or the first page and a notice if the file has no such topic.
    void goToTopic(int topic);
    void goToPage(const QString& name);
    /// Brings the help window to the front of the window that asked for it.
    void showFor(QWidget& asking);

protected:
    bool event(QEvent* event) override;

private:
    void makeCommands();
    void makeFindCommands();
    QAction* addCommand(const QString& name, const QString& label, const QString& text,
                        const QKeySequence& key, const std::function<void()>& handler);
    void attachTo(QWindow* before);
    void placeBeside(const QWidget& asking);
    void find();
    void print();

    std::shared_ptr<const HelpBook> book;
    QToolBar* tools;
    HelpPage* page;
    HelpPanes* panes;
    QLineEdit* findField;
    QLabel* notice;
};

} // namespace help
