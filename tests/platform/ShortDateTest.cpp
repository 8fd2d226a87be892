#include "platform/Desktop.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDate>
#include <QProcess>

#include <iostream>

namespace {

/// The short date in a process with another locale.
std::string shortDateUnder(const QString& locale)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", locale);
    QProcess child;
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=ShortDate.IsSaidByAChild"});
    child.waitForFinished(30'000);
    for (const QString& line : QString::fromUtf8(child.readAllStandardOutput()).split('\n')) {
        if (line.startsWith("said: "))
            return line.mid(6).toStdString();
    }
    return "(nothing)";
}

std::string twoDigits(int number) { return QString("%1").arg(number % 100, 2, 10, QChar('0')).toStdString(); }

TEST(ShortDate, IsTodayWithoutTheTime)
{
    const QDate today = QDate::currentDate();
    const char* const months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                  "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    EXPECT_EQ(ShortDate(), std::to_string(today.day()) + ' ' + months[today.month() - 1] + ' ' +
                               std::to_string(today.year()));
}

TEST(ShortDate, IsSaidByAChild)
{
    EXPECT_FALSE(ShortDate().empty());
    std::cout << "said: " << ShortDate() << '\n';
}

TEST(ShortDate, HasTheShortFormOfTheUsersLocale)
{
    const QDate today = QDate::currentDate();
    EXPECT_EQ(shortDateUnder("de_DE.UTF-8"),
              twoDigits(today.day()) + '.' + twoDigits(today.month()) + '.' + twoDigits(today.year()));
    EXPECT_EQ(shortDateUnder("en_US.UTF-8"), std::to_string(today.month()) + '/' +
                                                 std::to_string(today.day()) + '/' + twoDigits(today.year()));
}

} // namespace
