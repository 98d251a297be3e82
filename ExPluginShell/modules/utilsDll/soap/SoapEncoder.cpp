#include "SoapEncoder.h"

#include "SoapExtra.h"
#include "SoapText.h"
#include "SoapUris.h"

#include <QSet>
#include <typeinfo>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr QLatin1String xsi = SoapUris::literal("xsi");
constexpr QLatin1String encodingPrefix = SoapUris::literal("SOAP-ENC");
constexpr SoapAttributeName typeAttribute{xsi, SoapUris::literal("type"), SoapUris::SchemaInstance};
constexpr SoapAttributeName nilAttribute{xsi, SoapUris::literal("nil"), SoapUris::SchemaInstance};
constexpr SoapAttributeName arrayTypeAttribute{encodingPrefix, SoapUris::literal("arrayType"),
                                               SoapUris::Encoding};
constexpr SoapAttributeName positionAttribute{encodingPrefix, SoapUris::literal("position"),
                                              SoapUris::Encoding};

QString bracketed(const QVector<int>& numbers)
{
    QStringList texts;
    for (const int number : numbers) {
        texts.append(QString::number(number));
    }
    return QLatin1Char('[') + texts.join(QLatin1Char(',')) + QLatin1Char(']');
}

/// Whether the classes write this attribute themselves, or no document could have it.
bool isReserved(const QtSoapQName& name)
{
    const QString local = name.name();
    if (name.uri().isEmpty()) {
        return local == QLatin1String("id") || local == QLatin1String("href") ||
               local == QLatin1String("xmlns");
    }
    return SoapUris::isSchemaInstance(name.uri()) || name.uri() == SoapUris::Encoding;
}

} // namespace

/// Begins the element of a value. "p:local" is a local name with a prefix if the value has a namespace, or if the
/// prefix is in force.
void SoapEncoder::openNamed(const QtSoapQName& name)
{
    const QString text = name.name();
    const int colon = text.indexOf(QLatin1Char(':'));
    const QString prefix = text.left(colon);
    if (colon > 0 && SoapText::isOwnPrefix(prefix) && SoapText::isElementName(text.mid(colon + 1))) {
        const QString uri = name.uri().isEmpty() ? m_sink.uriOf(prefix) : name.uri();
        if (!uri.isEmpty()) {
            m_sink.open(text.mid(colon + 1), uri, prefix);
            return;
        }
    }
    m_sink.open(SoapText::elementName(text, QStringLiteral("item")), name.uri(), QString());
}

void SoapEncoder::open(const QtSoapType& value, const QString* position)
{
    openNamed(value.name());
    if (position) {
        m_sink.attribute(positionAttribute, *position);
    }
    if (const QString id = value.id(); !id.isEmpty() && !value.m_isReference) {
        m_sink.plainAttribute(QLatin1String("id"), id);
    }
    if (const QString href = value.href(); !href.isEmpty() && !value.m_isReference) {
        m_sink.plainAttribute(QLatin1String("href"), href);
    }
    if (value.m_hasExtra) {
        QSet<QString> written; // names may become the same when they are made valid
        const auto extra = SoapExtra::of(&value);
        for (const auto& [name, text] : qAsConst(extra->attributes)) {
            const QtSoapQName valid(SoapText::elementName(name.name(), QStringLiteral("item")), name.uri());
            const QString key = valid.uri() + QLatin1Char(' ') + valid.name();
            if (!isReserved(valid) && !written.contains(key)) {
                written.insert(key);
                m_sink.clientAttribute(valid, text);
            }
        }
    }
}

void SoapEncoder::encode(const QtSoapSimpleType& value, const QString* position)
{
    open(value, position);
    const QVariant content = value.value();
    if (content.isValid()) {
        const QString typeName = QtSoapType::typeToName(value.type());
        if (!typeName.isEmpty()) {
            m_sink.attribute(typeAttribute, QLatin1String("xsd:") + typeName);
        }
        m_sink.text(value.toString());
    } else if (value.href().isEmpty() || value.m_isReference) {
        m_sink.attribute(nilAttribute, QStringLiteral("true"));
    }
    m_sink.close();
}

void SoapEncoder::encode(const QtSoapStruct& value, const QString* position)
{
    open(value, position);
    writeChildren(value);
    m_sink.close();
}

void SoapEncoder::writeChildren(const QtSoapStruct& value)
{
    for (const auto& child : value.dict) {
        write(*child);
    }
}

void SoapEncoder::encode(const QtSoapArray& value, const QString* position)
{
    open(value, position);
    m_sink.attribute(typeAttribute, QStringLiteral("SOAP-ENC:Array"));
    m_sink.attribute(arrayTypeAttribute, value.arrayTypeString() + value.arraySizeString());
    const bool gaps = value.hasGaps();
    const QVector<int> order = value.positions();
    for (const int place : order) {
        const QString text = gaps ? bracketed(value.coordinates(place)) : QString();
        write(value.find(place), gaps ? &text : nullptr);
    }
    m_sink.close();
}

void SoapEncoder::write(const QtSoapType& value)
{
    write(value, nullptr);
}

void SoapEncoder::write(const QtSoapType& value, const QString* position)
{
    const std::type_info& type = typeid(value);
    if (type == typeid(QtSoapSimpleType)) {
        encode(static_cast<const QtSoapSimpleType&>(value), position);
    } else if (type == typeid(QtSoapStruct)) {
        encode(static_cast<const QtSoapStruct&>(value), position);
    } else if (type == typeid(QtSoapArray)) {
        encode(static_cast<const QtSoapArray&>(value), position);
    } else {
        QDomElement element = value.toDomElement(m_sink.document());
        if (position && !element.isNull()) {
            element.setAttributeNS(positionAttribute.uri, QStringLiteral("SOAP-ENC:position"), *position);
        }
        m_sink.tree(element);
    }
}

} // namespace TOLVAN_NAMESPACE
