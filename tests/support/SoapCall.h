#pragma once

#include "TestMain.h"
#include "Texts.h"

#include <QtSoapStruct> // brings all classes, as clients expect

#include <QtTest>

#include <initializer_list>

/// What the tests of the SOAP classes share. Values that are made belong to the caller, mostly a message.
namespace SoapCall
{

using namespace TOLVAN_NAMESPACE;

/// An envelope as a service of another make writes it, with the prefixes e, c (encoding), i and d (schema).
inline QByteArray envelope(const QByteArray& body, const QByteArray& attributes = QByteArray())
{
    return "<e:Envelope xmlns:e='" SOAPv11_ENVELOPE "' xmlns:c='" SOAPv11_ENCODING
           "' xmlns:i='http://www.w3.org/2001/XMLSchema-instance' "
           "xmlns:d='http://www.w3.org/2001/XMLSchema'" +
           attributes + "><e:Body>" + body + "</e:Body></e:Envelope>";
}

inline QtSoapQName named(const char* name)
{
    return QtSoapQName(text(name));
}

/// Any simple value, made by the constructor that takes this content: `value("yes", true, 0)`.
template <class... Content>
QtSoapSimpleType* value(const char* name, const Content&... content)
{
    return new QtSoapSimpleType(named(name), content...);
}

inline QtSoapSimpleType* value(const char* name, const char* content)
{
    return value(name, text(content));
}

inline QtSoapStruct* structure(const char* name, std::initializer_list<QtSoapType*> children)
{
    auto* const made = new QtSoapStruct(named(name));
    for (QtSoapType* const child : children) {
        made->insert(child);
    }
    return made;
}

inline QtSoapArray* list(const char* name, std::initializer_list<QtSoapType*> items)
{
    auto* const made = new QtSoapArray(named(name));
    for (QtSoapType* const item : items) {
        made->append(item);
    }
    return made;
}

inline QtSoapMessage request(const char* method, std::initializer_list<QtSoapType*> arguments)
{
    QtSoapMessage message;
    message.setMethod(text(method), text("urn:example:peer"));
    for (QtSoapType* const argument : arguments) {
        message.addMethodArgument(argument);
    }
    return message;
}

/// A value with all it holds: "name:int=7", "name:int nil", "name{...}" for a struct, "name[0:... 1:...]" for
/// an array, "-" for what is not there.
inline QString described(const QtSoapType& value)
{
    if (!value.isValid()) {
        return text("-");
    }
    QString all = value.name().name();
    QStringList parts;
    if (const auto* const array = dynamic_cast<const QtSoapArray*>(&value)) {
        QtSoapArray items(*array);
        for (QtSoapArrayIterator it(items); !it.atEnd(); ++it) {
            parts += text("%1:%2").arg(it.pos()).arg(described(*it.current()));
        }
        return all + QLatin1Char('[') + parts.join(QLatin1Char(' ')) + QLatin1Char(']');
    }
    if (value.type() == QtSoapType::Struct) {
        for (int k = 0; k < value.count(); ++k) {
            parts += described(value[k]);
        }
        return all + QLatin1Char('{') + parts.join(QLatin1Char(' ')) + QLatin1Char('}');
    }
    all += QLatin1Char(':') + value.typeName();
    return value.value().isValid() ? all + QLatin1Char('=') + value.toString() : all + text(" nil");
}

} // namespace SoapCall
