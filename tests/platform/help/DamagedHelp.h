#pragma once

#include "platform/help/HelpWindow.h"

#include <QByteArray>
#include <QString>

#include <memory>

/// The bytes of a file. @throws std::runtime_error where there is none
QByteArray bytesOf(const QString& path);

/// Reads help files that are damaged, as a reader would: every page and picture, the topics, the contents,
/// the index, a search, all in a help window that is on the screen. Nothing of that may crash or hang. The
/// file that the damage is done to may be any.
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
    HelpWindow window;
};
