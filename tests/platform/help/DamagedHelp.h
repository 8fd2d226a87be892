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

using namespace help;

/// Reads damaged help files in a visible help window, as a reader would: the first page, every changed page
/// and picture, the contents, the index, a search. None of that may crash or hang. Works with any help file.
class DamagedHelp
{
public:
    explicit DamagedHelp(const QString& path);

    /// Reads the file the given number of times, each time with a different byte changed.
    void readWithBytesChanged(unsigned seed, int times);
    /// Reads truncations of the file: lengths between the two limits, in the given step.
    void readBeginnings(qsizetype from, qsizetype to, qsizetype step);
    void read(const QByteArray& bytes);

    qsizetype size() const { return whole.size(); }
    int readable = 0;     ///< damaged files that could be opened
    int unreadable = 0;   ///< damaged files that could not
    int damagedPages = 0; ///< in the files that could be opened

    /// The peak memory of this process, in MiB.
    static long mostMemory();

private:
    void readInWindow(const std::shared_ptr<const HelpBook>& book, const QList<ChmMember>& members);

    const QByteArray whole;
    const HelpBook undamaged{UnpackChm(whole)};
};

inline DamagedHelp::DamagedHelp(const QString& path) : whole(BytesOf(path)) {}

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
    const QList<ChmMember> members = UnpackChm(bytes);
    const auto book = std::make_shared<const HelpBook>(members);
    ++(book->pages().isEmpty() ? unreadable : readable);
    if (!book->pages().isEmpty())
        readInWindow(book, members);
}

inline void DamagedHelp::readInWindow(const std::shared_ptr<const HelpBook>& book,
                                      const QList<ChmMember>& members)
{
    HelpWindow window(book);
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.show();
    auto* const page = window.findChild<QTextBrowser*>("helpPage");
    for (const int topic : {100, 999})
        window.goToTopic(topic);
    for (const ChmMember& member : members) {
        if (!member.bytes.isNull() && undamaged.file(member.name) == member.bytes)
            continue;
        const QUrl address("help:/" + member.name);
        if (book->pages().contains(member.name)) {
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
    QApplication::processEvents(); // also paints it
}
