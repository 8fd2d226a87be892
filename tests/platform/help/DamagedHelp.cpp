#include "tests/platform/help/DamagedHelp.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTest>
#include <QTextBrowser>

#include <sys/resource.h>

#include <random>
#include <stdexcept>

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("no file " + path.toStdString());
    return file.readAll();
}

DamagedHelp::DamagedHelp(const QString& path) : whole(bytesOf(path))
{
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.show();
}

long DamagedHelp::mostMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

void DamagedHelp::readWithBytesChanged(unsigned seed, int times)
{
    std::mt19937 random(seed);
    for (int time = 0; time < times; ++time) {
        QByteArray bytes = whole;
        char& changed = bytes[static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()))];
        changed = static_cast<char>(changed ^ static_cast<char>(1 + random() % 255));
        read(bytes);
    }
}

void DamagedHelp::readBeginnings(qsizetype from, qsizetype to, qsizetype step)
{
    for (qsizetype length = from; length < to; length += step)
        read(whole.first(length));
}

void DamagedHelp::read(const QByteArray& bytes)
{
    const std::shared_ptr<const HelpBook> book = HelpBook::open(bytes);
    ++(book == nullptr ? unreadable : readable);
    if (book != nullptr)
        readInWindow(book);
}

void DamagedHelp::readInWindow(const std::shared_ptr<const HelpBook>& book)
{
    window.setBook(book);
    auto* const page = window.findChild<QTextBrowser*>("helpPage");
    for (const int topic : {100, 999})
        window.goToTopic(topic);
    for (const QString& name : book->pages()) {
        damagedPages += book->readPage(name) ? 0 : 1;
        page->setSource(QUrl("help:/" + name));
    }
    page->backward();
    auto* const search = window.findChild<QLineEdit*>("helpSearchField");
    search->setText("air");
    QTest::keyClick(search, Qt::Key_Return);
    QTest::keyClick(window.findChild<QWidget*>("helpSearchResults"), Qt::Key_Return);
    QApplication::processEvents(); // it is painted, too
}
