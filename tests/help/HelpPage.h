#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>
#include <string>
#include <vector>

/// An element of a help page, or, where it has no name, a piece of text.
struct HelpElement
{
    QString name;
    QMap<QString, QString> attributes;
    QString text;
    std::vector<HelpElement> children;
    qint64 line = 0;

    bool is(const QString& elementName, const QString& ofClass = {}) const;
    QStringList classes() const { return attributes.value("class").split(' ', Qt::SkipEmptyParts); }
    /// All text in it, blanks run together.
    QString words() const { return allText().simplified(); }
    /// All text in it as it stands.
    QString allText() const;
    /// Calls the visitor with each element in it, itself first, in the order of the page.
    void visit(const std::function<void(const HelpElement&)>& visitor) const;
    std::vector<const HelpElement*> all(const QString& elementName, const QString& ofClass = {}) const&;
    std::vector<const HelpElement*> all(const QString& elementName,
                                        const QString& ofClass = {}) const&& = delete;
};

/// The folder of the help's sources, and the names of the pages in it.
QString helpFolder();
QStringList helpPages();

/// A source of the help as it stands.
/// @throws std::runtime_error where it can't be read
QString helpSource(const QString& name);

/// @throws std::runtime_error with the place, where the page is not well-formed
HelpElement readHelpPage(const QString& page);

[[noreturn]] void failAt(const QString& page, qint64 line, const QString& what);
