#include "platform/Desktop.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

std::string ApplicationFolder()
{
    return QDir(QCoreApplication::applicationDirPath()).canonicalPath().toStdString();
}

void MakeCurrentDirectory(const std::string& folder) { QDir::setCurrent(QString::fromStdString(folder)); }

NumberCharacters UserNumberCharacters()
{
    const QLocale locale = QLocale::system();
    return {.decimalPoint = locale.decimalPoint().toStdString(),
            .groupSeparator = locale.groupSeparator().toStdString()};
}
