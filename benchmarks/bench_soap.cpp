#include "soap/qtsoap.h"

#include <benchmark/benchmark.h>

#ifdef TOLVAN_HAVE_KDSOAP
#include <KDSoapClient/KDSoapMessage.h>
#include <KDSoapClient/KDSoapNamespaceManager.h>

/// The peer's reader: exported by its library, but without an installed header.
class KDSoapMessageReader
{
public:
    enum XmlError { NoError = 0, ParseError, PrematureEndOfDocumentError };
    KDSoapMessageReader();
    XmlError xmlToMessage(const QByteArray& data, KDSoapMessage* message, QString* messageNamespace,
                          KDSoapHeaders* requestHeaders, KDSoap::SoapVersion soapVersion) const;
};
#endif

using namespace TOLVAN_NAMESPACE;

namespace
{

const QString names[] = {QStringLiteral("identifier"), QStringLiteral("title"),  QStringLiteral("author"),
                         QStringLiteral("created"),    QStringLiteral("width"),  QStringLiteral("height"),
                         QStringLiteral("rating"),     QStringLiteral("shared"), QStringLiteral("camera"),
                         QStringLiteral("remark")};

QtSoapSimpleType* field(int column, int row)
{
    const QtSoapQName name(names[column]);
    if (column == 0 || column == 4 || column == 5 || column == 6) {
        return new QtSoapSimpleType(name, row * 10 + column);
    }
    if (column == 7) {
        return new QtSoapSimpleType(name, row % 2 == 0, 0);
    }
    return new QtSoapSimpleType(name,
                                QStringLiteral("%1 of picture %2 & others").arg(names[column]).arg(row));
}

/// An answer of so many structs of ten fields.
QtSoapMessage answer(int structs)
{
    QtSoapMessage message;
    message.setMethod(QStringLiteral("picturesResponse"), QStringLiteral("urn:example:pictures"));
    auto* const list = new QtSoapArray(QtSoapQName(QStringLiteral("pictures")), QtSoapType::Struct, structs);
    for (int row = 0; row < structs; ++row) {
        auto* const item = new QtSoapStruct(QtSoapQName(QStringLiteral("picture")));
        for (int column = 0; column < 10; ++column) {
            item->insert(field(column, row));
        }
        list->append(item);
    }
    message.addMethodArgument(list);
    return message;
}

QByteArray text(benchmark::State& state)
{
    return answer(static_cast<int>(state.range(0))).toXmlString().toUtf8();
}

void finish(benchmark::State& state, qint64 bytes)
{
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * bytes);
    state.SetComplexityN(state.range(0));
}

void parseLibrary(benchmark::State& state)
{
    const QByteArray xml = text(state);
    for (auto _ : state) {
        QtSoapMessage message;
        if (!message.setContent(xml) || message.returnValue().count() != state.range(0)) {
            state.SkipWithError("not read");
        }
    }
    finish(state, xml.size());
}

void parseTree(benchmark::State& state)
{
    const QByteArray xml = text(state);
    for (auto _ : state) {
        QDomDocument document;
        if (!document.setContent(xml, true)) {
            state.SkipWithError("not read");
        }
    }
    finish(state, xml.size());
}

#ifdef TOLVAN_HAVE_KDSOAP
void parseKdSoap(benchmark::State& state)
{
    const QByteArray xml = text(state);
    for (auto _ : state) {
        KDSoapMessage message;
        QString messageNamespace;
        KDSoapHeaders headers;
        if (KDSoapMessageReader().xmlToMessage(xml, &message, &messageNamespace, &headers, KDSoap::SOAP1_1) !=
                KDSoapMessageReader::NoError ||
            message.childValues().first().childValues().size() != state.range(0)) {
            state.SkipWithError("not read");
        }
    }
    finish(state, xml.size());
}
#endif

void writeLibrary(benchmark::State& state)
{
    const QtSoapMessage message = answer(static_cast<int>(state.range(0)));
    qint64 size = 0;
    for (auto _ : state) {
        size = message.toXmlString().size();
    }
    finish(state, size);
}

/// The same text, as Qt's writer is used for it.
QString writtenByQt(const QtSoapType& list)
{
    const QString soap = QStringLiteral(SOAPv11_ENVELOPE), encoding = QStringLiteral(SOAPv11_ENCODING);
    const QString schema = QStringLiteral("http://www.w3.org/2001/XMLSchema"),
                  instance = schema + QStringLiteral("-instance");
    QString xml;
    QXmlStreamWriter writer(&xml);
    writer.writeNamespace(soap, QStringLiteral("SOAP-ENV"));
    writer.writeNamespace(encoding, QStringLiteral("SOAP-ENC"));
    writer.writeNamespace(instance, QStringLiteral("xsi"));
    writer.writeNamespace(schema, QStringLiteral("xsd"));
    writer.writeStartElement(soap, QStringLiteral("Envelope"));
    writer.writeAttribute(soap, QStringLiteral("encodingStyle"), encoding);
    writer.writeStartElement(soap, QStringLiteral("Body"));
    writer.writeDefaultNamespace(QStringLiteral("urn:example:pictures"));
    writer.writeStartElement(QStringLiteral("picturesResponse"));
    writer.writeStartElement(QStringLiteral("pictures"));
    writer.writeAttribute(instance, QStringLiteral("type"), QStringLiteral("SOAP-ENC:Array"));
    writer.writeAttribute(encoding, QStringLiteral("arrayType"),
                          QStringLiteral("xsd:anyType[%1]").arg(list.count()));
    for (int row = 0; row < list.count(); ++row) {
        writer.writeStartElement(QStringLiteral("picture"));
        for (int column = 0; column < 10; ++column) {
            const QtSoapType& value = list[row][column];
            writer.writeStartElement(value.name().name());
            writer.writeAttribute(instance, QStringLiteral("type"),
                                  QStringLiteral("xsd:") + value.typeName());
            writer.writeCharacters(value.toString());
            writer.writeEndElement();
        }
        writer.writeEndElement();
    }
    writer.writeEndDocument();
    return xml;
}

void writeQt(benchmark::State& state)
{
    const QtSoapMessage message = answer(static_cast<int>(state.range(0)));
    QtSoapMessage again;
    if (!again.setContent(writtenByQt(message.returnValue()).toUtf8()) ||
        again.toXmlString() != message.toXmlString()) {
        state.SkipWithError("the peer writes another text");
    }
    qint64 size = 0;
    for (auto _ : state) {
        size = writtenByQt(message.returnValue()).size();
    }
    finish(state, size);
}

} // namespace

BENCHMARK(parseLibrary)->RangeMultiplier(10)->Range(100, 10000)->Complexity()->Unit(benchmark::kMillisecond);
BENCHMARK(parseTree)->RangeMultiplier(10)->Range(100, 10000)->Unit(benchmark::kMillisecond);
#ifdef TOLVAN_HAVE_KDSOAP
BENCHMARK(parseKdSoap)->RangeMultiplier(10)->Range(100, 10000)->Unit(benchmark::kMillisecond);
#endif
BENCHMARK(writeLibrary)->RangeMultiplier(10)->Range(100, 10000)->Complexity()->Unit(benchmark::kMillisecond);
BENCHMARK(writeQt)->RangeMultiplier(10)->Range(100, 10000)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
