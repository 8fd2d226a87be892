#include "platform/forms/Form.h"

#include "platform/forms/FormWindow.h"
#include "platform/forms/Forms.h"

#include <QApplication>
#include <QEventLoop>
#include <QMenuBar>
#include <QPalette>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace forms {

namespace {

/// Closes open menus and lists. The toolkit would leave them on the screen until the next click.
void closePopups()
{
    while (QWidget* const popup = QApplication::activePopupWidget()) {
        if (!popup->close())
            return;
    }
}

} // namespace

Twips Screen::width() { return ToTwips(QGuiApplication::primaryScreen()->geometry().width()); }
Twips Screen::height() { return ToTwips(QGuiApplication::primaryScreen()->geometry().height()); }

Form::Form(const std::string& name, FormKind kind) : frame(new FormWindow(*this, kind == FormKind::Dialog))
{
    frame->setObjectName(QString::fromStdString(name));
}

Form::~Form() { delete frame; }

void Form::load()
{
    RunHandler(*this, [this] { Form_Load(); });
}

void Form::showWindow()
{
    const bool wasVisible = frame->isVisible();
    frame->show();
    frame->raise();
    frame->activateWindow();
    if (!wasVisible)
        RunHandler(*this, [this] { Form_Activate(); });
}

void Form::Show()
{
    if (unloading)
        return;
    frame->setWindowModality(Qt::NonModal);
    showWindow();
}

void Form::ShowModal()
{
    if (unloading || wait != nullptr)
        return;
    QWindow* const caller = QGuiApplication::focusWindow();
    frame->setWindowModality(Qt::ApplicationModal);
    frame->winId(); // creates the native window, which must stay in front of the caller's
    frame->windowHandle()->setTransientParent(caller);

    QEventLoop loop;
    wait = &loop;
    showWindow();
    if (wait == &loop) // a handler that ran on showing may have hidden it again
        loop.exec();
}

void Form::Hide()
{
    if (frame->isVisible())
        closePopups();
    frame->hide();
    endWait();
}

void Form::endWait()
{
    if (wait != nullptr)
        wait->quit();
    wait = nullptr;
}

void Form::Unload(CloseReason reason)
{
    if (unloading) {
        Hide(); // called by its own unload handler, which may show another form next
        return;
    }
    unloading = true;
    const RunningHandler running(*this);
    RunHandler(*this, [this, reason] { Form_QueryUnload(reason); });
    RunHandler(*this, [this] { Form_Unload(); });
    Hide();
    FormRegistry::retire(*this);
}

void Form::setCaption(const std::string& caption) { frame->setWindowTitle(QString::fromStdString(caption)); }
void Form::setBackColour(Colour colour)
{
    QWidget& view = *frame->view(); // its content inherits the colors
    QPalette palette = view.palette();
    palette.setColor(QPalette::Window, QColor(colour.red, colour.green, colour.blue));
    palette.setColor(QPalette::WindowText, Qt::black);
    view.setPalette(palette);
    view.setAutoFillBackground(true);
}

std::string Form::caption() const { return frame->windowTitle().toStdString(); }

void Form::setSize(Twips width, Twips height) { frame->setLeastSize({ToPixels(width), ToPixels(height)}); }

void Form::enlargeTo(Twips width, Twips height) { frame->enlargeTo({ToPixels(width), ToPixels(height)}); }

void Form::fitToControls() { setSize(0, 0); }
void Form::keepTogether() { frame->keepTogether(); }
void Form::moveTo(Twips left, Twips top) { frame->place({ToPixels(left), ToPixels(top)}); }
void Form::placeInTheMiddle(int topPart)
{
    moveTo((Screen::width() - width()) / 2, (Screen::height() - height()) / topPart);
}

Twips Form::width() const { return ToTwips(frame->width()); }
Twips Form::height() const { return ToTwips(frame->height()); }
bool Form::isVisible() const { return frame->isVisible(); }

void Form::setDefaultButton(Button& button)
{
    defaultButton = &button;
    button.showAsDefault();
}

bool Form::pressDefaultButton()
{
    if (defaultButton == nullptr || !defaultButton->isEnabled())
        return false;
    defaultButton->press();
    return true;
}

void Form::setCancelButton(Button& button)
{
    escape = [&button] { button.press(); };
}

void Form::closeOnEsc()
{
    escape = [this] { frame->close(); };
}

bool Form::runIfSet(const Handler& handler)
{
    if (handler)
        RunHandler(*this, handler);
    return static_cast<bool>(handler);
}

bool Form::pressKey(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return pressDefaultButton();
    case Qt::Key_Escape:
        return runIfSet(escape);
    case Qt::Key_F1:
        return runIfSet(help);
    default:
        return false;
    }
}

void Form::addToMenuBar(QAction* entry) { frame->menuBar()->addAction(entry); }

QWidget* Form::window() const { return frame; }
QWidget* Form::area() const { return frame->content(); }

void Form::focusOn(QWidget& widget)
{
    lostFocus = false;
    widget.setFocus(Qt::OtherFocusReason);
    frame->view()->ensureWidgetVisible(&widget);
}

void Form::noteEnabling(QWidget& widget, bool enabled)
{
    if (runningHandlers == 0)
        return;
    if (enabled && qobject_cast<QPushButton*>(&widget) != nullptr)
        enabledButtons.emplace_back(&widget);
    if (!enabled && frame->focusWidget() == &widget)
        lostFocus = true;
}

void Form::settleFocus()
{
    const auto buttons = std::exchange(enabledButtons, {});
    if (!std::exchange(lostFocus, false))
        return;
    const auto first = std::ranges::find_if(
        buttons, [](const QPointer<QWidget>& button) { return button != nullptr && button->isEnabled(); });
    if (first != buttons.end())
        focusOn(**first);
}

Form::RunningHandler::RunningHandler(Form& owner) : form(owner) { ++form.runningHandlers; }

Form::RunningHandler::~RunningHandler()
{
    if (--form.runningHandlers == 0)
        form.settleFocus();
    FormRegistry::destroyIfIdle(form);
}

} // namespace forms
