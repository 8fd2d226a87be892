#include "platform/help/HtmlHelp.h"

#include "platform/RegularFile.h"
#include "platform/forms/Form.h"
#include "platform/forms/MsgBox.h"
#include "platform/help/HelpWindow.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QPointer>

#include <memory>
#include <utility>

using namespace help;

namespace {

/// The open help window and its file.
QPointer<HelpWindow> helpWindow;
QString shownFile;
QDateTime shownState;

void closeHelp() { delete helpWindow; }

/// Opens a new window. It closes at the end of the program, before the toolkit shuts down.
void openWindow(std::shared_ptr<const HelpBook> book)
{
    closeHelp();
    helpWindow = new HelpWindow(std::move(book));
    qAddPostRoutine(closeHelp); // once more for each window, which does no harm
}

/// The folder in which a file is searched, for a message.
QString folderOf(const QFileInfo& file)
{
    return file.isRelative() && QDir::currentPath().isEmpty() ? "the working folder, which no longer exists"
                                                              : QDir::toNativeSeparators(file.absolutePath());
}

/// Returns the help file, or null after showing a message with the reason.
std::shared_ptr<const HelpBook> openBook(const QFileInfo& wanted)
{
    const std::string file = wanted.filePath().toStdString();
    QFile opened(wanted.filePath());
    if (!OpenRegularFile(opened, QIODevice::ReadOnly, Links::Follow)) {
        forms::MsgBox("The help file " + file + " was not found.\n\nIt was looked for in " +
                      folderOf(wanted).toStdString() + ".");
        return nullptr;
    }
    std::shared_ptr<const HelpBook> book = HelpBook::open(opened.read(largestChmFile + 1));
    if (book == nullptr)
        forms::MsgBox("The help file " + file + " can't be read. It is damaged, or no help file.");
    return book;
}

} // namespace

void HtmlHelpA(forms::Form& owner, const std::string& file, unsigned command, int topic)
{
    if (command != HH_HELP_CONTEXT && command != HH_DISPLAY_TOPIC)
        return;
    const QStringList fileAndPage = QString::fromStdString(file).split("::/");
    const QFileInfo wanted(fileAndPage.front());
    const QString path = wanted.absoluteFilePath();
    const bool isShown = helpWindow != nullptr && helpWindow->isVisible() && wanted.isFile() &&
                         shownFile == path && shownState == wanted.lastModified();
    if (!isShown) {
        std::shared_ptr<const HelpBook> book = openBook(wanted);
        if (book == nullptr)
            return;
        openWindow(std::move(book));
        shownFile = path;
        shownState = wanted.lastModified();
    }
    if (command == HH_HELP_CONTEXT)
        helpWindow->goToTopic(topic);
    else
        helpWindow->goToPage(fileAndPage.back());
    helpWindow->showFor(*owner.window());
}
