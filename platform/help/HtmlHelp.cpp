#include "platform/help/HtmlHelp.h"

#include "platform/forms/Form.h"
#include "platform/forms/MsgBox.h"
#include "platform/help/HelpWindow.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

namespace {

/// The open help window, and what it shows.
QPointer<HelpWindow> helpWindow;
QString shownFile;
QDateTime shownState;

void closeHelp() { delete helpWindow; }

/// The window, made where none is open. The end of the program takes it down before the toolkit.
HelpWindow& openWindow()
{
    if (helpWindow == nullptr) {
        helpWindow = new HelpWindow;
        static const bool isToldOnce = (qAddPostRoutine(closeHelp), true);
        Q_UNUSED(isToldOnce);
    }
    return *helpWindow;
}

/// The help file, or nothing and a message that says why.
std::shared_ptr<const HelpBook> openBook(const std::string& file, const QString& path)
{
    QFile opened(path);
    if (!opened.open(QIODevice::ReadOnly)) {
        MsgBox("The help file " + file + " was not found.\n\nIt was looked for in " +
               QDir::toNativeSeparators(QFileInfo(path).absolutePath()).toStdString() + ".");
        return nullptr;
    }
    std::shared_ptr<const HelpBook> book = HelpBook::open(opened.read(ChmFile::largestFile + 1));
    if (book == nullptr)
        MsgBox("The help file " + file + " can't be read. It is damaged, or no help file.");
    return book;
}

} // namespace

void HtmlHelpA(Form& owner, const std::string& file, unsigned command, int topic)
{
    if (command != HH_HELP_CONTEXT)
        return;
    const QFileInfo wanted(QString::fromStdString(file));
    const QString path = wanted.absoluteFilePath();
    const bool isShown = helpWindow != nullptr && helpWindow->isVisible() && wanted.isFile() &&
                         shownFile == path && shownState == wanted.lastModified();
    if (!isShown) {
        const std::shared_ptr<const HelpBook> book = openBook(file, path);
        if (book == nullptr)
            return;
        openWindow().setBook(book);
        shownFile = path;
        shownState = wanted.lastModified();
    }
    helpWindow->goToTopic(topic);
    helpWindow->showFor(*owner.window());
}
