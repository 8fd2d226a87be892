#include "platform/Launch.h"

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

using namespace forms;

namespace {

// The codes that callers expect from a desktop of this kind.
constexpr int refused = 5;
constexpr int noProgram = 31;
constexpr int taken = 42;

} // namespace

int ShellExecuteA(const Form& /*owner*/, const std::string& verb, const std::string& target,
                  const std::string& /*parameters*/, const std::string& /*directory*/, int /*showCommand*/)
{
    if (verb != "open")
        return refused;
    const QUrl link(QString::fromStdString(target), QUrl::StrictMode);
    return QDesktopServices::openUrl(link) ? taken : noProgram;
}

bool StartProgramFile(const std::string& path)
{
    return QProcess::startDetached(QString::fromStdString(path), {});
}
