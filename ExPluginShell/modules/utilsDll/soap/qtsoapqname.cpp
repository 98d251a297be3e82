#include "qtsoapqname.h"

namespace TOLVAN_NAMESPACE
{

namespace
{

int compare(const QtSoapQName& n1, const QtSoapQName& n2)
{
    if (n2.uri().isEmpty()) {
        return QString::compare(n1.name(), n2.name(), Qt::CaseInsensitive);
    }
    return QString::compare(n1.uri() + n1.name(), n2.uri() + n2.name(), Qt::CaseInsensitive);
}

} // namespace

QtSoapQName::QtSoapQName(const QString& name, const QString& uri)
    : m_name(name)
    , m_uri(uri)
{
}

QtSoapQName::~QtSoapQName() = default;

QtSoapQName& QtSoapQName::operator=(const QString& s)
{
    m_name = s;
    m_uri.clear();
    return *this;
}

bool operator==(const QtSoapQName& n1, const QtSoapQName& n2)
{
    return compare(n1, n2) == 0;
}

bool operator<(const QtSoapQName& n1, const QtSoapQName& n2)
{
    return compare(n1, n2) < 0;
}

} // namespace TOLVAN_NAMESPACE
