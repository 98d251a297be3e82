#pragma once

#include "HttpLoopback.h"
#include "SoapCall.h"

using namespace SoapCall;
Q_DECLARE_METATYPE(QtSoapMessage) // as clients with queued connections do, under the bare name

inline const QByteArray good = envelope("<pingResponse><r>pong</r></pingResponse>");
inline const QByteArray large =
    good + "<!--" + QByteArray(5000000, 'x') + "-->"; // more than fits the read-ahead

/// A transport, its server, and what its signals carried.
struct Call : QObject {
    Q_OBJECT
public:
    Call()
    {
        transport.setHost(text("127.0.0.1"), server.serverPort());
        transport.setTimeout(10000);
        connect(&transport, SIGNAL(responseReady()), this, SLOT(onReady()));
        qRegisterMetaType<QtSoapMessage>("QtSoapMessage");
        connect(&transport, SIGNAL(responseReady(QtSoapMessage)), SLOT(onReady(QtSoapMessage)),
                Qt::QueuedConnection);
    }

    void submit(const QString& path = text("/service"))
    {
        QtSoapMessage request; // need not outlive the call
        request.setMethod(text("ping"), QStringLiteral("urn:ping"));
        transport.submitRequest(request, path);
    }

    /// Submits and waits; false when there was not exactly one pair of signals for every call.
    bool ask(const QString& path = text("/service"))
    {
        submit(path);
        loop.enterLoopMSecs(
            40000); // without the pauses of qWaitFor(), of which each answer would take several
        return order == text("ab").repeated(++calls);
    }

    /// "value" and the text of the first child, or the class of the fault and its text.
    QString outcome() const
    {
        const QtSoapMessage& answer = transport.getResponse();
        if (!answer.isFault()) {
            return text("value ") + answer.returnValue().toString();
        }
        const char* const codes[] = {"VersionMismatch", "MustUnderstand", "Client", "Server", "Other"};
        return QLatin1String(codes[answer.faultCode()]) + QLatin1Char(' ') + answer.faultString().toString();
    }

    HttpLoopback server;
    QtSoapHttpTransport transport;
    QTestEventLoop loop;
    QString order;
    int calls = 0;
    QtSoapMessage received;

public Q_SLOTS:
    void onReady()
    {
        order += QLatin1Char('a');
        QVERIFY(transport.networkReply());
    }
    void onReady(const QtSoapMessage& message)
    {
        order += QLatin1Char('b');
        received = message;
        loop.exitLoop();
    }
};
