#include "SoapXmlSink.h"

#include "qtsoapnamespaces.h"
#include "SoapText.h"
#include "SoapUris.h"

#include <QTextStream>

namespace TOLVAN_NAMESPACE
{

bool SoapTextSink::isDeclared(const QString& uri) const
{
    return m_declared.contains(uri);
}

void SoapTextSink::finishTag()
{
    if (m_tagOpen) {
        m_xml += QLatin1Char('>');
    }
    m_tagOpen = false;
}

void SoapTextSink::newLine(int level)
{
    if (m_indent > 0 && !m_xml.isEmpty()) {
        m_xml += QLatin1Char('\n') + QString(level * m_indent, QLatin1Char(' '));
    }
}

void SoapTextSink::open(const QString& name, const QString& uri)
{
    finishTag();
    newLine(m_levels.size());
    Level level;
    level.name = name;
    level.declared = m_declared.size();
    if (!m_levels.isEmpty()) {
        level.defaultUri = m_levels.last().defaultUri;
        m_levels.last().hasElements = true;
    }
    bool declares = false;
    if (!uri.isEmpty() && uri != level.defaultUri) {
        level.prefix = QtSoapNamespaces::instance().prefixFor(uri);
        declares = level.prefix.isEmpty() || !isDeclared(uri);
    }
    m_xml += QLatin1Char('<');
    if (!level.prefix.isEmpty()) {
        m_xml += level.prefix + QLatin1Char(':');
    }
    m_xml += name;
    if (declares) {
        m_xml += level.prefix.isEmpty() ? QStringLiteral(" xmlns") : QLatin1String(" xmlns:") + level.prefix;
        m_xml += QLatin1String("=\"");
        SoapText::appendEscaped(m_xml, uri);
        m_xml += QLatin1Char('"');
        if (level.prefix.isEmpty()) {
            level.defaultUri = uri;
        } else {
            m_declared.append(uri);
        }
    }
    m_tagOpen = true;
    m_levels.append(level);
}

void SoapTextSink::declare(QLatin1String prefix, QLatin1String uri)
{
    if (isDeclared(uri)) {
        return;
    }
    m_xml += QLatin1String(" xmlns:") + prefix + QLatin1String("=\"") + uri + QLatin1Char('"');
    m_declared.append(uri);
}

void SoapTextSink::attribute(const SoapAttributeName& name, const QString& value)
{
    m_xml += QLatin1Char(' ');
    m_xml += name.prefix;
    m_xml += QLatin1Char(':');
    appendAttribute(name.name, value);
}

void SoapTextSink::plainAttribute(QLatin1String name, const QString& value)
{
    m_xml += QLatin1Char(' ');
    appendAttribute(name, value);
}

void SoapTextSink::appendAttribute(QLatin1String name, const QString& value)
{
    m_xml += name;
    m_xml += QLatin1String("=\"");
    SoapText::appendEscaped(m_xml, value);
    m_xml += QLatin1Char('"');
}

void SoapTextSink::text(const QString& text)
{
    if (text.isEmpty()) {
        return;
    }
    finishTag();
    SoapText::appendEscaped(m_xml, text);
}

void SoapTextSink::close()
{
    const Level level = m_levels.takeLast();
    m_declared.resize(level.declared);
    if (m_tagOpen) {
        m_xml += QLatin1String("/>");
        m_tagOpen = false;
        return;
    }
    if (level.hasElements) {
        newLine(m_levels.size());
    }
    m_xml += QLatin1String("</");
    if (!level.prefix.isEmpty()) {
        m_xml += level.prefix + QLatin1Char(':');
    }
    m_xml += level.name;
    m_xml += QLatin1Char('>');
}

void SoapTextSink::tree(const QDomElement& element)
{
    if (element.isNull()) {
        return;
    }
    finishTag();
    newLine(m_levels.size());
    if (!m_levels.isEmpty()) {
        m_levels.last().hasElements = true;
    }
    QTextStream stream(&m_xml, QIODevice::Append);
    element.save(stream, -1);
}

QDomDocument SoapTextSink::document()
{
    if (m_document.isNull()) { // its copies share nothing, and elements made by them die early
        m_document.createElement(QStringLiteral("first"));
    }
    return m_document;
}

void SoapDomSink::open(const QString& name, const QString& uri)
{
    QDomElement element;
    if (uri.isEmpty()) { // made without a namespace it inherits the default one when written
        element = m_document.createElement(name);
    } else {
        const QString prefix = QtSoapNamespaces::instance().prefixFor(uri);
        element = m_document.createElementNS(uri, prefix.isEmpty() ? name : prefix + QLatin1Char(':') + name);
    }
    if (m_current.isNull()) {
        m_root = element;
        element.setAttribute(QStringLiteral("xmlns:xsd"),
                             QString(SoapUris::Schema)); // values name types with it
    } else {
        m_current.appendChild(element);
    }
    m_current = element;
}

void SoapDomSink::attribute(const SoapAttributeName& name, const QString& value)
{
    m_current.setAttributeNS(name.uri, name.prefix + QLatin1Char(':') + name.name,
                             SoapText::carriable(value));
}

void SoapDomSink::plainAttribute(QLatin1String name, const QString& value)
{
    m_current.setAttribute(name, SoapText::carriable(value));
}

void SoapDomSink::text(const QString& text)
{
    m_current.appendChild(m_document.createTextNode(SoapText::carriable(text)));
}

void SoapDomSink::close()
{
    m_current = m_current.parentNode().toElement();
}

void SoapDomSink::tree(const QDomElement& element)
{
    m_current.appendChild(element);
}

} // namespace TOLVAN_NAMESPACE
