#include "reports/ReportFile.h"

#include "core/RunTimeError.h"

#include <QDir>
#include <QFileInfo>

namespace {

/// @throws RunTimeError for the reason why the file can't be opened
std::unique_ptr<QFile> Opened(const std::string& path, QIODevice::OpenMode mode, Links links)
{
    auto file = std::make_unique<QFile>(QString::fromStdString(path));
    if (!path.empty() && OpenRegularFile(*file, mode | QIODevice::Text, links))
        return file;
    const QFileInfo tried(QString::fromStdString(path));
    if (!path.empty() && !tried.dir().exists())
        Raise(ErrorNumber::PathNotFound);
    if (!path.empty() && !tried.exists() && !mode.testFlag(QIODevice::WriteOnly))
        Raise(ErrorNumber::FileNotFound);
    Raise(ErrorNumber::PathFileAccess);
}

} // namespace

void NumberedFile::openForOutput(const std::string& path, Links links)
{
    if (isOpen())
        Raise(ErrorNumber::FileAlreadyOpen);
    file = Opened(path, QIODevice::WriteOnly | QIODevice::Unbuffered, links);
}

void NumberedFile::openForInput(const std::string& path, Links links)
{
    if (isOpen())
        Raise(ErrorNumber::FileAlreadyOpen);
    file = Opened(path, QIODevice::ReadOnly, links);
}

void NumberedFile::writeLine(const std::string& line)
{
    const QByteArray bytes = QString::fromStdString(line).toLocal8Bit() + '\n';
    if (file->write(bytes) != bytes.size())
        Raise(ErrorNumber::PathFileAccess);
}

std::string NumberedFile::readLine()
{
    QByteArray bytes = file->readLine();
    if (bytes.isEmpty())
        Raise(ErrorNumber::PathFileAccess);
    if (bytes.endsWith('\n'))
        bytes.chop(1);
    return QString::fromLocal8Bit(bytes).toStdString();
}
