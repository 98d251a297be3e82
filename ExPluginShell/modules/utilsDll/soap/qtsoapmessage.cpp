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

QtSoapMessage::QtSoapMessage()
    : d(new Contents)
{
}

QtSoapMessage::QtSoapMessage(const QtSoapMessage& copy)
    : d(copy.d)
    , m_error(copy.m_error)
    , m_limits(copy.m_limits)
{
    if (copy.d->isExposed) {
        d = new Contents(*copy.d);
        d->isExposed = false;
    }
}

QtSoapMessage::~QtSoapMessage() = default;

QtSoapMessage& QtSoapMessage::operator=(const QtSoapMessage& copy)
{
    const QtSoapMessage other(copy);
    d = other.d;
    m_error = other.m_error;
    m_limits = other.m_limits;
    return *this;
}

/// The contents, for a change: shared with no other message.
QtSoapMessage::Contents& QtSoapMessage::own() const
{
    d.detach();
    return *d;
}

QtSoapStruct& QtSoapMessage::part(std::optional<QtSoapStruct> Contents::*which, QLatin1String name) const
{
    std::optional<QtSoapStruct>& made = own().*which;
    if (!made) {
        made.emplace(QtSoapQName(name, SoapUris::Envelope));
    }
    return *made;
}

QtSoapStruct& QtSoapMessage::ownBody() const
{
    return part(&Contents::body, QLatin1String("Body"));
}

QtSoapStruct& QtSoapMessage::ownHeader() const
{
    return part(&Contents::header, QLatin1String("Header"));
}

QtSoapStruct& QtSoapMessage::body() const
{
    QtSoapStruct& made = ownBody();
    d->isExposed = true;
    return made;
}

QtSoapStruct& QtSoapMessage::header() const
{
    QtSoapStruct& made = ownHeader();
    d->isExposed = true;
    return made;
}

void QtSoapMessage::init()
{
    d = new Contents;
    m_error.clear();
}

void QtSoapMessage::clear()
{
    init();
}

QtSoapLimits QtSoapMessage::limits() const
{
    return m_limits;
}

void QtSoapMessage::setLimits(const QtSoapLimits& limits)
{
    m_limits = limits;
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
        ownHeader().dict = reader.header();
    }
    if (reader.hasBody()) {
        ownBody().dict = reader.body();
    }
    const QtSoapType& first = bodyItem(0);
    if (isFaultElement(first)) {
        d->type = Fault;
    } else if (first.isValid()) {
        d->type = first.name().name().endsWith(QLatin1String("Response")) ? MethodResponse : MethodRequest;
    }
    return true;
}

bool QtSoapMessage::setContent(const QByteArray& buffer)
{
    SoapStreamCursor cursor(buffer, m_limits);
    SoapMessageReader reader(cursor);
    return take(reader);
}

bool QtSoapMessage::setContent(QDomDocument& tree)
{
    SoapDomCursor cursor(tree, m_limits);
    SoapMessageReader reader(cursor);
    return take(reader);
}

bool QtSoapMessage::isValidSoapMessage(const QDomDocument& candidate)
{
    SoapDomCursor cursor(candidate, m_limits);
    SoapMessageReader reader(cursor);
    const bool valid = reader.read();
    m_error = reader.errorString();
    return valid;
}

void QtSoapMessage::addBodyItem(QtSoapType* item)
{
    ownBody().append(item);
}

void QtSoapMessage::addHeaderItem(QtSoapType* item)
{
    ownHeader().append(item);
}

int QtSoapMessage::bodyItemCount() const
{
    return d->body ? d->body->count() : 0;
}

const QtSoapType& QtSoapMessage::bodyItem(int index) const
{
    return d->body ? std::as_const(*d->body)[index] : QtSoapType::missingConst();
}

int QtSoapMessage::headerItemCount() const
{
    return d->header ? d->header->count() : 0;
}

const QtSoapType& QtSoapMessage::headerItem(int index) const
{
    return d->header ? std::as_const(*d->header)[index] : QtSoapType::missingConst();
}

const QtSoapType& QtSoapMessage::method() const
{
    return isFault() ? QtSoapType::missingConst() : bodyItem(0);
}

const QtSoapType& QtSoapMessage::returnValue() const
{
    return method()[0];
}

void QtSoapMessage::setMethod(const QtSoapQName& method)
{
    ownBody().clear();
    ownBody().append(new QtSoapStruct(method));
    d->type = MethodRequest;
}

void QtSoapMessage::setMethod(const QString& name, const QString& uri)
{
    setMethod(QtSoapQName(name, uri));
}

void QtSoapMessage::addMethodArgument(QtSoapType* arg)
{
    auto* const method = isFault() ? nullptr : dynamic_cast<QtSoapStruct*>(&ownBody()[0]);
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
    return d->type == Fault;
}

const QtSoapType& QtSoapMessage::faultEntry(const QString& name) const
{
    return isFault() ? bodyItem(0)[name] : QtSoapType::missingConst();
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
    auto* fault = isFault() ? dynamic_cast<QtSoapStruct*>(&ownBody()[0]) : nullptr;
    if (fault) {
        return *fault;
    }
    ownBody().clear();
    d->type = Fault;
    fault = new QtSoapStruct(QtSoapQName(QStringLiteral("Fault"), SoapUris::Envelope));
    ownBody().append(fault);
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
    for (const auto* part : {&d->header, &d->body}) {
        if (!*part || (part == &d->header && (*part)->count() == 0)) {
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
