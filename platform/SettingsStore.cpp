#include "platform/SettingsStore.h"

#include <QSettings>
#include <QStandardPaths>

#include <memory>

namespace {

std::unique_ptr<QSettings> openStore(const QString& application)
{
#ifdef Q_OS_WIN
    return std::make_unique<QSettings>("HKEY_CURRENT_USER\\Software\\" + application,
                                       QSettings::NativeFormat);
#else
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return std::make_unique<QSettings>(folder + "/" + application + ".ini", QSettings::IniFormat);
#endif
}

/// The key as it is spelled in the store, or as it was asked for where the store hasn't got it.
QString storedSpelling(const QSettings& store, const QString& key)
{
    for (const QString& stored : store.childKeys()) {
        if (stored.compare(key, Qt::CaseInsensitive) == 0)
            return stored;
    }
    return key;
}

} // namespace

std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                       const std::string& defaultText)
{
    const auto store = openStore(QString::fromStdString(application));
    store->beginGroup(QString::fromStdString(section));
    const QString spelling = storedSpelling(*store, QString::fromStdString(key));
    if (!store->contains(spelling))
        return defaultText;
    // A comma that someone wrote into the file without quotes makes the toolkit see a list.
    return store->value(spelling).toStringList().join(',').toStdString();
}

void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                 const std::string& text)
{
    const auto store = openStore(QString::fromStdString(application));
    store->beginGroup(QString::fromStdString(section));
    store->setValue(storedSpelling(*store, QString::fromStdString(key)), QString::fromStdString(text));
    store->sync();
}
