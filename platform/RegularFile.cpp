#include "platform/RegularFile.h"

#include <QFileInfo>

#ifdef Q_OS_WIN

bool OpenRegularFile(QFile& file, QIODevice::OpenMode mode, Links links)
{
    const QFileInfo there(file);
    if (there.exists() && (!there.isFile() || (links == Links::Refuse && there.isSymLink())))
        return false;
    return file.open(mode);
}

#else

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

int flagsFor(QIODevice::OpenMode mode, Links links)
{
    const int access = mode.testFlag(QIODevice::WriteOnly) ? O_WRONLY | O_CREAT : O_RDONLY;
    // Without O_NONBLOCK, opening a pipe blocks until the other end is open.
    return access | O_NONBLOCK | O_CLOEXEC | O_NOCTTY | (links == Links::Refuse ? O_NOFOLLOW : 0);
}

bool isRegular(int descriptor)
{
    struct stat status = {};
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

} // namespace

bool OpenRegularFile(QFile& file, QIODevice::OpenMode mode, Links links)
{
    constexpr mode_t everybody = 0666; // minus the user's umask
    const QByteArray path = QFile::encodeName(file.fileName());
    const int descriptor = ::open(path.constData(), flagsFor(mode, links), everybody);
    if (descriptor < 0)
        return false;
    // Truncate only here: a check before opening could see a different file of that name.
    const bool writes = mode.testFlag(QIODevice::WriteOnly);
    if (isRegular(descriptor) && (!writes || ftruncate(descriptor, 0) == 0) &&
        file.open(descriptor, mode, QFileDevice::AutoCloseHandle))
        return true;
    ::close(descriptor);
    return false;
}

#endif
