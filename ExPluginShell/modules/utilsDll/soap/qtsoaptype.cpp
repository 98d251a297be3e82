#include "qtsoaptype.h"

#include "SoapExtra.h"

#include <iterator>

namespace TOLVAN_NAMESPACE
{

namespace
{

// in the order of QtSoapType::Type
const char* const typeNames[] = {
    "duration",
    "dateTime",
    "time",
    "date",
    "gYearMonth",
    "gYear",
    "gMonthDay",
    "gDay",
    "gMonth",
    "boolean",
    "base64Binary",
    "hexBinary",
    "float",
    "double",
    "anyURI",
    "QName",
    "NOTATION",
    "string",
    "normalizedString",
    "token",
    "language",
    "Name",
    "NMTOKEN",
    "NCName",
    "ID",
    "IDREF",
    "ENTITY",
    "decimal",
    "integer",
    "nonPositiveInteger",
    "negativeInteger",
    "long",
    "int",
    "short",
    "byte",
    "nonNegativeInteger",
    "unsignedLong",
    "positiveInteger",
    "unsignedInt",
    "unsignedShort",
    "unsignedByte",
    "Array",
    "Struct",
};
static_assert(std::size(typeNames) == QtSoapType::Other, "one name per type");

QHash<QString, QtSoapType::Type> typesByName()
{
    QHash<QString, QtSoapType::Type> types;
    for (int k = 0; k < QtSoapType::Other; ++k) {
        types.insert(QLatin1String(typeNames[k]), static_cast<QtSoapType::Type>(k));
    }
    types.insert(QStringLiteral("base64"), QtSoapType::Base64Binary);
    types.insert(QStringLiteral("timeInstant"), QtSoapType::DateTime);
    return types;
}

} // namespace

QtSoapType::QtSoapType()
    : t(Other)
{
}

QtSoapType::QtSoapType(const QtSoapQName& name, Type type)
    : t(type)
    , n(name)
{
}

QtSoapType::QtSoapType(const QtSoapType& copy)
    : m_isReference(copy.m_isReference)
    , t(copy.t)
    , errorStr(copy.errorStr)
    , i(copy.i)
    , n(copy.n)
    , u(copy.u)
    , h(copy.h)
{
    if (copy.m_hasExtra) {
        m_hasExtra = SoapExtra::copyAttributes(&copy, this);
    }
}

QtSoapType& QtSoapType::operator=(const QtSoapType& copy)
{
    m_isReference = copy.m_isReference;
    t = copy.t;
    errorStr = copy.errorStr;
    i = copy.i;
    n = copy.n;
    u = copy.u;
    h = copy.h;
    if (m_hasExtra || copy.m_hasExtra) {
        m_hasExtra = SoapExtra::copyAttributes(&copy, this);
    }
    return *this;
}

QtSoapType::~QtSoapType()
{
    if (m_hasExtra) {
        SoapExtra::remove(this);
    }
}

QtSoapType& QtSoapType::missing()
{
    std::unique_ptr<QtSoapType>& empty = SoapExtra::of(this)->missing;
    m_hasExtra = true;
    if (empty) {
        *empty = QtSoapType();
    } else {
        empty = std::make_unique<QtSoapType>();
    }
    return *empty;
}

void QtSoapType::setAttribute(const QtSoapQName& attribute, const QString& text)
{
    SoapExtra::of(this)->set(attribute, text);
    m_hasExtra = true;
}

QString QtSoapType::attribute(const QtSoapQName& attribute) const
{
    return m_hasExtra ? SoapExtra::of(this)->get(attribute) : QString();
}

const QtSoapType& QtSoapType::missingConst()
{
    static const QtSoapType empty;
    return empty;
}

void QtSoapType::clear() {}

bool QtSoapType::parse(QDomNode node)
{
    Q_UNUSED(node)
    errorStr = QStringLiteral("A value without a class cannot be read");
    return false;
}

bool QtSoapType::isValid() const
{
    return false;
}

int QtSoapType::count() const
{
    return 0;
}

QVariant QtSoapType::value() const
{
    return QVariant();
}

QtSoapType& QtSoapType::operator[](int pos)
{
    Q_UNUSED(pos)
    return missing();
}

QtSoapType& QtSoapType::operator[](const QtSoapQName& key)
{
    Q_UNUSED(key)
    return missing();
}

QtSoapType& QtSoapType::operator[](const QString& key)
{
    Q_UNUSED(key)
    return missing();
}

const QtSoapType& QtSoapType::operator[](int pos) const
{
    Q_UNUSED(pos)
    return missingConst();
}

const QtSoapType& QtSoapType::operator[](const QtSoapQName& key) const
{
    Q_UNUSED(key)
    return missingConst();
}

const QtSoapType& QtSoapType::operator[](const QString& key) const
{
    Q_UNUSED(key)
    return missingConst();
}

QDomElement QtSoapType::toDomElement(QDomDocument document) const
{
    Q_UNUSED(document)
    return QDomElement();
}

QtSoapType::Type QtSoapType::type() const
{
    return t;
}

QString QtSoapType::id() const
{
    return i;
}

QString QtSoapType::href() const
{
    return h;
}

QString QtSoapType::typeName() const
{
    return typeToName(t);
}

QtSoapQName QtSoapType::name() const
{
    return n;
}

QString QtSoapType::toString() const
{
    return QString();
}

int QtSoapType::toInt() const
{
    return 0;
}

bool QtSoapType::toBool() const
{
    return false;
}

void QtSoapType::setName(const QtSoapQName& name)
{
    n = name;
}

void QtSoapType::setId(const QString& id)
{
    i = id;
    m_isReference = false;
}

void QtSoapType::setHref(const QString& href)
{
    h = href;
    m_isReference = false;
}

QString QtSoapType::errorString() const
{
    return errorStr;
}

QString QtSoapType::typeToName(QtSoapType::Type type)
{
    return type >= 0 && type < Other ? QString(QLatin1String(typeNames[type])) : QString();
}

QtSoapType::Type QtSoapType::nameToType(const QString& name)
{
    static const QHash<QString, Type> types = typesByName();
    return types.value(name, Other);
}

} // namespace TOLVAN_NAMESPACE
