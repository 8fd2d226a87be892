#include "platform/SettingsStore.h"

#include "platform/RegularFile.h"

#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <memory>
#include <string_view>

namespace {

#ifdef Q_OS_WIN

constexpr auto storeFormat = QSettings::NativeFormat;

QString pathOf(const std::string& application)
{
    return "HKEY_CURRENT_USER\\Software\\" + QString::fromStdString(application);
}

bool isStore(const QString& /*key*/) { return true; }
bool canBeLocked(const QString& /*key*/) { return true; }

#else

constexpr auto storeFormat = QSettings::IniFormat;

QString pathOf(const std::string& application)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + '/' +
           QString::fromStdString(application) + ".ini";
}

/// True for a control character, which the toolkit never writes into a store.
bool isNoText(char character)
{
    constexpr std::string_view blanks = "\t\n\f\r";
    return static_cast<unsigned char>(character) < ' ' && blanks.find(character) == std::string_view::npos;
}

/// True for a text file of at most 1 MB, or if no file exists yet.
bool isStore(const QString& path)
{
    constexpr qint64 largest = 1'000'000;
    std::error_code unknown;
    if (std::filesystem::status(path.toStdString(), unknown).type() == std::filesystem::file_type::not_found)
        return true;
    QFile file(path);
    if (!OpenRegularFile(file, QIODevice::ReadOnly, Links::Follow))
        return false;
    const QByteArray bytes = file.read(largest + 1);
    return bytes.size() <= largest && std::ranges::none_of(bytes, isNoText);
}

/// Returns false if the store's lock stays taken, because the toolkit would wait for it forever.
bool canBeLocked(const QString& path)
{
    const QString name = path + ".lock";
    for (const QString& taken : {name, name + ".rmlock"}) {
        if (QFileInfo::exists(taken) && !QFileInfo(taken).isFile())
            return false;
    }
    constexpr std::chrono::milliseconds longestWait(1000);
    QLockFile lock(name);
    return lock.tryLock(longestWait) || lock.error() != QLockFile::LockFailedError;
}

#endif

/// Returns false until the program ends if the store could not be read once.
bool isUsable(const QString& path)
{
    static QStringList leftAlone;
    if (!leftAlone.contains(path) && !isStore(path))
        leftAlone << path;
    return !leftAlone.contains(path);
}

/// The key as spelled in the store, or as requested if the store doesn't have it.
QString storedSpelling(const QSettings& store, const QString& key)
{
    for (const QString& stored : store.childKeys()) {
        if (stored.compare(key, Qt::CaseInsensitive) == 0)
            return stored;
    }
    return key;
}

} // namespace

std::string UnreadableStore(const std::string& application)
{
    const QString path = pathOf(application);
    return isUsable(path) ? std::string() : path.toStdString();
}

std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                       const std::string& defaultText)
{
    const QString path = pathOf(application);
    if (!isUsable(path))
        return defaultText;
    QSettings store(path, storeFormat);
    store.beginGroup(QString::fromStdString(section));
    const QString spelling = storedSpelling(store, QString::fromStdString(key));
    if (!store.contains(spelling))
        return defaultText;
    // The toolkit reads an unquoted comma, typed into the file by hand, as a list separator.
    return store.value(spelling).toStringList().join(',').toStdString();
}

void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                 const std::string& text)
{
    const QString path = pathOf(application);
    if (!isUsable(path) || !canBeLocked(path))
        return;
    QSettings store(path, storeFormat);
    store.beginGroup(QString::fromStdString(section));
    store.setValue(storedSpelling(store, QString::fromStdString(key)), QString::fromStdString(text));
    store.sync();
}
