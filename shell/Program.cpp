#include "shell/Program.h"

#include "core/MainMod.h"
#include "platform/Desktop.h"
#include "platform/forms/Forms.h"
#include "platform/forms/MsgBox.h"
#include "platform/forms/Outlines.h"
#include "shell/MainForm.h"

#include <QApplication>
#include <QIcon>

using namespace forms;

namespace {

std::string describeFailure(const std::exception& failure)
{
    const auto* const known = dynamic_cast<const RunTimeError*>(&failure);
    if (known == nullptr)
        return failure.what();
    return "Run-time error '" + std::to_string(known->number()) + "':\n" + known->what();
}

/// Ends the process in order when the desktop's session ends, whatever is on the screen. The toolkit would
/// close the windows, and closing a calculator shows the main menu again.
class EndOfSession : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched != qApp || event->type() != QEvent::Quit)
            return false;
        form<MainForm>().Unload();
        EndProcess();
        return true;
    }
};

} // namespace

void StartProgram()
{
    QCoreApplication::setApplicationName("Dunmoor");
    QCoreApplication::setApplicationVersion(DUNMOOR_VERSION);
    QGuiApplication::setDesktopFileName("dunmoor");
    QIcon icon(":/dunmoor-32.png");
    icon.addFile(":/dunmoor-128.png");
    QGuiApplication::setWindowIcon(icon);
    QApplication::setStyle(new Outlines);
    qApp->installEventFilter(new EndOfSession(qApp));
    QGuiApplication::setQuitOnLastWindowClosed(false); // only the main menu ends the process

    IgnoreRelativeFolders();
    const NumberCharacters characters = UserNumberCharacters();
    numberLocale = {.decimalPoint = characters.decimalPoint, .groupSeparator = characters.groupSeparator};
    ShowCoreMessage = [](const std::string& text) { MsgBox(text); };
    DescribeFailure = describeFailure;

    HelpFile = ApplicationFolder() + "/dunmoor.chm";
    form<MainForm>().Show();
}

int RunProgram(const char* executable)
{
    // The program has no command line. It doesn't read the toolkit's options either.
    int argumentCount = 1;
    std::string name = executable;
    char* arguments[] = {name.data(), nullptr};

    QApplication application(argumentCount, arguments);
    StartProgram();
    const int status = QApplication::exec();
    FormRegistry::clear();
    return status;
}
