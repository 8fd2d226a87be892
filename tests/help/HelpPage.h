#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>
#include <string>
#include <vector>

/// An element of a help page. A piece of text has no name.
struct HelpElement
{
    QString name;
    QMap<QString, QString> attributes;
    QString text;
    std::vector<HelpElement> children;
    qint64 line = 0;

    bool is(const QString& elementName, const QString& ofClass = {}) const;
    QStringList classes() const { return attributes.value("class").split(' ', Qt::SkipEmptyParts); }
    /// All text in it, with white space collapsed.
    QString words() const { return allText().simplified(); }
    /// All text in it, unchanged.
    QString allText() const;
    /// Calls the visitor with this element and all elements in it, in document order.
    void visit(const std::function<void(const HelpElement&)>& visitor) const;
    std::vector<const HelpElement*> all(const QString& elementName, const QString& ofClass = {}) const&;
    std::vector<const HelpElement*> all(const QString& elementName,
                                        const QString& ofClass = {}) const&& = delete;
};

/// The folder of the help's sources, and the names of its pages.
QString helpFolder();
QStringList helpPages();

/// A source file of the help, unchanged.
/// @throws std::runtime_error if it can't be read
QString helpSource(const QString& name);

/// @throws std::runtime_error with the position, if the page is not well-formed
HelpElement readHelpPage(const QString& page);

[[noreturn]] void failAt(const QString& page, qint64 line, const QString& what);
