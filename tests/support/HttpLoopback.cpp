#include "HttpLoopback.h"

#include <QRegularExpression>
#include <QTcpSocket>
#include <QTimer>

QByteArray HttpLoopback::Request::header(const QByteArray& name) const
{
    const QRegularExpression pattern(QStringLiteral("^%1:\\s*(.*?)\\s*$").arg(QString::fromLatin1(name)),
                                     QRegularExpression::CaseInsensitiveOption |
                                         QRegularExpression::MultilineOption);
    return pattern.match(QString::fromUtf8(headers)).captured(1).toUtf8();
}

HttpLoopback::HttpLoopback()
{
    if (!listen(QHostAddress::LocalHost)) {
        qFatal("no loopback port: %s", qPrintable(errorString()));
    }
    connect(this, &QTcpServer::newConnection, this, [this] {
        auto* const socket = nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { onReadyRead(socket); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    });
}

void HttpLoopback::onReadyRead(QTcpSocket* socket)
{
    QByteArray received = socket->property("received").toByteArray() + socket->readAll();
    socket->setProperty("received", received);
    const int end = received.indexOf("\r\n\r\n");
    if (end < 0) {
        return;
    }
    Request request;
    request.line = received.left(received.indexOf("\r\n"));
    request.headers = received.mid(request.line.size() + 2, end - request.line.size() - 2);
    request.body = received.mid(end + 4);
    if (request.body.size() < request.header("Content-Length").toInt()) {
        return;
    }
    socket->setProperty("received", QByteArray());
    requests.append(request);
    send(socket);
}

void HttpLoopback::send(QTcpSocket* socket)
{
    if (answer.silent) {
        return;
    }
    const qint64 length = answer.claimed < 0 ? answer.body.size() : answer.claimed;
    QByteArray text = "HTTP/1.1 " + answer.status + "\r\nContent-Type: " + answer.contentType +
                      "\r\nContent-Length: " + QByteArray::number(length);
    text = answer.rawBody ? answer.body : text + "\r\n\r\n" + answer.body;
    if (answer.dripMs > 0) {
        const int body = text.indexOf("\r\n\r\n") + 4;
        socket->write(text.left(body));
        text.remove(0, body);
        auto* const timer = new QTimer(socket);
        connect(timer, &QTimer::timeout, socket, [socket, text]() mutable {
            socket->write(text.left(16));
            text.remove(0, 16);
        });
        timer->start(answer.dripMs);
        return;
    }
    socket->write(answer.sent < 0 ? text : text.left(answer.sent));
    if (answer.sent >= 0) {
        socket->disconnectFromHost();
    }
}
