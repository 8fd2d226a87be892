#include "platform/help/HelpWindow.h"

#include "platform/help/HelpPage.h"
#include "platform/help/HelpPanes.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QSplitter>
#include <QStyle>
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
      page(new HelpPage(this)),
      notice(new QLabel)
{
    setObjectName("HelpWindow");
    setAttribute(Qt::WA_DeleteOnClose);
    notice->setObjectName("helpNotice");
    notice->setContentsMargins(12, 6, 12, 6);

    auto* const sides = new QSplitter;
    sides->addWidget(makePanes());
    sides->addWidget(page);
    sides->setStretchFactor(1, 1);
    sides->setSizes({270, 710});
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
        notice->setText(link.scheme() == "help" ? QString() : link.toDisplayString());
        notice->setVisible(!notice->text().isEmpty());
    });
    resize(usualSize);
}

QWidget* HelpWindow::makePanes()
{
    const OpenHelpPage open = [this](const QString& reference, const QStringList& words) {
        openPage(reference, words);
    };
    contents = new ContentsPane(open);
    index = new IndexPane(open);
    search = new SearchPane(open);
    tabs->setObjectName("helpPanes");
    tabs->addTab(contents, "&Contents");
    tabs->addTab(index, "&Index");
    tabs->addTab(search, "&Search");
    return tabs;
}

QAction* HelpWindow::addCommand(const QString& name, const QString& text, const QList<QKeySequence>& keys,
                                const std::function<void()>& handler)
{
    auto* const action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcuts(keys);
    if (!keys.isEmpty())
        action->setToolTip(text + " (" + keys.first().toString(QKeySequence::NativeText) + ")");
    connect(action, &QAction::triggered, this, handler);
    addAction(action);
    return action;
}

void HelpWindow::makeToolBar()
{
    const auto icon = [this](const char* name, QStyle::StandardPixmap standard) {
        return QIcon::fromTheme(name, style()->standardIcon(standard));
    };
    QAction* const back =
        addCommand("helpBack", "Back", {Qt::ALT | Qt::Key_Left}, [this] { page->backward(); });
    QAction* const forward =
        addCommand("helpForward", "Forward", {Qt::ALT | Qt::Key_Right}, [this] { page->forward(); });
    QAction* const home =
        addCommand("helpHome", "Home", {Qt::ALT | Qt::Key_Home}, [this] { openPage(book->homePage(), {}); });
    QAction* const copy = addCommand("helpCopy", "Copy", {QKeySequence::Copy}, [this] { page->copy(); });
    QAction* const onPaper = addCommand("helpPrint", "Print", {QKeySequence::Print}, [this] { print(); });
    QAction* const smaller = addCommand("helpSmaller", "Smaller text", {Qt::CTRL | Qt::Key_Minus},
                                        [this] { page->setTextSize(page->textSize() - 1); });
    QAction* const normal =
        addCommand("helpNormal", "Normal text", {Qt::CTRL | Qt::Key_0}, [this] { page->setTextSize(0); });
    QAction* const larger =
        addCommand("helpLarger", "Larger text", {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal},
                   [this] { page->setTextSize(page->textSize() + 1); });
    back->setIcon(icon("go-previous", QStyle::SP_ArrowBack));
    forward->setIcon(icon("go-next", QStyle::SP_ArrowForward));
    home->setIcon(icon("go-home", QStyle::SP_DirHomeIcon));
    smaller->setIconText(QString::fromUtf8("A\u2212"));
    normal->setIconText("A");
    larger->setIconText("A+");

    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    tools->addActions({back, forward, home});
    tools->addSeparator();
    tools->addActions({smaller, normal, larger});
    tools->addSeparator();
    tools->addActions({copy, onPaper});

    back->setEnabled(false);
    forward->setEnabled(false);
    copy->setEnabled(false);
    connect(page, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(page, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(page, &QTextBrowser::copyAvailable, copy, &QAction::setEnabled);
}

void HelpWindow::makeShortcuts()
{
    addCommand("helpSearch", "Search", {QKeySequence::Find}, [this] { startSearch(); });
    addCommand("helpSearchOn", "Search on", {Qt::Key_F3}, [this] { searchOn(); });
    addCommand("helpSwitchPanes", "Switch panes", {Qt::Key_F6}, [this] { switchPanes(); });
    addCommand("helpClose", "Close", {Qt::Key_Escape}, [this] { close(); });
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
    if (wanted.isEmpty()) {
        notice->setText("This help has no topic " + QString::number(topic) + ". Here is its first page.");
        notice->show();
    }
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
    const bool isInPage = page->hasFocus();
    QWidget* const pane = tabs->currentWidget();
    QWidget* const there = isInPage ? pane->nextInFocusChain() : page;
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
    showNormal();
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
