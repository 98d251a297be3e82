#pragma once

#include "qtsoaparray.h"
#include "qtsoapsimpletype.h"
#include "qtsoapstruct.h"
#include "SoapXmlSink.h"

namespace TOLVAN_NAMESPACE
{

/// Internal: writes values in the SOAP encoding.
class SoapEncoder
{
public:
    explicit SoapEncoder(SoapXmlSink& sink)
        : m_sink(sink)
    {
    }

    /// Writes \a value by its class; one derived outside the library is asked for its element.
    void write(const QtSoapType& value);

    /// Writes the children of \a value.
    void writeChildren(const QtSoapStruct& value);

    /// The element of a value, made in \a document.
    template <class Value>
    static QDomElement element(const Value& value, const QDomDocument& document)
    {
        SoapDomSink sink(document);
        SoapEncoder(sink).encode(value, nullptr);
        return sink.root();
    }

private:
    void encode(const QtSoapSimpleType& value, const QString* position);
    void encode(const QtSoapStruct& value, const QString* position);
    void encode(const QtSoapArray& value, const QString* position);
    void write(const QtSoapType& value, const QString* position);
    void open(const QtSoapType& value, const QString* position);
    void openNamed(const QtSoapQName& name);

    SoapXmlSink& m_sink;
};

} // namespace TOLVAN_NAMESPACE
