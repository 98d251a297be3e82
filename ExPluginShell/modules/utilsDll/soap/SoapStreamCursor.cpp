#include "SoapStreamCursor.h"

#include "SoapDocumentCheck.h"
#include "SoapLimits.h"

#include <QDomDocument>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr int pieceBytes = 64 * 1024;
constexpr int longestPiece = 4 * 1024 * 1024;

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

} // namespace

SoapStreamCursor::SoapStreamCursor(const QByteArray& document, const QtSoapLimits& limits)
    : SoapXmlCursor(limits)
    , m_document(document)
    , m_piece(pieceBytes)
{
    const SoapDocumentCheck check(document, limits);
    if (!check.error.isEmpty()) {
        fail(check.error);
        return;
    }
    if (spend(check.memory + check.text)) { // before the reader makes its copy
        spend(-check.text);
    }
    m_decoded = !check.utf8.isNull();
    if (m_decoded) {
        m_document = check.utf8;
        m_reader.addData(QString(QLatin1String(""))); // a declared encoding is not that of the bytes any more
    }
    // Some servers send blank lines before the declaration, where XML allows none.
    m_fed = m_document.startsWith("\xEF\xBB\xBF") ? 3 : 0;
    while (m_fed < m_document.size() && isBlank(m_document.at(m_fed))) {
        m_skippedLines += m_document.at(m_fed++) == '\n' ? 1 : 0;
    }
}

/// Gives the reader the next piece of the document; it would decode all of a longer one at once.
bool SoapStreamCursor::feed()
{
    if (m_fed >= m_document.size()) {
        return false;
    }
    int size = qMin(m_piece, m_document.size() - m_fed);
    const int tag = m_fed + size < m_document.size() ? m_document.lastIndexOf('<', m_fed + size) : -1;
    if (tag > m_fed) { // between tags: the reader would look at the beginning of a tag once more
        size = tag - m_fed;
        m_piece = pieceBytes;
    } else { // a text so long that the reader, which copies it with each piece, should get larger ones
        m_piece = qMin(2 * m_piece, longestPiece);
    }
    m_reader.addData(QByteArray::fromRawData(m_document.constData() + m_fed, size));
    m_fed += size;
    return true;
}

SoapXmlCursor::Token SoapStreamCursor::failHere(const QString& error)
{
    fail(QStringLiteral("Line %1, column %2: %3")
             .arg(m_reader.lineNumber() + m_skippedLines)
             .arg(m_reader.columnNumber())
             .arg(error));
    return Token::Error;
}

QString SoapStreamCursor::shared(QStringView name)
{
    constexpr int MaximumShared = 4096; // a document of ever new names shall not fill the table
    const QString key = QString::fromRawData(name.data(), static_cast<int>(name.size()));
    const auto known = m_names.constFind(key);
    if (known != m_names.constEnd()) {
        return *known;
    }
    const QString copy = name.toString();
    spend(SoapLimits::TextBytes + 2 * copy.size());
    if (m_names.size() < MaximumShared) {
        m_names.insert(copy, copy);
    }
    return copy;
}

SoapXmlCursor::Token SoapStreamCursor::start()
{
    if (!enter()) {
        return Token::Error;
    }
    const int declared = m_reader.namespaceDeclarations().size();
    m_declarations.append(declared);
    m_namespaces += declared;
    if (m_namespaces > SoapLimits::Namespaces) {
        return failHere(QStringLiteral("More than %1 namespaces are declared").arg(SoapLimits::Namespaces));
    }
    return Token::StartElement;
}

/// One step of the reader, with the checks that hold for values and for trees.
SoapXmlCursor::Token SoapStreamCursor::advance()
{
    while (m_error.isEmpty()) {
        switch (m_reader.readNext()) {
        case QXmlStreamReader::StartElement:
            return start();
        case QXmlStreamReader::EndElement:
            leave();
            m_namespaces -= m_declarations.takeLast();
            return Token::EndElement;
        case QXmlStreamReader::Characters:
            return Token::Text;
        case QXmlStreamReader::EndDocument:
            return Token::End;
        case QXmlStreamReader::StartDocument:
            if (!m_decoded && !isSoapEncoding(m_reader.documentEncoding())) {
                return failHere(
                    QStringLiteral("The encoding \"%1\" is not supported").arg(m_reader.documentEncoding()));
            }
            break;
        case QXmlStreamReader::DTD:
            return failHere(documentTypeRefusal());
        case QXmlStreamReader::EntityReference:
            return failHere(QStringLiteral("The entity \"%1\" is not defined").arg(m_reader.name()));
        case QXmlStreamReader::Invalid:
            if (m_reader.error() == QXmlStreamReader::PrematureEndOfDocumentError && feed()) {
                break;
            }
            return failHere(m_reader.errorString());
        default: // comments and processing instructions
            break;
        }
    }
    return Token::Error;
}

SoapXmlCursor::Token SoapStreamCursor::next()
{
    const Token token = advance();
    if (token != Token::StartElement) {
        return token;
    }
    m_element = SoapElement();
    m_element.name = shared(m_reader.name());
    m_element.uri = shared(m_reader.namespaceUri());
    const QXmlStreamAttributes attributes = m_reader.attributes();
    for (const QXmlStreamAttribute& attribute : attributes) {
        m_element.setAttribute(shared(attribute.namespaceUri()), shared(attribute.name()),
                               shared(attribute.value()));
    }
    return token;
}

QString SoapStreamCursor::text() const
{
    // not toString(): that would share, and keep alive, the reader's buffer of 256 characters and more
    const QStringView piece = m_reader.text();
    return QString(piece.data(), static_cast<int>(piece.size()));
}

QDomElement SoapStreamCursor::takeElement()
{
    QDomDocument document;
    const auto open = [&] {
        constexpr int elementBytes = 800; // of a tree
        spend(elementBytes);
        QDomElement element =
            document.createElementNS(m_reader.namespaceUri().toString(), m_reader.qualifiedName().toString());
        const QXmlStreamAttributes attributes = m_reader.attributes();
        for (const QXmlStreamAttribute& attribute : attributes) {
            element.setAttributeNS(attribute.namespaceUri().toString(), attribute.qualifiedName().toString(),
                                   attribute.value().toString());
        }
        return element;
    };
    QDomElement top = open();
    document.appendChild(top);
    for (QDomElement current = top; !current.isNull();) {
        switch (advance()) {
        case Token::StartElement:
            current = current.appendChild(open()).toElement();
            break;
        case Token::Text:
            current.appendChild(document.createTextNode(text()));
            spend(SoapLimits::ValueBytes + 2 * m_reader.text().size());
            break;
        case Token::EndElement:
            current = current.parentNode().toElement();
            break;
        default:
            return QDomElement();
        }
    }
    return top;
}

} // namespace TOLVAN_NAMESPACE
