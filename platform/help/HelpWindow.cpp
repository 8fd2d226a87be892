#include "platform/help/HelpWindow.h"

#include "platform/help/HelpPage.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
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

namespace {

constexpr QSize usualSize(980, 680);

bool isDialogOf(const QWidget* dialog, const QWidget* window)
{
    while (dialog != nullptr && dialog != window)
        dialog = dialog->parentWidget();
    return dialog == window;
}

} // namespace

HelpWindow::HelpWindow()
    : QWidget(nullptr, Qt::Window),
      tools(new QToolBar),
      tabs(new QTabWidget),
      contents(new ContentsPane(opener())),
      index(new IndexPane(opener())),
      search(new SearchPane(opener())),
      page(new HelpPage(this)),
      notice(new QLabel)
{
    setObjectName("HelpWindow");
    setAttribute(Qt::WA_DeleteOnClose);
    notice->setObjectName("helpNotice");
    notice->hide();
    notice->setContentsMargins(12, 6, 12, 6);

    tabs->setObjectName("helpPanes");
    tabs->addTab(contents, "&Contents");
    tabs->addTab(index, "&Index");
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
    makeToolBar();
    makeShortcuts();
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

QAction* HelpWindow::addCommand(const QString& name, const QString& text, const QKeySequence& key,
                                const std::function<void()>& handler)
{
    auto* const action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcut(key);
    connect(action, &QAction::triggered, this, handler);
    addAction(action);
    return action;
}

void HelpWindow::makeToolBar()
{
    back = addButton("helpBack", "Back", "\u2190 Back", Qt::ALT | Qt::Key_Left, [this] { page->backward(); });
    forward = addButton("helpForward", "Forward", "Forward \u2192", Qt::ALT | Qt::Key_Right,
                        [this] { page->forward(); });
    addButton("helpHome", "Home", "Home", Qt::ALT | Qt::Key_Home, [this] { openPage(book->homePage(), {}); });
    tools->addSeparator();
    addButton("helpSmaller", "Smaller text", "A\u2212", Qt::CTRL | Qt::Key_Minus,
              [this] { page->setTextSize(page->textSize() - 1); });
    addButton("helpNormal", "Normal text", "A", Qt::CTRL | Qt::Key_0, [this] { page->setTextSize(0); });
    addButton("helpLarger", "Larger text", "A+", Qt::CTRL | Qt::Key_Plus,
              [this] { page->setTextSize(page->textSize() + 1); });
    tools->addSeparator();
    QAction* const copy = addButton("helpCopy", "Copy", "Copy", QKeySequence::Copy, [this] { page->copy(); });
    addButton("helpPrint", "Print", "Print", QKeySequence::Print, [this] { print(); });

    for (QAction* later : {back, forward, copy})
        later->setEnabled(false);
    connect(page, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(page, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(page, &QTextBrowser::copyAvailable, copy, &QAction::setEnabled);
}

/// A command on the tool bar. Its button shows words alone, which any desktop has.
QAction* HelpWindow::addButton(const QString& name, const QString& text, const char* label,
                               const QKeySequence& key, const std::function<void()>& handler)
{
    QAction* const action = addCommand(name, text, key, handler);
    action->setIconText(QString::fromUtf8(label));
    action->setToolTip(text + " (" + key.toString(QKeySequence::NativeText) + ")");
    tools->addAction(action);
    tools->widgetForAction(action)->setAccessibleName(text);
    return action;
}

void HelpWindow::makeShortcuts()
{
    addCommand("helpLargerToo", "Larger text", Qt::CTRL | Qt::Key_Equal,
               [this] { page->setTextSize(page->textSize() + 1); }); // + without Shift
    addCommand("helpSearch", "Search", QKeySequence::Find, [this] { startSearch(); });
    addCommand("helpSearchOn", "Search on", Qt::Key_F3, [this] { searchOn(); });
    addCommand("helpSwitchPanes", "Switch panes", Qt::Key_F6, [this] { switchPanes(); });
    addCommand("helpClose", "Close", Qt::Key_Escape, [this] { close(); });
}

void HelpWindow::setBook(std::shared_ptr<const HelpBook> shown)
{
    book = std::move(shown);
    setWindowTitle(book->title().isEmpty() ? "Help" : book->title() + " Help");
    contents->setBook(*book);
    index->setBook(*book);
    search->setBook(book);
    page->setBook(book);
}

void HelpWindow::goToTopic(int topic)
{
    const QString wanted = book->pageOfTopic(topic);
    openPage(wanted.isEmpty() ? book->homePage() : wanted, {});
    notice->setText("This help has no topic " + QString::number(topic) + ". Here is its first page.");
    notice->setVisible(wanted.isEmpty());
}

void HelpWindow::openPage(const QString& reference, const QStringList& words)
{
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
    winId(); // makes the native window, which is to stand before the other
    attachTo(asking.window()->windowHandle());
    if (isFresh)
        placeBeside(asking);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    page->setFocus(Qt::OtherFocusReason);
}

/// Makes this the front window of another, which doesn't block it then when it is modal.
void HelpWindow::attachTo(QWindow* before)
{
    QWindow* const own = windowHandle();
    for (QWindow* window = before; window != nullptr; window = window->transientParent()) {
        if (window->transientParent() == own)
            window->setTransientParent(nullptr); // neither is to stand before the other at once
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
