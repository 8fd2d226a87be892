#include "platform/WorkFolders.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

/// What decides is the folder itself, or, before it is made, the one that it is to be made in.
bool mayWriteIn(const QString& folder, const QString& above)
{
    return QFileInfo(QFileInfo::exists(folder) ? folder : above).isWritable();
}

} // namespace

std::string WorkFolder(const std::string& applicationFolder, const std::string& name)
{
    const QString application = QString::fromStdString(applicationFolder);
    const QString below = '/' + QString::fromStdString(name);
    if (mayWriteIn(application + below, application))
        return (application + below).toStdString();
    return (QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + below).toStdString();
}

bool FolderExists(const std::string& path) { return QFileInfo(QString::fromStdString(path)).isDir(); }

bool MakeFolder(const std::string& path) { return QDir().mkpath(QString::fromStdString(path)); }
