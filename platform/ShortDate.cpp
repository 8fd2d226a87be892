#include "platform/ShortDate.h"

#include <QDate>
#include <QLocale>

std::string ShortDate()
{
    const QLocale locale = QLocale::system();
    const QDate today = QDate::currentDate();
    // The C locale's short form differs between versions of the toolkit, so it is written out here.
    const bool isPlain = locale.language() == QLocale::C;
    return (isPlain ? locale.toString(today, "d MMM yyyy") : locale.toString(today, QLocale::ShortFormat))
        .toStdString();
}
