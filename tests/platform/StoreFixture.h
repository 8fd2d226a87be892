#pragma once

#include "platform/SettingsStore.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// A settings store in the test's own folder.
class Store : public testing::Test
{
protected:
    Store()
    {
        qputenv("XDG_CONFIG_HOME", folder().toUtf8());
        QDir().mkpath(folder());
    }

    QString folder() const { return place.path() + "/config"; }
    QString file() const { return folder() + "/Dunmoor.ini"; }

    static void save(const std::string& key, const std::string& text)
    {
        SaveSetting("Dunmoor", "Settings", key, text);
    }
    static std::string saved(const std::string& key)
    {
        return GetSetting("Dunmoor", "Settings", key, "(nothing)");
    }

    static std::string bytes(const QString& path)
    {
        QFile stored(path);
        return stored.open(QIODevice::ReadOnly) ? stored.readAll().toStdString() : "(no file)";
    }

    static void write(const QString& path, const QByteArray& text)
    {
        QFile stored(path);
        ASSERT_TRUE(stored.open(QIODevice::WriteOnly));
        stored.write(text);
    }

    QTemporaryDir place;
};
