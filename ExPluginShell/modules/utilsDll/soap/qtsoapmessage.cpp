#include "qtsoapmessage.h"

#include "qtsoapsimpletype.h"
#include "SoapDomCursor.h"
#include "SoapEncoder.h"
#include "SoapMessageReader.h"
#include "SoapStreamCursor.h"
#include "SoapText.h"
#include "SoapUris.h"

#include <memory>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr SoapAttributeName encodingStyle{SoapUris::literal("SOAP-ENV"), SoapUris::literal("encodingStyle"),
                                          SoapUris::Envelope};

const char* const faultCodes[] = {"VersionMismatch", "MustUnderstand", "Client", "Server"};

bool isFaultElement(const QtSoapType& item)
{
    return item.name().name() == QLatin1String("Fault") && item.name().uri() == SoapUris::Envelope;
}

} // namespace

QtSoapMessage::QtSoapMessage() = default;
QtSoapMessage::QtSoapMessage(const QtSoapMessage& copy) = default;
QtSoapMessage::~QtSoapMessage() = default;
QtSoapMessage& QtSoapMessage::operator=(const QtSoapMessage& copy) = default;

void QtSoapMessage::init()
{
    m_type = OtherType;
    m_error.clear();
    m_header.reset();
    m_body.reset();
}

void QtSoapMessage::clear()
{
    init();
}

QtSoapStruct& QtSoapMessage::body() const
{
    if (!m_body) {
        m_body.emplace(QtSoapQName(QStringLiteral("Body"), SoapUris::Envelope));
    }
    return *m_body;
}

QtSoapStruct& QtSoapMessage::header() const
{
    if (!m_header) {
        m_header.emplace(QtSoapQName(QStringLiteral("Header"), SoapUris::Envelope));
    }
    return *m_header;
}

bool QtSoapMessage::take(SoapMessageReader& reader)
{
    init();
    if (!reader.read()) {
        const QString reason = reader.errorString();
        setFaultCode(reader.isOtherVersion() ? VersionMismatch : Client);
        setFaultString(reason);
        m_error = reason;
        return false;
    }
    if (reader.hasHeader()) {
        header().dict = reader.header();
    }
    body().dict = reader.body();
    if (m_body->dict.isEmpty()) {
        return true;
    }
    const QtSoapType& first = *m_body->dict.first();
    if (isFaultElement(first)) {
        m_type = Fault;
    } else {
        m_type = first.name().name().endsWith(QLatin1String("Response")) ? MethodResponse : MethodRequest;
    }
    return true;
}

bool QtSoapMessage::setContent(const QByteArray& buffer)
{
    SoapStreamCursor cursor(buffer);
    SoapMessageReader reader(cursor);
    return take(reader);
}

bool QtSoapMessage::setContent(QDomDocument& d)
{
    SoapDomCursor cursor(d);
    SoapMessageReader reader(cursor);
    return take(reader);
}

bool QtSoapMessage::isValidSoapMessage(const QDomDocument& candidate)
{
    SoapDomCursor cursor(candidate);
    SoapMessageReader reader(cursor);
    const bool valid = reader.read();
    m_error = reader.errorString();
    return valid;
}

void QtSoapMessage::addBodyItem(QtSoapType* item)
{
    body().append(item);
}

void QtSoapMessage::addHeaderItem(QtSoapType* item)
{
    header().append(item);
}

const QtSoapType& QtSoapMessage::method() const
{
    return m_body && !isFault() ? std::as_const(*m_body)[0] : QtSoapType::missingConst();
}

const QtSoapType& QtSoapMessage::returnValue() const
{
    return method()[0];
}

void QtSoapMessage::setMethod(const QtSoapQName& method)
{
    body().clear();
    body().append(new QtSoapStruct(method));
    m_type = MethodRequest;
}

void QtSoapMessage::setMethod(const QString& name, const QString& uri)
{
    setMethod(QtSoapQName(name, uri));
}

void QtSoapMessage::addMethodArgument(QtSoapType* arg)
{
    auto* const method = m_type == Fault || !m_body ? nullptr : dynamic_cast<QtSoapStruct*>(&body()[0]);
    if (method) {
        method->append(arg);
        return;
    }
    SoapText::warn(QStringLiteral("An argument was added before a method was set"));
    addBodyItem(arg);
}

