#include "LengthService.h"
#include "Report.h"
#include "Sections.h"

#include <QEventLoop>

using namespace TOLVAN_NAMESPACE;

namespace
{

QtSoapMessage ask(const LengthService& service, QtSoapMessage request)
{
    QtSoapHttpTransport transport;
    QEventLoop waiting;
    QObject::connect(&transport, qOverload<>(&QtSoapHttpTransport::responseReady), &waiting,
                     &QEventLoop::quit);
    transport.setTimeout(10000);
    transport.setHost(QStringLiteral("127.0.0.1"), service.serverPort());
    transport.setAction(LengthService::action());
    transport.submitRequest(request, QStringLiteral("/lengths"));
    waiting.exec();
    return transport.getResponse();
}

void showXml(Report& report, const QString& name, const QtSoapMessage& message)
{
    const QStringList lines = message.toXmlString(2).split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        report.row(i == 0 ? name : QString(), lines.at(i));
    }
}

} // namespace

void showWebService(Report& report)
{
    LengthService service;
    report.check(QStringLiteral("service on the loopback interface"), QStringLiteral("convertLength"),
                 service.start());

    const QtSoapMessage request = LengthService::request(12, QStringLiteral("inch"));
    const QtSoapMessage answer = ask(service, request);
    showXml(report, QStringLiteral("request"), request);
    showXml(report, QStringLiteral("answer"), answer);
    const QString centimetres = answer.returnValue()[QStringLiteral("cm")].toString();
    report.check(QStringLiteral("12 inch in centimetres"), centimetres,
                 centimetres == QStringLiteral("30.48"));

    const QtSoapMessage refused = ask(service, LengthService::request(1, QStringLiteral("furlong")));
    report.check(QStringLiteral("a unit that is not known"), refused.faultString().toString(),
                 refused.isFault() && refused.faultCode() == QtSoapMessage::Client &&
                     refused.faultDetail()[QStringLiteral("known")].isValid());

    service.close();
    const QtSoapMessage unreachable = ask(service, request);
    report.check(QStringLiteral("the service is gone"), unreachable.faultString().toString(),
                 unreachable.isFault());

    QtSoapMessage bomb;
    const bool taken = bomb.setContent(QByteArrayLiteral("<!DOCTYPE a [<!ENTITY b 'c'>]><a>&b;</a>"));
    report.check(QStringLiteral("a document type in an answer"), bomb.errorString(), !taken);
}
