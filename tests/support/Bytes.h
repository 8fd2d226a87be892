#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <stdexcept>

/// The contents of a file. @throws std::runtime_error if it can't be read
inline QByteArray BytesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("no file " + path.toStdString());
    return file.readAll();
}
