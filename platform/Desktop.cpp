#include "platform/Desktop.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

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
