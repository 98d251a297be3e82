#include "SoapMessageReader.h"

#include "SoapReferences.h"
#include "SoapUris.h"

namespace TOLVAN_NAMESPACE
{

using Token = SoapXmlCursor::Token;

bool SoapMessageReader::envelope()
{
    if (m_cursor.next() != Token::StartElement) {
        return m_cursor.fail(QStringLiteral("The document is empty"));
    }
    const SoapElement root = m_cursor.element();
    if (root.name != QLatin1String("Envelope")) {
        return m_cursor.fail(
            QStringLiteral("The document is no SOAP message: its root is \"%1\"").arg(root.name.left(80)));
    }
    m_values.note(root);
    m_otherVersion = root.uri != SoapUris::Envelope;
    return !m_otherVersion ||
           m_cursor.fail(
               QStringLiteral("The envelope is of another SOAP version: \"%1\"").arg(root.uri.left(200)));
}

bool SoapMessageReader::entries(QList<QtSmartPtr<QtSoapType>>& target)
{
    for (;;) {
        switch (m_cursor.next()) {
        case Token::StartElement: {
            const SoapElement& element = m_cursor.element();
            // an answer without results is an empty struct, as clients look into it
            const bool plain = &target == &m_body && !element.nil && element.href.isEmpty();
            target.append(m_values.value(plain ? QtSoapType::Struct : QtSoapType::Other));
            if (target.last().isNull()) {
                return false;
            }
            break;
        }
        case Token::Text: // between entries there is only layout
            break;
        case Token::EndElement:
            return true;
        default:
            return m_cursor.fail(QStringLiteral("The document ends too early"));
        }
    }
}

/// A child of the envelope.
bool SoapMessageReader::entry()
{
    const SoapElement element = m_cursor.element();
    m_values.note(element);
    m_isEmpty = false;
    if (element.uri == SoapUris::Envelope && element.name == QLatin1String("Header")) {
        if (m_hasHeader || m_hasBody) {
            return m_cursor.fail(m_hasBody ? QStringLiteral("The header comes behind the body")
                                           : QStringLiteral("The envelope has two headers"));
        }
        m_hasHeader = true;
        return entries(m_header);
    }
    if (element.uri == SoapUris::Envelope && element.name == QLatin1String("Body")) {
        if (m_hasBody) {
            return m_cursor.fail(QStringLiteral("The envelope has two bodies"));
        }
        m_hasBody = true;
        return entries(m_body);
    }
    return !m_values.value().isNull();
}

bool SoapMessageReader::read()
{
    if (!envelope()) {
        return false;
    }
    for (Token token = m_cursor.next(); token != Token::EndElement; token = m_cursor.next()) {
        if (token == Token::StartElement ? !entry() : token != Token::Text) {
            return m_cursor.fail(QStringLiteral("The document ends too early"));
        }
    }
    if (m_cursor.next() != Token::End) { // what follows the envelope must be well-formed, too
        return m_cursor.fail(QStringLiteral("Something follows the envelope"));
    }
    if (!m_hasBody && !m_isEmpty) {
        return m_cursor.fail(QStringLiteral("The envelope has no body"));
    }
    return m_values.checkIdentities() &&
           (!m_values.hasReferences() || SoapReferences(m_cursor).resolve({&m_header, &m_body}));
}

} // namespace TOLVAN_NAMESPACE
