#pragma once

#include <QtSoapStruct> // brings all classes, as clients expect

#include <QSignalSpy>
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
    return QtSoapQName(QString::fromUtf8(name));
}

inline QtSoapSimpleType* value(const char* name)
{
    return new QtSoapSimpleType(named(name));
}

inline QtSoapSimpleType* value(const char* name, int number)
{
    return new QtSoapSimpleType(named(name), number);
}

inline QtSoapSimpleType* value(const char* name, bool truth)
{
    return new QtSoapSimpleType(named(name), truth, 0);
}

inline QtSoapSimpleType* value(const char* name, const QString& text)
{
    return new QtSoapSimpleType(named(name), text);
}

inline QtSoapSimpleType* value(const char* name, const char* text)
{
    return value(name, QString::fromUtf8(text));
}

/// A value of any simple type, made the way messages make it.
inline QtSoapSimpleType* typed(const char* name, const char* type, const char* text)
{
    QDomDocument document;
    QDomElement element = document.createElement(QString::fromUtf8(name));
    element.setAttributeNS(QStringLiteral(XML_SCHEMA_INSTANCE), QStringLiteral("i:type"),
                           QString::fromUtf8(type));
    element.appendChild(document.createTextNode(QString::fromUtf8(text)));
    auto made = std::make_unique<QtSoapSimpleType>();
    return made->parse(element) ? made.release() : nullptr;
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
    message.setMethod(QString::fromUtf8(method), QStringLiteral("urn:example:peer"));
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
        return QStringLiteral("-");
    }
    QString text = value.name().name();
    QStringList parts;
    if (const auto* const array = dynamic_cast<const QtSoapArray*>(&value)) {
        QtSoapArray items(*array);
        for (QtSoapArrayIterator it(items); !it.atEnd(); ++it) {
            parts += QStringLiteral("%1:%2").arg(it.pos()).arg(described(*it.current()));
        }
        return text + QLatin1Char('[') + parts.join(QLatin1Char(' ')) + QLatin1Char(']');
    }
    if (value.type() == QtSoapType::Struct) {
        for (int k = 0; k < value.count(); ++k) {
            parts += described(value[k]);
        }
        return text + QLatin1Char('{') + parts.join(QLatin1Char(' ')) + QLatin1Char('}');
    }
    text += QLatin1Char(':') + value.typeName();
    return value.value().isValid() ? text + QLatin1Char('=') + value.toString()
                                   : text + QStringLiteral(" nil");
}

/// Sends a request and waits for the answer.
inline QtSoapMessage ask(quint16 port, const QString& path, QtSoapMessage request,
                         const QString& action = QString())
{
    QtSoapHttpTransport transport;
    transport.setHost(QStringLiteral("127.0.0.1"), port);
    transport.setTimeout(20000);
    transport.setAction(action);
    QSignalSpy answered(&transport, SIGNAL(responseReady()));
    transport.submitRequest(request, path);
    if (answered.isEmpty()) {
        answered.wait(30000);
    }
    return transport.getResponse();
}

} // namespace SoapCall
