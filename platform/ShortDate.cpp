#include "platform/ShortDate.h"

#include <QDate>
#include <QLocale>

std::string ShortDate()
{
    const QLocale locale = QLocale::system();
    const QDate today = QDate::currentDate();
    // The plain locale's short form is not the same in every version of the toolkit, so it is written out.
    const bool isPlain = locale.language() == QLocale::C;
    return (isPlain ? locale.toString(today, "d MMM yyyy") : locale.toString(today, QLocale::ShortFormat))
        .toStdString();
}
