#pragma once

#include <QString>
#include <QStringView>

/// Text with its entities resolved: numbers, and the names that help texts in western languages use. An
/// unknown one stays as it stands.
QString ResolveEntities(QStringView text);
