#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace help {

/// A file inside a compiled help file.
struct ChmMember
{
    QString name;     ///< as spelled in the help file, without a leading slash
    QByteArray bytes; ///< null if damaged
};

constexpr qint64 largestChmFile = 16 << 20;
constexpr qint64 largestChmMember = 4 << 20;
constexpr qint64 largestChmContent = 32 << 20; ///< all members together
constexpr int mostChmMembers = 4096;

/// Unpacks a compiled help file: its members in stored order. Any byte may be damaged. Leaves out a member
/// beyond the limits.
/// @return nothing if the bytes are not a readable help file
QList<ChmMember> UnpackChm(const QByteArray& bytes);

} // namespace help
