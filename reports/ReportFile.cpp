#include "reports/ReportFile.h"

#include "core/RunTimeError.h"
#include "platform/WorkFolders.h"

#include <QDir>
#include <QFileInfo>

namespace {

std::string madeFolder(const std::string& name)
{
    std::string folder = WorkFolder(ReportsBase(), name);
    if (!FolderExists(folder) && !MakeFolder(folder))
        Raise(ErrorNumber::PathFileAccess);
    return folder;
}

} // namespace

std::string DataFolder() { return madeFolder("data"); }
std::string TempFolder() { return madeFolder("tempdata"); }

void NumberedFile::openForOutput(const std::string& path, Links links)
{
    open(path, QIODevice::WriteOnly | QIODevice::Unbuffered, links);
}

void NumberedFile::openForInput(const std::string& path, Links links)
{
    open(path, QIODevice::ReadOnly, links);
}

void NumberedFile::open(const std::string& path, QIODevice::OpenMode mode, Links links)
{
    if (isOpen())
        Raise(ErrorNumber::FileAlreadyOpen);
    auto opened = std::make_unique<QFile>(QString::fromStdString(path));
    const QFileInfo tried(*opened);
    if (path.empty())
        Raise(ErrorNumber::PathFileAccess);
    if (OpenRegularFile(*opened, mode | QIODevice::Text, links))
        file = std::move(opened);
    else if (!tried.dir().exists())
        Raise(ErrorNumber::PathNotFound);
    else if (!tried.exists() && !mode.testFlag(QIODevice::WriteOnly))
        Raise(ErrorNumber::FileNotFound);
    else
        Raise(ErrorNumber::PathFileAccess);
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
