#include "platform/Desktop.h"

#include <QCoreApplication>
#include <QDate>
#include <QDesktopServices>
#include <QDir>
#include <QLocale>
#include <QProcess>
#include <QUrl>

std::string ApplicationFolder()
{
    return QDir(QCoreApplication::applicationDirPath()).canonicalPath().toStdString();
}

void MakeCurrentDirectory(const std::string& folder) { QDir::setCurrent(QString::fromStdString(folder)); }

void IgnoreRelativeFolders()
{
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        if (!qgetenv(name).startsWith('/'))
            qunsetenv(name);
    }
}

NumberCharacters UserNumberCharacters()
{
    const QLocale locale = QLocale::system();
    return {.decimalPoint = locale.decimalPoint().toStdString(),
            .groupSeparator = locale.groupSeparator().toStdString()};
}

std::string ShortDate()
{
    const QLocale locale = QLocale::system();
    const QDate today = QDate::currentDate();
    // The C locale's short form differs between versions of the toolkit, so it is written out here.
    const bool isPlain = locale.language() == QLocale::C;
    return (isPlain ? locale.toString(today, "d MMM yyyy") : locale.toString(today, QLocale::ShortFormat))
        .toStdString();
}

int ShellExecuteA(const forms::Form& /*owner*/, const std::string& verb, const std::string& target,
                  const std::string& /*parameters*/, const std::string& /*directory*/, int /*showCommand*/)
{
    // The codes that callers expect from a desktop of this kind.
    constexpr int refused = 5;
    constexpr int noProgram = 31;
    constexpr int taken = 42;
    if (verb != "open")
        return refused;
    const QUrl link(QString::fromStdString(target), QUrl::StrictMode);
    return QDesktopServices::openUrl(link) ? taken : noProgram;
}

bool StartProgramFile(const std::string& path)
{
    return QProcess::startDetached(QString::fromStdString(path), {});
}
