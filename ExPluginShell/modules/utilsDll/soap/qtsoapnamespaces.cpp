#include "qtsoapnamespaces.h"

#include "SoapText.h"
#include "SoapUris.h"

#include <QMutexLocker>

namespace TOLVAN_NAMESPACE
{

QtSoapNamespaces::QtSoapNamespaces()
{
    m_prefixes.insert(SoapUris::Envelope, QStringLiteral("SOAP-ENV"));
    m_prefixes.insert(SoapUris::Encoding, QStringLiteral("SOAP-ENC"));
    m_prefixes.insert(SoapUris::SchemaInstance, QStringLiteral("xsi"));
    m_prefixes.insert(SoapUris::Schema, QStringLiteral("xsd"));
    m_prefixes.insert(SoapUris::Xml, QStringLiteral("xml"));
}

QtSoapNamespaces& QtSoapNamespaces::instance()
{
    static QtSoapNamespaces registry;
    return registry;
}

void QtSoapNamespaces::registerNamespace(const QString& prefix, const QString& uri)
{
    const QMutexLocker lock(&m_mutex);
    if (m_prefixes.value(uri) == prefix && !prefix.isEmpty()) {
        return;
    }
    if (uri.isEmpty() || !SoapText::isOwnPrefix(prefix) ||
        (m_prefixes.contains(uri) && !SoapText::isOwnPrefix(m_prefixes.value(uri)))) {
        SoapText::warn(QStringLiteral("The prefix \"%1\" cannot stand for \"%2\"").arg(prefix, uri));
        return;
    }
    m_prefixes.remove(m_prefixes.key(prefix));
    m_prefixes.insert(uri, prefix);
}

QString QtSoapNamespaces::prefixFor(const QString& uri)
{
    const QMutexLocker lock(&m_mutex);
    return m_prefixes.value(uri);
}

} // namespace TOLVAN_NAMESPACE
