#include "platform/ShortDate.h"

#include <QDate>
#include <QLocale>

std::string ShortDate()
{
    return QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString();
}
