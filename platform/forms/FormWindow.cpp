#include "platform/forms/FormWindow.h"

#include "platform/forms/Form.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>

#include <algorithm>

namespace forms {

namespace {

/// The width and height that the window manager adds to a window, or an estimate where that is larger: the
/// toolkit learns the true size some time after the window is shown.
QSize frameSizeOf(const QWidget& window)
{
    const QSize estimate(0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
    return estimate.expandedTo(window.frameGeometry().size() - window.size());
}

} // namespace

FormWindow::FormWindow(Form& ownerForm, bool isDialog)
    : QMainWindow(nullptr, isDialog ? Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                          Qt::WindowCloseButtonHint
                                    : Qt::Window),
      owner(ownerForm)
{
    auto* const scrolling = new QScrollArea(this);
    scrolling->setFrameShape(QFrame::NoFrame);
    scrolling->setFocusPolicy(Qt::NoFocus);
    scrolling->setWidgetResizable(true);
    scrolling->setWidget(new QWidget);
    scrolling->widget()->installEventFilter(this);
    setCentralWidget(scrolling);
    setContextMenuPolicy(Qt::NoContextMenu);
    connect(qApp, &QGuiApplication::primaryScreenChanged, this, [this] { keepRoom(); });
}

QScrollArea* FormWindow::view() const { return static_cast<QScrollArea*>(centralWidget()); }
QWidget* FormWindow::content() const { return view()->widget(); }

void FormWindow::setLeastSize(QSize size)
{
    leastSize = size;
    if (content()->layout() == nullptr) { // placed controls
        const QRect controls = content()->childrenRect();
        content()->setMinimumSize(controls.right() + controls.left(), controls.bottom() + controls.top());
    }
    keepRoom();
    resize(minimumSize());
}

void FormWindow::keepTogether()
{
    isKeptTogether = true;
    view()->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    keepRoom();
}

/// The size of the content at which nothing has to scroll.
QSize FormWindow::neededByContent() const
{
    return content()->minimumSizeHint().expandedTo(content()->minimumSize());
}

void FormWindow::keepRoom()
{
    const int menuHeight = minimumSizeHint().height() - view()->minimumSizeHint().height();
    const QSize menu(0, menuHeight);
    const QSize wanted = leastSize.expandedTo(neededByContent() + menu);
    setMinimumSize(wanted.boundedTo(freeRoom()));
    constexpr int percent = 125; // of the size that the content is designed for
    if (isKeptTogether)
        content()->setMaximumSize((wanted - menu) * percent / 100);
}

/// The largest size of the window on its screen.
QSize FormWindow::freeRoom() const { return screen()->availableSize() - frameSizeOf(*this); }

void FormWindow::enlargeTo(QSize size) { resize(size.boundedTo(freeRoom()).expandedTo(minimumSize())); }

/// The upper left corner has precedence where the window is larger than the screen.
void FormWindow::place(QPoint corner)
{
    const QScreen& primary = *QGuiApplication::primaryScreen();
    const QRect area = primary.availableGeometry();
    const QSize outside = size() + frameSizeOf(*this);
    const QPoint last(area.right() + 1 - outside.width(), area.bottom() + 1 - outside.height());
    const QPoint wanted = primary.geometry().topLeft() + corner;
    move(std::max(area.left(), std::min(wanted.x(), last.x())),
         std::max(area.top(), std::min(wanted.y(), last.y())));
}

bool FormWindow::event(QEvent* event)
{
    const bool isDone = QMainWindow::event(event);
    if (event->type() == QEvent::LayoutRequest)
        keepRoom();
    return isDone;
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == content() && event->type() == QEvent::LayoutRequest)
        keepRoom(); // a control now needs more or less space
    return QMainWindow::eventFilter(watched, event);
}

void FormWindow::closeEvent(QCloseEvent* event)
{
    event->ignore(); // the form decides, and hides its window itself
    owner.Unload(CloseReason::ControlMenu);
}

void FormWindow::keyPressEvent(QKeyEvent* event)
{
    if (!owner.pressKey(event->key()))
        QMainWindow::keyPressEvent(event);
}

} // namespace forms
