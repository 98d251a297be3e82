#include "qtsoapsimpletype.h"

#include "SoapEncoder.h"
#include "SoapText.h"
#include "SoapValueReader.h"

namespace TOLVAN_NAMESPACE
{

QtSoapSimpleType::QtSoapSimpleType() = default;

QtSoapSimpleType::QtSoapSimpleType(const QtSoapQName& name)
    : QtSoapType(name)
{
}

QtSoapSimpleType::QtSoapSimpleType(const QtSoapQName& name, int number)
    : QtSoapType(name, Int)
    , v(number)
{
}

QtSoapSimpleType::QtSoapSimpleType(const QtSoapQName& name, bool truth, int dummy)
    : QtSoapType(name, Boolean)
    , v(truth){Q_UNUSED(dummy)}

    QtSoapSimpleType::QtSoapSimpleType(const QtSoapQName& name, const QString& text)
    : QtSoapType(name, String)
    , v(text.isNull() ? QString(QLatin1String("")) : text)
{
}

void QtSoapSimpleType::hold(const QVariant& content)
{
    if (content.isValid()) {
        v = SoapText::toVariant(t, SoapText::lexical(t, content));
    }
}

QtSoapSimpleType::QtSoapSimpleType(const QtSoapSimpleType& copy) = default;
QtSoapSimpleType& QtSoapSimpleType::operator=(const QtSoapSimpleType& copy) = default;
QtSoapSimpleType::~QtSoapSimpleType() = default;

void QtSoapSimpleType::clear()
{
    v.clear();
}

bool QtSoapSimpleType::parse(QDomNode node)
{
    return SoapValueReader::fill(*this, node, &errorStr);
}

bool QtSoapSimpleType::isValid() const
{
    return true;
}

QString QtSoapSimpleType::toString() const
{
    return SoapText::fromVariant(v);
}

int QtSoapSimpleType::toInt() const
{
    return v.toInt();
}

bool QtSoapSimpleType::toBool() const
{
    return v.toBool();
}

QVariant QtSoapSimpleType::value() const
{
    return v;
}

QDomElement QtSoapSimpleType::toDomElement(QDomDocument doc) const
{
    return SoapEncoder::element(*this, doc);
}

} // namespace TOLVAN_NAMESPACE
