#include "SoapXmlSink.h"

#include "qtsoapnamespaces.h"
#include "SoapText.h"
#include "SoapUris.h"

#include <QTextStream>

namespace TOLVAN_NAMESPACE
{

QString SoapTextSink::uriOf(const QString& prefix) const
{
    for (int k = m_declared.size() - 1; k >= 0; --k) {
        if (m_declared.at(k).first == prefix) {
            return m_declared.at(k).second;
        }
    }
    return QString();
}

void SoapTextSink::appendDeclaration(const QString& prefix, const QString& uri)
{
    m_xml += prefix.isEmpty() ? QStringLiteral(" xmlns") : QLatin1String(" xmlns:") + prefix;
    m_xml += QLatin1String("=\"");
    SoapText::appendEscaped(m_xml, uri);
    m_xml += QLatin1Char('"');
    if (prefix.isEmpty()) {
        m_levels.last().defaultUri = uri;
    } else {
        m_declared.append({prefix, uri});
    }
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

void SoapTextSink::open(const QString& name, const QString& uri, const QString& prefix)
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
    if (!uri.isEmpty() && (uri != level.defaultUri || !prefix.isEmpty())) {
        level.prefix = prefix.isEmpty() ? QtSoapNamespaces::instance().prefixFor(uri) : prefix;
        declares = level.prefix.isEmpty() || uriOf(level.prefix) != uri;
    }
    m_xml += QLatin1Char('<');
    if (!level.prefix.isEmpty()) {
        m_xml += level.prefix + QLatin1Char(':');
    }
    m_xml += name;
    m_levels.append(level);
    if (declares) {
        appendDeclaration(level.prefix, uri);
    }
    m_tagOpen = true;
}

void SoapTextSink::declare(QLatin1String prefix, QLatin1String uri)
{
    if (uriOf(prefix) != uri) {
        appendDeclaration(prefix, uri);
    }
}

void SoapTextSink::clientAttribute(const QtSoapQName& name, const QString& value)
{
    QString prefix;
    if (!name.uri().isEmpty()) { // an attribute without prefix is in no namespace
        prefix = QtSoapNamespaces::instance().prefixFor(name.uri());
        for (int k = 1; prefix.isEmpty(); ++k) {
            const QString own = QStringLiteral("ns%1").arg(k);
            prefix = uriOf(own).isEmpty() || uriOf(own) == name.uri() ? own : QString();
        }
        if (uriOf(prefix) != name.uri() && name.uri() != SoapUris::Xml) {
            appendDeclaration(prefix, name.uri());
        }
        prefix += QLatin1Char(':');
    }
    m_xml += QLatin1Char(' ');
    m_xml += prefix;
    appendAttribute(name.name(), value);
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

template <class Name>
void SoapTextSink::appendAttribute(const Name& name, const QString& value)
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

void SoapDomSink::open(const QString& name, const QString& uri, const QString& wanted)
{
    QDomElement element;
    if (uri.isEmpty()) { // made without a namespace it inherits the default one when written
        element = m_document.createElement(name);
    } else {
        const QString prefix = wanted.isEmpty() ? QtSoapNamespaces::instance().prefixFor(uri) : wanted;
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

void SoapDomSink::clientAttribute(const QtSoapQName& name, const QString& value)
{
    if (name.uri().isEmpty()) {
        m_current.setAttribute(name.name(), SoapText::carriable(value));
        return;
    }
    const QString prefix = QtSoapNamespaces::instance().prefixFor(name.uri());
    m_current.setAttributeNS(
        name.uri(), (prefix.isEmpty() ? QStringLiteral("ns1") : prefix) + QLatin1Char(':') + name.name(),
        SoapText::carriable(value));
}

QString SoapDomSink::uriOf(const QString& prefix) const
{
    for (QDomElement element = m_current; !element.isNull(); element = element.parentNode().toElement()) {
        if (element.prefix() == prefix) {
            return element.namespaceURI();
        }
    }
    return QString();
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
