#pragma once

#include <QList>
#include <QString>
#include <QStringView>

/// A piece of a page: text, a tag with its attributes, or what is neither (a comment, a declaration).
struct HtmlPiece
{
    enum class Kind
    {
        Text,
        Tag,
        Other
    };
    struct Attribute
    {
        QString name; ///< in lower case
        QString value;
    };

    Kind kind = Kind::Other;
    QStringView source;          ///< as it stands on the page
    QString tag;                 ///< in lower case
    bool isEnd = false;          ///< of an element
    bool isInvisible = false;    ///< a text that is a script or a style sheet
    QList<Attribute> attributes; ///< entities resolved

    QString attribute(QStringView name) const;
};

/// Cuts a page into its pieces, one after the other, whatever it holds. The page must outlive it.
class HtmlScanner
{
public:
    explicit HtmlScanner(QStringView page) : rest(page) {}

    /// @return false at the end of the page
    bool next(HtmlPiece& piece);

private:
    void scanText(HtmlPiece& piece);
    void scanHidden(HtmlPiece& piece);
    void scanComment(HtmlPiece& piece);
    void scanTag(HtmlPiece& piece);
    QStringView take(qsizetype length);

    QStringView rest;
    QString hiddenElement; // that the scanner is in: script or style
};

/// The text of bytes of unknown encoding: UTF-8 where they are, else the western code page of old help files.
QString DecodeText(const QByteArray& bytes);