void QtSoapMessage::addMethodArgument(const QString& name, const QString& uri, const QString& value)
{
    addMethodArgument(new QtSoapSimpleType(QtSoapQName(name, uri), value));
}

void QtSoapMessage::addMethodArgument(const QString& name, const QString& uri, bool value, int dummy)
{
    addMethodArgument(new QtSoapSimpleType(QtSoapQName(name, uri), value, dummy));
}

void QtSoapMessage::addMethodArgument(const QString& name, const QString& uri, int value)
{
    addMethodArgument(new QtSoapSimpleType(QtSoapQName(name, uri), value));
}

bool QtSoapMessage::isFault() const
{
    return m_type == Fault;
}

const QtSoapType& QtSoapMessage::faultEntry(const QString& name) const
{
    return isFault() && m_body ? std::as_const(*m_body)[0][name] : QtSoapType::missingConst();
}

QtSoapMessage::FaultCode QtSoapMessage::faultCode() const
{
    const QString text = faultEntry(QStringLiteral("faultcode")).toString().trimmed();
    const QString code = soapLocalPart(text).section(QLatin1Char('.'), 0, 0);
    for (int k = 0; k < Other; ++k) {
        if (code == QLatin1String(faultCodes[k])) {
            return static_cast<FaultCode>(k);
        }
    }
    return Other;
}

const QtSoapType& QtSoapMessage::faultString() const
{
    return faultEntry(QStringLiteral("faultstring"));
}

const QtSoapType& QtSoapMessage::faultDetail() const
{
    return faultEntry(QStringLiteral("detail"));
}

/// The fault element with its two obligatory entries, in the order that the schema wants.
QtSoapStruct& QtSoapMessage::faultStruct()
{
    auto* fault = m_type == Fault && m_body ? dynamic_cast<QtSoapStruct*>(&body()[0]) : nullptr;
    if (fault) {
        return *fault;
    }
    m_type = Fault;
    body().clear();
    fault = new QtSoapStruct(QtSoapQName(QStringLiteral("Fault"), SoapUris::Envelope));
    body().append(fault);
    fault->append(new QtSoapSimpleType(QtSoapQName(QStringLiteral("faultcode"))));
    fault->append(new QtSoapSimpleType(QtSoapQName(QStringLiteral("faultstring")), QString()));
    setFaultCode(Other);
    return *fault;
}

void QtSoapMessage::setFaultCode(FaultCode code)
{
    auto* const entry = new QtSoapSimpleType(QtSoapQName(QStringLiteral("faultcode")));
    const bool known = code >= VersionMismatch && code < Other;
    entry->v = known ? QLatin1String("SOAP-ENV:") + QLatin1String(faultCodes[code]) : QStringLiteral("Other");
    faultStruct().replace(entry);
}

void QtSoapMessage::setFaultString(const QString& fstring)
{
    faultStruct().replace(new QtSoapSimpleType(QtSoapQName(QStringLiteral("faultstring")), fstring));
}

void QtSoapMessage::addFaultDetail(QtSoapType* item)
{
    QtSoapStruct& fault = faultStruct();
    const QString name = QStringLiteral("detail");
    if (!dynamic_cast<QtSoapStruct*>(&fault[name])) {
        fault.insert(new QtSoapStruct(QtSoapQName(name)));
    }
    static_cast<QtSoapStruct&>(fault[name]).append(item);
}

QString QtSoapMessage::toXmlString(int indent) const
{
    QString xml;
    SoapTextSink sink(xml, indent);
    SoapEncoder encoder(sink);
    sink.open(QStringLiteral("Envelope"), SoapUris::Envelope);
    sink.declare(QLatin1String("SOAP-ENC"), SoapUris::Encoding);
    sink.declare(QLatin1String("xsi"), SoapUris::SchemaInstance);
    sink.declare(QLatin1String("xsd"), SoapUris::Schema);
    sink.attribute(encodingStyle, SoapUris::Encoding);
    for (const auto* part : {&m_header, &m_body}) {
        if (!*part || (part == &m_header && (*part)->count() == 0)) {
            continue;
        }
        sink.open((*part)->name().name(), SoapUris::Envelope);
        encoder.writeChildren(**part);
        sink.close();
    }
    sink.close();
    return xml;
}

QString QtSoapMessage::errorString() const
{
    return m_error;
}

} // namespace TOLVAN_NAMESPACE
