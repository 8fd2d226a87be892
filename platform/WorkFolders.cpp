#include "platform/WorkFolders.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#ifndef Q_OS_WIN
#include <unistd.h>
#endif

namespace {

constexpr QFileDevice::Permissions writableByOthers = QFileDevice::WriteGroup | QFileDevice::WriteOther;

/// True if it belongs to the user and nobody else may write to it.
bool isPrivate(const QFileInfo& path)
{
#ifdef Q_OS_WIN
    return path.exists();
#else
    return path.exists() && path.ownerId() == geteuid() && !(path.permissions() & writableByOthers);
#endif
}

/// Whether the folder can be used, or created if missing. If others may write to it, they could plant a link
/// or a pipe under a report's name.
bool isUsable(const QFileInfo& folder, const QFileInfo& above)
{
    const bool isThere = folder.exists() || folder.isSymLink();
    if (!isPrivate(above) || (isThere && !isPrivate(folder)))
        return false;
    return (isThere ? folder : above).isWritable();
}

} // namespace

std::string WorkFolder(const std::string& applicationFolder, const std::string& name)
{
    const QString application = QString::fromStdString(applicationFolder);
    const QString below = '/' + QString::fromStdString(name);
    if (isUsable(QFileInfo(application + below), QFileInfo(application)))
        return (application + below).toStdString();
    return (QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + below).toStdString();
}

bool FolderExists(const std::string& path) { return QFileInfo(QString::fromStdString(path)).isDir(); }

bool MakeFolder(const std::string& path)
{
    const QString folder = QString::fromStdString(path);
    if (!QDir().mkpath(folder))
        return false;
    const QFileDevice::Permissions given = QFileInfo(folder).permissions();
    return !(given & writableByOthers) || QFile::setPermissions(folder, given & ~writableByOthers);
}
