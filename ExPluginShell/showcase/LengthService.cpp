#include "LengthService.h"

#include <QTcpSocket>

using namespace TOLVAN_NAMESPACE;

namespace
{

const QString uri = QStringLiteral("urn:trelio:showcase:lengths");

struct Unit {
    const char* name;
    double centimetres;
};

constexpr Unit units[] = {{"inch", 2.54}, {"foot", 30.48}, {"yard", 91.44}, {"millimetre", 0.1}};

QtSoapMessage unknownUnit(const QString& unit)
{
    QtSoapMessage fault;
    fault.setFaultCode(QtSoapMessage::Client);
    fault.setFaultString(QStringLiteral("The unit \"%1\" is not known").arg(unit));
    fault.addFaultDetail(new QtSoapSimpleType(QtSoapQName(QStringLiteral("known")),
                                              LengthService::unitNames().join(QStringLiteral(", "))));
    return fault;
}

QtSoapMessage answerTo(const QByteArray& body)
{
    QtSoapMessage request;
    if (!request.setContent(body)) {
        return request; // a fault that says what is wrong
    }
    const QString unit = request.method()[QStringLiteral("unit")].toString();
    const int amount = request.method()[QStringLiteral("amount")].toInt();
    for (const Unit& known : units) {
        if (unit == QLatin1String(known.name)) {
            QtSoapMessage answer;
            answer.setMethod(QStringLiteral("convertLengthResponse"), uri);
            auto* const result = new QtSoapStruct(QtSoapQName(QStringLiteral("result")));
            result->insert(new QtSoapSimpleType(QtSoapQName(QStringLiteral("cm")),
                                                QString::number(amount * known.centimetres)));
            answer.addMethodArgument(result);
            return answer;
        }
    }
    return unknownUnit(unit);
}

/// Length of the request that \a received begins with, -1 while it is incomplete.
int requestLength(const QByteArray& received)
{
    const int head = received.indexOf("\r\n\r\n") + 4;
    if (head < 4) {
        return -1;
    }
    const QByteArray lower = received.left(head).toLower();
    const int field = lower.indexOf("content-length:");
    const int end =
        head +
        (field < 0 ? 0 : lower.mid(field + 15, lower.indexOf('\r', field) - field - 15).trimmed().toInt());
    return received.size() < end ? -1 : end;
}

} // namespace

LengthService::LengthService(QObject* parent)
    : QTcpServer(parent)
{
    connect(this, &QTcpServer::newConnection, this, &LengthService::onConnection);
}

bool LengthService::start()
{
    return isListening() || listen(QHostAddress::LocalHost);
}

QStringList LengthService::unitNames()
{
    QStringList names;
    for (const Unit& unit : units) {
        names += QString::fromLatin1(unit.name);
    }
    return names;
}

QtSoapMessage LengthService::request(int amount, const QString& unit)
{
    QtSoapMessage message;
    message.setMethod(QStringLiteral("convertLength"), uri);
    message.addMethodArgument(QStringLiteral("amount"), QString(), amount);
    message.addMethodArgument(QStringLiteral("unit"), QString(), unit);
    return message;
}

QString LengthService::action()
{
    return uri + QStringLiteral("#convertLength");
}

void LengthService::onConnection()
{
    while (QTcpSocket* const socket = nextPendingConnection()) {
        connect(socket, &QTcpSocket::readyRead, this, [socket] { serve(socket); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }
}

void LengthService::serve(QTcpSocket* socket)
{
    const int length = requestLength(socket->peek(socket->bytesAvailable()));
    if (length < 0) {
        return; // the rest is on its way
    }
    const QByteArray request = socket->read(length);
    const QtSoapMessage answer = answerTo(request.mid(request.indexOf("\r\n\r\n") + 4));
    const QByteArray body = answer.toXmlString().toUtf8();
    socket->write((answer.isFault() ? "HTTP/1.1 500 Internal Server Error" : "HTTP/1.1 200 OK") +
                  QByteArray("\r\nContent-Type: text/xml; charset=utf-8\r\nContent-Length: ") +
                  QByteArray::number(body.size()) + "\r\n\r\n" + body);
}
