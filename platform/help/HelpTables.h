#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

/// What a help file says about itself. Empty where it doesn't.
struct SystemTable
{
    QString contents; ///< the name of the page that holds the contents tree
    QString index;    ///< of the page that holds the index
    QString homePage;
    QString title;
};

/// Reads the member "#SYSTEM": records of a code, a length and the data. A damaged rest is left out.
SystemTable ReadSystemTable(const QByteArray& member);

/// Reads the member "#IVB", pairs of a topic number and the place of a page's name in the member "#STRINGS".
QHash<int, QString> ReadTopicMap(const QByteArray& numbers, const QByteArray& strings);
