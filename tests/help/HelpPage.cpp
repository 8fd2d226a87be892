#include "tests/help/HelpPage.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

#include <stdexcept>

namespace {

HelpElement readElement(QXmlStreamReader& xml)
{
    HelpElement element;
    element.name = xml.name().toString();
    element.line = xml.lineNumber();
    for (const QXmlStreamAttribute& attribute : xml.attributes())
        element.attributes[attribute.name().toString()] = attribute.value().toString();
    while (xml.readNext() != QXmlStreamReader::EndElement && !xml.hasError()) {
        if (xml.isStartElement())
            element.children.push_back(readElement(xml));
        else if (xml.isCharacters())
            element.children.push_back({{}, {}, xml.text().toString(), {}, xml.lineNumber()});
    }
    return element;
}

} // namespace

bool HelpElement::is(const QString& elementName, const QString& ofClass) const
{
    return name == elementName && (ofClass.isEmpty() || classes().contains(ofClass));
}

QString HelpElement::allText() const
{
    QString together = text;
    for (const HelpElement& child : children)
        together += child.allText();
    return together;
}

void HelpElement::visit(const std::function<void(const HelpElement&)>& visitor) const
{
    visitor(*this);
    for (const HelpElement& child : children)
        child.visit(visitor);
}

std::vector<const HelpElement*> HelpElement::all(const QString& elementName, const QString& ofClass) const&
{
    std::vector<const HelpElement*> found;
    visit([&](const HelpElement& element) {
        if (element.is(elementName, ofClass))
            found.push_back(&element);
    });
    return found;
}

QString helpFolder() { return QStringLiteral(DUNMOOR_SOURCES "/help"); }
QStringList helpPages() { return QDir(helpFolder()).entryList({"*.html"}); }

QString helpSource(const QString& name)
{
    QFile file(helpFolder() + '/' + name);
    if (!file.open(QIODevice::ReadOnly))
        failAt(name, 0, "can't be read");
    return QString::fromUtf8(file.readAll());
}

HelpElement readHelpPage(const QString& page)
{
    QXmlStreamReader xml(helpSource(page));
    xml.readNextStartElement();
    HelpElement html = readElement(xml);
    if (xml.hasError())
        failAt(page, xml.lineNumber(), xml.errorString());
    return html;
}

void failAt(const QString& page, qint64 line, const QString& what)
{
    throw std::runtime_error(QString("help/%1:%2: %3").arg(page).arg(line).arg(what).toStdString());
}
