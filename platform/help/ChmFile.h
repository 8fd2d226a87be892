#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace help {

/// A file within a compiled help file.
struct ChmMember
{
    QString name;     ///< as the help file spells it, without a leading slash
    QByteArray bytes; ///< null if damaged
};

constexpr qint64 largestChmFile = 16 << 20;
constexpr qint64 largestChmMember = 4 << 20;
constexpr qint64 largestChmContent = 32 << 20; ///< of all members
constexpr int mostChmMembers = 4096;

/// Unpacks a compiled help file: its members in the order in which they are stored. The bytes may be damaged
/// anywhere. A member beyond the limits is left out.
/// @return nothing if the bytes can't be read as a help file
QList<ChmMember> UnpackChm(const QByteArray& bytes);

} // namespace help
