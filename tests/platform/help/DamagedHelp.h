#pragma once

#include "platform/help/HelpWindow.h"
#include "tests/support/Bytes.h"

#include <QApplication>
#include <QByteArray>
#include <QLineEdit>
#include <QString>
#include <QTest>
#include <QTextBrowser>

#include <sys/resource.h>

#include <memory>
#include <random>

/// Reads help files that are damaged, as a reader would: the first page, every page and picture that is not
/// as it was, the contents, the index, a search, all in a help window that is on the screen. Nothing of that
/// may crash or hang. The file that the damage is done to may be any.
class DamagedHelp
{
public:
    explicit DamagedHelp(const QString& path);

    /// Reads the file so many times with one byte changed, each time another.
    void readWithBytesChanged(unsigned seed, int times);
    /// Reads each beginning of the file that is a multiple of the step long, of those between two lengths.
    void readBeginnings(qsizetype from, qsizetype to, qsizetype step);
    void read(const QByteArray& bytes);

    qsizetype size() const { return whole.size(); }
    int readable = 0;     ///< of the damaged files, those that could be opened
    int unreadable = 0;   ///< and the others
    int damagedPages = 0; ///< of those that could be opened

    /// The most memory that this process has used so far, in MiB.
    static long mostMemory();

private:
    void readInWindow(const std::shared_ptr<const HelpBook>& book);

    QByteArray whole;
    std::shared_ptr<const ChmFile> wholeFile = ChmFile::open(whole);
    HelpWindow window;
};

inline DamagedHelp::DamagedHelp(const QString& path) : whole(bytesOf(path))
{
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.show();
}

inline long DamagedHelp::mostMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

inline void DamagedHelp::readWithBytesChanged(unsigned seed, int times)
{
    std::mt19937 random(seed);
    for (int time = 0; time < times; ++time) {
        QByteArray bytes = whole;
        char& changed = bytes[static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()))];
        changed = static_cast<char>(changed ^ static_cast<char>(1 + random() % 255));
        read(bytes);
    }
}

inline void DamagedHelp::readBeginnings(qsizetype from, qsizetype to, qsizetype step)
{
    for (qsizetype length = from; length < to; length += step)
        read(whole.first(length));
}

inline void DamagedHelp::read(const QByteArray& bytes)
{
    const std::shared_ptr<const HelpBook> book = HelpBook::open(bytes);
    ++(book == nullptr ? unreadable : readable);
    if (book != nullptr)
        readInWindow(book);
}

inline void DamagedHelp::readInWindow(const std::shared_ptr<const HelpBook>& book)
{
    window.setBook(book);
    auto* const page = window.findChild<QTextBrowser*>("helpPage");
    for (const int topic : {100, 999})
        window.goToTopic(topic);
    for (const QString& name : book->files()) {
        const std::optional<QByteArray> bytes = book->readFile(name);
        if (bytes && wholeFile->read(name) == bytes)
            continue;
        const QUrl address("help:/" + name);
        if (book->pages().contains(name)) {
            ++damagedPages;
            page->setSource(address);
        } else {
            page->loadResource(QTextDocument::ImageResource, address);
            page->loadResource(QTextDocument::StyleSheetResource, address);
        }
    }
    page->backward();
    auto* const search = window.findChild<QLineEdit*>("helpSearchField");
    search->setText("air");
    QTest::keyClick(search, Qt::Key_Return);
    QTest::keyClick(window.findChild<QWidget*>("helpSearchResults"), Qt::Key_Return);
    QApplication::processEvents(); // it is painted, too
}
