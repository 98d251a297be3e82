#include "qtsoaptypefactory.h"

#include "SoapDomCursor.h"
#include "SoapValueReader.h"

#include <QMutexLocker>

namespace TOLVAN_NAMESPACE
{

QtSoapTypeConstructorBase::QtSoapTypeConstructorBase() = default;
QtSoapTypeConstructorBase::~QtSoapTypeConstructorBase() = default;
QtSoapTypeFactory::QtSoapTypeFactory() = default;
QtSoapTypeFactory::~QtSoapTypeFactory() = default;

QtSoapTypeFactory& QtSoapTypeFactory::instance()
{
    static QtSoapTypeFactory factory;
    return factory;
}

bool QtSoapTypeFactory::registerHandler(const QString& name, QtSoapTypeConstructorBase* handler)
{
    const QMutexLocker lock(&m_mutex);
    if (name.isEmpty() || !handler || m_handlers.contains(name) ||
        QtSoapType::nameToType(name) != QtSoapType::Other) {
        return false;
    }
    m_handlers.insert(name, handler);
    return true;
}

QtSoapTypeConstructorBase* QtSoapTypeFactory::handler(const QString& name) const
{
    const QMutexLocker lock(&m_mutex);
    return name.isEmpty() ? nullptr : m_handlers.value(name);
}

QtSmartPtr<QtSoapType> QtSoapTypeFactory::soapType(QDomNode node) const
{
    SoapDomCursor cursor(node);
    SoapValueReader reader(cursor);
    QtSmartPtr<QtSoapType> value;
    if (cursor.next() == SoapXmlCursor::Token::StartElement) {
        value = reader.value();
    }
    const QMutexLocker lock(&m_mutex);
    m_error = reader.errorString();
    return value;
}

QString QtSoapTypeFactory::errorString() const
{
    const QMutexLocker lock(&m_mutex);
    return m_error;
}

} // namespace TOLVAN_NAMESPACE
