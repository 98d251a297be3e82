#include "SoapXmlCursor.h"

#include "SoapLimits.h"
#include "SoapUris.h"

namespace TOLVAN_NAMESPACE
{

QString soapLocalPart(const QString& qualifiedName)
{
    const int colon = qualifiedName.lastIndexOf(QLatin1Char(':'));
    return colon < 0 ? qualifiedName : qualifiedName.mid(colon + 1);
}

void SoapElement::setAttribute(const QString& attributeUri, const QString& attribute, const QString& value)
{
    if (attributeUri.isEmpty()) {
        if (attribute == QLatin1String("id")) {
            id = value;
        } else if (attribute == QLatin1String("href")) {
            href = value;
        }
    } else if (SoapUris::isSchemaInstance(attributeUri)) {
        if (attribute == QLatin1String("type")) {
            typeName = soapLocalPart(value.trimmed());
        } else if (attribute == QLatin1String("nil") || attribute == QLatin1String("null")) {
            nil = value.trimmed() == QLatin1String("true") || value.trimmed() == QLatin1String("1");
        }
    } else if (attributeUri == SoapUris::Encoding) {
        if (attribute == QLatin1String("arrayType")) {
            arrayType = value.trimmed();
        } else if (attribute == QLatin1String("offset")) {
            offset = value.trimmed();
        } else if (attribute == QLatin1String("position")) {
            position = value.trimmed();
        }
    } else if (attributeUri == SoapUris::Envelope && attribute == QLatin1String("encodingStyle")) {
        encoded = value.contains(SoapUris::Encoding);
    }
}

bool SoapXmlCursor::enter()
{
    if (++m_depth > SoapLimits::Depth) {
        fail(QStringLiteral("Elements are nested more than %1 levels deep").arg(SoapLimits::Depth));
    } else if (++m_elements > m_limits.elements) {
        fail(QStringLiteral("There are more than %1 elements").arg(m_limits.elements));
    }
    return m_error.isEmpty();
}

bool SoapXmlCursor::spend(qint64 bytes)
{
    m_spent += bytes;
    return m_spent <= m_limits.memoryBytes ||
           fail(QStringLiteral("The message takes more than %1 MiB of memory")
                    .arg(m_limits.memoryBytes / (1024 * 1024)));
}

bool SoapXmlCursor::fail(const QString& error)
{
    constexpr int longest = 400; // the reader's own texts quote what they complain of
    if (m_error.isEmpty()) {
        m_error = error.left(longest);
    }
    return false;
}

} // namespace TOLVAN_NAMESPACE
