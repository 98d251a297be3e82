#include "SoapDomCursor.h"

#include "SoapDocumentCheck.h"
#include "SoapUris.h"

#include <QDomAttr>
#include <QDomDocument>
#include <QDomNamedNodeMap>

namespace TOLVAN_NAMESPACE
{

namespace
{

/// The next text or element among \a node and its later siblings; null when there is none.
QDomNode relevant(QDomNode node)
{
    while (!node.isNull() && !node.isElement() && !node.isText()) {
        node = node.nextSibling();
    }
    return node;
}

QString localName(const QDomNode& node)
{
    return node.localName().isEmpty() ? soapLocalPart(node.nodeName()) : node.localName();
}

/// Qt's reader leaves a prefix unresolved that is declared behind its use in the same tag; the usual ones are
/// known.
QString uriOf(const QDomAttr& attribute)
{
    if (!attribute.namespaceURI().isEmpty()) {
        return attribute.namespaceURI();
    }
    const QString name = attribute.nodeName();
    if (name.startsWith(QLatin1String("SOAP-ENC:"))) {
        return SoapUris::Encoding;
    }
    if (name.startsWith(QLatin1String("xsi:"))) {
        return SoapUris::SchemaInstance;
    }
    return name.startsWith(QLatin1String("SOAP-ENV:")) ? QString(SoapUris::Envelope) : QString();
}

} // namespace

SoapDomCursor::SoapDomCursor(const QDomNode& root, const QtSoapLimits& limits)
    : SoapXmlCursor(limits)
    , m_root(root)
{
    if (root.isDocument()) {
        if (!root.toDocument().doctype().isNull() && !root.toDocument().doctype().name().isEmpty()) {
            fail(documentTypeRefusal());
        }
        m_root = root.toDocument().documentElement();
    }
    if (!m_root.isElement()) {
        fail(QStringLiteral("There is no element to read"));
    }
}

SoapXmlCursor::Token SoapDomCursor::start(const QDomElement& element)
{
    if (!enter()) {
        return Token::Error;
    }
    m_current = element;
    m_inside = true;
    m_element = SoapElement();
    m_element.name = localName(element);
    m_element.uri = element.namespaceURI();
    const QDomNamedNodeMap attributes = element.attributes();
    for (int k = 0; k < attributes.count(); ++k) {
        const QDomAttr attribute = attributes.item(k).toAttr();
        m_element.setAttribute(uriOf(attribute), localName(attribute), attribute.value());
    }
    return Token::StartElement;
}

SoapXmlCursor::Token SoapDomCursor::next()
{
    if (!m_error.isEmpty()) {
        return Token::Error;
    }
    if (m_finished) {
        return Token::End;
    }
    if (m_current.isNull()) {
        return start(m_root.toElement());
    }
    const QDomNode following = relevant(m_inside ? m_current.firstChild() : m_current.nextSibling());
    if (following.isElement()) {
        return start(following.toElement());
    }
    if (following.isText()) { // CDATA sections are texts, too
        m_current = following;
        m_inside = false;
        m_text = following.nodeValue();
        return Token::Text;
    }
    if (!m_inside) {
        m_current = m_current.parentNode();
    }
    m_inside = false;
    leave();
    m_finished = m_current == m_root;
    return Token::EndElement;
}

QDomElement SoapDomCursor::takeElement()
{
    m_inside = false;
    leave();
    m_finished = m_current == m_root;
    return m_current.toElement();
}

} // namespace TOLVAN_NAMESPACE
