#pragma once

#include <QString>

/// What a page says, without its markup.
struct PageText
{
    QString title;
    QString text; ///< the words of its body, with single spaces
};

PageText ReadPageText(const QString& page);
