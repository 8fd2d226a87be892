#include "platform/forms/FormWindow.h"

#include "platform/forms/Form.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>

namespace forms {

FormWindow::FormWindow(Form& ownerForm, bool isDialog)
    : QMainWindow(nullptr, isDialog ? Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                          Qt::WindowCloseButtonHint
                                    : Qt::Window),
      owner(ownerForm)
{
    setCentralWidget(new QWidget(this));
    setContextMenuPolicy(Qt::NoContextMenu);
}

void FormWindow::setLeastSize(QSize size)
{
    leastSize = size;
    keepRoom();
    resize(minimumSize());
}

void FormWindow::keepRoom() { setMinimumSize(leastSize.expandedTo(minimumSizeHint())); }

bool FormWindow::event(QEvent* event)
{
    const bool isDone = QMainWindow::event(event);
    if (event->type() == QEvent::LayoutRequest)
        keepRoom(); // a control now needs more or less space
    return isDone;
}

void FormWindow::closeEvent(QCloseEvent* event)
{
    event->ignore(); // the form decides, and hides its window itself
    owner.Unload(CloseReason::ControlMenu);
}

void FormWindow::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter || !owner.pressDefaultButton())
        QMainWindow::keyPressEvent(event);
}

} // namespace forms
