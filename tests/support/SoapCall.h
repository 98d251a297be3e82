#pragma once

#include <utilsDll/soap/qtsoap.h>

#include <QSignalSpy>
#include <QtTest>

/// What the tests of the SOAP classes share.
namespace SoapCall
{

using namespace TOLVAN_NAMESPACE;

/// A value of any simple type, made the way messages make it. Owned by the caller.
inline QtSoapSimpleType* typed(const QString& name, const QString& type, const QString& text)
{
    QDomDocument document;
    QDomElement element = document.createElement(name);
    element.setAttributeNS(QStringLiteral(XML_SCHEMA_INSTANCE), QStringLiteral("i:type"), type);
    element.appendChild(document.createTextNode(text));
    auto value = std::make_unique<QtSoapSimpleType>();
    return value->parse(element) ? value.release() : nullptr;
}

/// Sends a request and waits for the answer.
inline QtSoapMessage ask(quint16 port, const QString& path, QtSoapMessage& request)
{
    QtSoapHttpTransport transport;
    transport.setHost(QStringLiteral("127.0.0.1"), port);
    transport.setTimeout(20000);
    QSignalSpy answered(&transport, SIGNAL(responseReady()));
    transport.submitRequest(request, path);
    if (answered.isEmpty())
        answered.wait(30000);
    return transport.getResponse();
}

} // namespace SoapCall
