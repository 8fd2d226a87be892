#include "platform/TextFile.h"

#include "platform/RegularFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

FileFault reasonWhyClosed(const QFileInfo& path)
{
    if (!path.dir().exists())
        return FileFault::PathNotFound;
    return path.exists() ? FileFault::Access : FileFault::FileNotFound;
}

} // namespace

TextFile::TextFile() = default;
TextFile::~TextFile() = default;

FileFault TextFile::openForOutput(const std::string& path, Links links)
{
    if (isOpen())
        return FileFault::AlreadyOpen;
    if (path.empty())
        return FileFault::Access;
    auto opened = std::make_unique<QFile>(QString::fromStdString(path));
    if (!OpenRegularFile(*opened, QIODevice::WriteOnly | QIODevice::Text | QIODevice::Unbuffered, links)) {
        const FileFault reason = reasonWhyClosed(QFileInfo(opened->fileName()));
        return reason == FileFault::FileNotFound ? FileFault::Access : reason;
    }
    file = std::move(opened);
    return FileFault::None;
}

FileFault TextFile::openForInput(const std::string& path, Links links)
{
    if (isOpen())
        return FileFault::AlreadyOpen;
    if (path.empty())
        return FileFault::Access;
    auto opened = std::make_unique<QFile>(QString::fromStdString(path));
    if (!OpenRegularFile(*opened, QIODevice::ReadOnly | QIODevice::Text, links))
        return reasonWhyClosed(QFileInfo(opened->fileName()));
    file = std::move(opened);
    return FileFault::None;
}

bool TextFile::isOpen() const { return file != nullptr; }

FileFault TextFile::writeLine(const std::string& line)
{
    const QByteArray bytes = QString::fromStdString(line).toLocal8Bit() + '\n';
    return file->write(bytes) == bytes.size() ? FileFault::None : FileFault::Access;
}

bool TextFile::atEnd() const { return file->atEnd(); }

FileFault TextFile::readLine(std::string& line)
{
    QByteArray bytes = file->readLine();
    if (bytes.isEmpty())
        return FileFault::Access;
    if (bytes.endsWith('\n'))
        bytes.chop(1);
    line = QString::fromLocal8Bit(bytes).toStdString();
    return FileFault::None;
}

void TextFile::close() { file.reset(); }
