#include "platform/help/HelpWindow.h"

#include "platform/PrintServer.h"
#include "platform/help/HelpPage.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QKeySequence>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QSplitter>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>

#include <utility>

namespace help {

namespace {

constexpr QSize usualSize(980, 680);

bool isDialogOf(const QWidget* dialog, const QWidget* window)
{
    while (dialog != nullptr && dialog != window)
        dialog = dialog->parentWidget();
    return dialog == window;
}

} // namespace

/// A command of the reader, with a key, and with a tool bar button if it has a label.
struct HelpWindow::Command
{
    const char* name;
    const char* text;
    const char* label; ///< text, not an icon: every desktop can show it
    QKeySequence key;
    std::function<void()> handler;
};

HelpWindow::HelpWindow(std::shared_ptr<const HelpBook> shown)
    : QWidget(nullptr, Qt::Window),
      book(std::move(shown)),
      tools(new QToolBar),
      tabs(new QTabWidget),
      contents(new ContentsPane(*book, opener())),
      search(new SearchPane(book, opener())),
      page(new HelpPage(book, this)),
      notice(new QLabel)
{
    setObjectName("HelpWindow");
    setWindowTitle(book->title().isEmpty() ? "Help" : book->title() + " Help");
    setAttribute(Qt::WA_DeleteOnClose);
    notice->setObjectName("helpNotice");
    notice->hide();
    notice->setContentsMargins(12, 6, 12, 6);

    tabs->setObjectName("helpPanes");
    tabs->addTab(contents, "&Contents");
    tabs->addTab(makeIndexPane(*book, opener()), "&Index");
    tabs->addTab(search, "&Search");

    auto* const sides = new QSplitter;
    sides->addWidget(tabs);
    sides->addWidget(page);
    sides->setStretchFactor(1, 1);
    sides->setSizes({290, 690});
    sides->setChildrenCollapsible(false);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(tools);
    column->addWidget(sides, 1);
    column->addWidget(notice);
    makeCommands();
    connect(page, &QTextBrowser::sourceChanged, this, [this] { pageHasChanged(); });
    connect(page, &QTextBrowser::highlighted, this, [this](const QUrl& link) {
        page->viewport()->setToolTip(link.scheme() == "help" ? QString() : link.toDisplayString());
    });
    resize(usualSize);
}

OpenHelpPage HelpWindow::opener()
{
    return [this](const QString& reference, const QStringList& words) { openPage(reference, words); };
}

void HelpWindow::makeCommands()
{
    QAction* const back =
        addCommand({"helpBack", "Back", "\u2190 Back", Qt::ALT | Qt::Key_Left, [this] { page->backward(); }});
    QAction* const forward = addCommand(
        {"helpForward", "Forward", "Forward \u2192", Qt::ALT | Qt::Key_Right, [this] { page->forward(); }});
    addCommand(
        {"helpHome", "Home", "Home", Qt::ALT | Qt::Key_Home, [this] { openPage(book->homePage(), {}); }});
    tools->addSeparator();
    addCommand(
        {"helpSmaller", "Smaller text", "A\u2212", Qt::CTRL | Qt::Key_Minus, [this] { resizeText(-1); }});
    addCommand({"helpNormal", "Normal text", "A", Qt::CTRL | Qt::Key_0, [this] { page->setTextSize(0); }});
    addCommand({"helpLarger", "Larger text", "A+", Qt::CTRL | Qt::Key_Plus, [this] { resizeText(1); }});
    tools->addSeparator();
    QAction* const copy =
        addCommand({"helpCopy", "Copy", "Copy", QKeySequence::Copy, [this] { page->copy(); }});
    addCommand({"helpPrint", "Print", "Print", QKeySequence::Print, [this] { print(); }});

    addCommand({"helpLargerToo", "Larger text", nullptr, Qt::CTRL | Qt::Key_Equal,
                [this] { resizeText(1); }}); // + without Shift
    addCommand({"helpSearch", "Search", nullptr, QKeySequence::Find, [this] { startSearch(); }});
    addCommand({"helpSearchOn", "Search on", nullptr, Qt::Key_F3, [this] { searchOn(); }});
    addCommand({"helpSwitchPanes", "Switch panes", nullptr, Qt::Key_F6, [this] { switchPanes(); }});
    addCommand({"helpClose", "Close", nullptr, Qt::Key_Escape, [this] { close(); }});

    for (QAction* later : {back, forward, copy})
        later->setEnabled(false);
    connect(page, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(page, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(page, &QTextBrowser::copyAvailable, copy, &QAction::setEnabled);
}

QAction* HelpWindow::addCommand(const Command& command)
{
    auto* const action = new QAction(command.text, this);
    action->setObjectName(command.name);
    action->setShortcut(command.key);
    connect(action, &QAction::triggered, this, command.handler);
    addAction(action);
    if (command.label != nullptr) {
        action->setIconText(QString::fromUtf8(command.label));
        action->setToolTip(action->text() + " (" + command.key.toString(QKeySequence::NativeText) + ")");
        tools->addAction(action);
        tools->widgetForAction(action)->setAccessibleName(action->text());
    }
    return action;
}

void HelpWindow::resizeText(int change) { page->setTextSize(page->textSize() + change); }

void HelpWindow::goToTopic(int topic)
{
    const QString wanted = book->pageOfTopic(topic);
    openPage(wanted.isEmpty() ? book->homePage() : wanted, {});
    notice->setText("This help has no topic " + QString::number(topic) + ". Here is its first page.");
    notice->setVisible(wanted.isEmpty());
}

void HelpWindow::openPage(const QString& reference, const QStringList& words)
{
    if (reference.isEmpty())
        return;
    page->open(reference, words);
    page->goToNextMark();
}

void HelpWindow::pageHasChanged()
{
    notice->hide();
    contents->showPage(page->pageName());
}

void HelpWindow::startSearch()
{
    tabs->setCurrentWidget(search);
    search->takeFocus();
}

void HelpWindow::searchOn()
{
    if (!page->goToNextMark())
        startSearch();
}

void HelpWindow::switchPanes()
{
    QWidget* const there = page->hasFocus() ? tabs->currentWidget() : page;
    there->setFocus(Qt::ShortcutFocusReason);
}

void HelpWindow::print()
{
    AskPrintServer();
    if (!isVisible())
        return; // closed meanwhile
    auto* const printer = new QPrinter(QPrinter::HighResolution);
    auto* const dialog = new QPrintDialog(printer, this);
    dialog->setObjectName("PrintDialog");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, qOverload<QPrinter*>(&QPrintDialog::accepted), this,
            [this](QPrinter* chosen) { page->print(*chosen); });
    connect(dialog, &QObject::destroyed, [printer] { delete printer; });
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
            if (modal != nullptr && !isDialogOf(modal, this))
                attachTo(modal->windowHandle());
        });
    }
    return QWidget::event(event);
}

} // namespace help
