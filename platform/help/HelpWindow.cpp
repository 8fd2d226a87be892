#include "platform/help/HelpWindow.h"

#include "platform/PrintServer.h"
#include "platform/help/HelpPage.h"
#include "platform/help/HelpPanes.h"
#include "platform/help/HelpSearch.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QSplitter>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>

#include <utility>

namespace help {

constexpr QSize usualSize(980, 680);

HelpWindow::HelpWindow(std::shared_ptr<const HelpBook> shown)
    : QWidget(nullptr, Qt::Window),
      book(std::move(shown)),
      tools(new QToolBar),
      page(new HelpPage(book, this)),
      panes(new HelpPanes(book, *page)),
      findField(MakeField("helpFindField", "Words to find on this page")),
      notice(new QLabel)
{
    setObjectName("HelpWindow");
    setWindowTitle(book->title().isEmpty() ? "Help" : book->title() + " Help");
    setAttribute(Qt::WA_DeleteOnClose);
    notice->setObjectName("helpNotice");
    notice->hide();
    notice->setContentsMargins(12, 6, 12, 6);
    findField->setPlaceholderText(findField->accessibleName());
    findField->hide();

    auto* const sides = new QSplitter;
    sides->addWidget(panes);
    sides->addWidget(page);
    sides->setStretchFactor(1, 1);
    sides->setSizes({290, 690});
    sides->setChildrenCollapsible(false);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(tools);
    column->addWidget(sides, 1);
    column->addWidget(findField);
    column->addWidget(notice);
    makeCommands();
    makeFindCommands();
    connect(page, &QTextBrowser::sourceChanged, this, [this] {
        notice->hide();
        panes->showPage(page->pageName());
    });
    connect(page, &QTextBrowser::highlighted, this, [this](const QUrl& link) {
        page->viewport()->setToolTip(link.scheme() == "help" ? QString() : link.toDisplayString());
    });
    resize(usualSize);
}

void HelpWindow::makeCommands()
{
    QAction* const back =
        addCommand("helpBack", "\u2190 Back", "Back", Qt::ALT | Qt::Key_Left, [this] { page->backward(); });
    QAction* const forward = addCommand("helpForward", "Forward \u2192", "Forward", Qt::ALT | Qt::Key_Right,
                                        [this] { page->forward(); });
    addCommand("helpHome", "Home", "Home", Qt::ALT | Qt::Key_Home, [this] { page->open(book->homePage()); });
    tools->addSeparator();
    const auto larger = [this] { page->resizeText(1); };
    addCommand("helpSmaller", "A\u2212", "Smaller text", Qt::CTRL | Qt::Key_Minus,
               [this] { page->resizeText(-1); });
    addCommand("helpNormal", "A", "Normal text", Qt::CTRL | Qt::Key_0, [this] { page->resizeText(0); });
    addCommand("helpLarger", "A+", "Larger text", Qt::CTRL | Qt::Key_Plus, larger);
    tools->addSeparator();
    QAction* const copy =
        addCommand("helpCopy", "Copy", "Copy", QKeySequence::Copy, [this] { page->copy(); });
    addCommand("helpPrint", "Print", "Print", QKeySequence::Print, [this] { print(); });

    addCommand("helpLargerToo", {}, "Larger text", Qt::CTRL | Qt::Key_Equal, larger); // + without Shift
    addCommand("helpSwitchPanes", {}, "Switch panes", Qt::Key_F6, [this] {
        QWidget* const there = page->hasFocus() ? panes->currentWidget() : page;
        there->setFocus(Qt::ShortcutFocusReason);
    });

    copy->setEnabled(false); // the page tells of changes only
    connect(page, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(page, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(page, &QTextBrowser::copyAvailable, copy, &QAction::setEnabled);
}

void HelpWindow::makeFindCommands()
{
    addCommand("helpFindOnPage", {}, "Find on this page", QKeySequence::Find, [this] {
        findField->show();
        findField->setFocus(Qt::ShortcutFocusReason);
        findField->selectAll();
    });
    addCommand("helpSearch", {}, "Search", Qt::CTRL | Qt::SHIFT | Qt::Key_F,
               [this] { panes->startSearch(); });
    addCommand("helpSearchOn", {}, "Search on", Qt::Key_F3, [this] {
        if (page->goToNextMark())
            return;
        if (findField->isVisible())
            find();
        else
            panes->startSearch();
    });
    addCommand("helpClose", {}, "Close", Qt::Key_Escape, [this] {
        if (!findField->isVisible()) {
            close();
            return;
        }
        findField->clear(); // and the marks
        findField->hide();
        page->setFocus(Qt::OtherFocusReason);
    });
    connect(findField, &QLineEdit::returnPressed, this, &HelpWindow::find);
    connect(findField, &QLineEdit::textChanged, this, [this] {
        page->markWords({});
        find();
    });
}

/// Adds a command with a key, and with a tool bar button if it has a label. The label is text, not an icon:
/// every desktop can show it.
QAction* HelpWindow::addCommand(const QString& name, const QString& label, const QString& text,
                                const QKeySequence& key, const std::function<void()>& handler)
{
    QWidget& place = label.isEmpty() ? static_cast<QWidget&>(*this) : *tools;
    QAction* const action = place.addAction(text, key, this, handler);
    action->setObjectName(name);
    if (!label.isEmpty()) {
        action->setIconText(label);
        action->setToolTip(text + " (" + key.toString(QKeySequence::NativeText) + ")");
        tools->widgetForAction(action)->setAccessibleName(text);
    }
    return action;
}

void HelpWindow::goToTopic(int topic)
{
    const QString wanted = book->pageOfTopic(topic);
    goToPage(wanted.isEmpty() ? book->homePage() : wanted);
    notice->setText("This help has no topic " + QString::number(topic) + ". Here is its first page.");
    notice->setVisible(wanted.isEmpty());
}

void HelpWindow::goToPage(const QString& name)
{
    page->open(name);
    notice->hide();
}

/// Marks the words of the find field on the page, or goes to the next mark if they are marked already.
void HelpWindow::find()
{
    const QStringList words = SearchWords(findField->text());
    if (page->markedWords() == words)
        page->goToNextMark();
    else
        page->markWords(words);
    notice->setText("This page has none of these words.");
    notice->setVisible(!words.isEmpty() && page->marks() == 0);
}

void HelpWindow::print()
{
    AskPrintServer();
    if (!isVisible())
        return; // closed meanwhile
    const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    auto* const dialog = new QPrintDialog(printer.get(), this);
    dialog->setObjectName("PrintDialog");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, printer] { page->print(*printer); });
    dialog->open();
}

void HelpWindow::showFor(QWidget& asking)
{
    const bool isFresh = !isVisible();
    winId(); // creates the native window, which must stay in front of the other
    attachTo(asking.window()->windowHandle());
    if (isFresh)
        placeBeside(asking);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    page->setFocus(Qt::OtherFocusReason);
}

/// Makes this window transient for another and thus in front of it. If the other is modal, it then doesn't
/// block this one.
void HelpWindow::attachTo(QWindow* before)
{
    QWindow* const own = windowHandle();
    for (QWindow* window = before; window != nullptr; window = window->transientParent()) {
        if (window->transientParent() == own)
            window->setTransientParent(nullptr); // avoids a cycle of transient parents
    }
    own->setTransientParent(before);
}

void HelpWindow::placeBeside(const QWidget& asking)
{
    const QRect other = asking.window()->frameGeometry();
    const QRect screen = asking.screen()->availableGeometry();
    resize(usualSize.boundedTo(screen.size()));
    const int right = other.right() + 1;
    if (right + width() <= screen.right())
        move(right, other.top());
    else if (other.left() - width() >= screen.left())
        move(other.left() - width(), other.top());
}

bool HelpWindow::event(QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked) {
        QTimer::singleShot(0, this, [this] {
            QWidget* const modal = QApplication::activeModalWidget();
            if (modal != nullptr && !findChildren<QWidget*>().contains(modal))
                attachTo(modal->windowHandle());
        });
    }
    return QWidget::event(event);
}

} // namespace help
