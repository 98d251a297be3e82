#pragma once

#include <QList>
#include <QTcpServer>

class QTcpSocket;

/// A small HTTP server inside the test program, on a free port of the loopback interface, that can misbehave.
class HttpLoopback : public QTcpServer
{
    Q_OBJECT

public:
    struct Request {
        QByteArray line;    ///< "POST /path HTTP/1.1"
        QByteArray headers; ///< the lines behind it, as sent
        QByteArray body;

        /// Value of a header, in any case of its letters; null if it is missing.
        QByteArray header(const QByteArray& name) const;
    };

    /// The answer to every request; the first three members make a valid one.
    struct Answer {
        QByteArray status = "200 OK";
        QByteArray contentType = "text/xml; charset=utf-8";
        QByteArray body;
        qint64 claimed = -1;  ///< Content-Length to send instead of the body's
        int sent = -1;        ///< close after so many bytes of the answer
        int dripMs = 0;       ///< send 16 bytes of the body each so many milliseconds
        bool silent = false;  ///< never answer
        bool rawBody = false; ///< the body is the whole answer
    };

    HttpLoopback();

    Answer answer;
    QList<Request> requests;

private:
    void onReadyRead(QTcpSocket* socket);
    void send(QTcpSocket* socket);
};
