#include "TransportCall.h"

static const QString unasked = text("Other The server could not be asked: ");

/// The transport: where requests go and what they are, against a server in the same program.
class SoapTransportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void requestOnTheWire()
    {
        Call call;
        call.server.answer.body = good;
        QVERIFY(!call.transport.networkReply());
        QVERIFY(!call.transport.getResponse().method().isValid());
        QVERIFY(call.ask(text("/a b/ser?x=1&y=%20")));
        QCOMPARE(call.outcome(), text("value pong"));
        const auto& request = call.server.requests.first();
        QCOMPARE(request.line, QByteArray("POST /a%20b/ser?x=1&y=%20 HTTP/1.1"));
        QCOMPARE(request.header("Content-Type").toLower(), QByteArray("text/xml;charset=utf-8"));
        QCOMPARE(request.header("Content-Length").toInt(), request.body.size());
        QCOMPARE(request.header("SOAPAction"), QByteArray("\"\""));
        QCOMPARE(request.header("Host"), "127.0.0.1:" + QByteArray::number(call.server.serverPort()));
        QtSoapMessage message;
        QVERIFY(message.setContent(request.body));
        QCOMPARE(message.method().name().uri(), text("urn:ping"));
        QVERIFY(call.transport.networkReply()->isFinished());
        QCOMPARE(call.transport.networkReply()->rawHeader("Content-Type"), call.server.answer.contentType);
    }

    void actions()
    {
        const QPair<const char*, const char*> rows[] = {
            {"urn:example:units#convert", "\"urn:example:units#convert\""},
            {"\"urn:x\"", "\"urn:x\""},
            {"urn:x\r\nX-Evil: 1", "\"urn:x%0D%0AX-Evil: 1\""},
            {"urn:ö", "\"urn:%C3%B6\""}};
        Call call;
        call.server.answer.body = good;
        for (const auto& [action, header] : rows) {
            call.transport.setAction(text(action));
            for (int time = 0; time < 2; ++time) { // it stays
                QVERIFY(call.ask());
                QCOMPARE(call.server.requests.last().header("SOAPAction"), QByteArray(header));
            }
        }
    }

    void overlappingAndFromItsSlot()
    {
        Call call;
        call.server.answer.body = good;
        int left = 3;
        connect(&call.transport, qOverload<>(&QtSoapHttpTransport::responseReady), this, [&] {
            if (left-- > 0) {
                call.submit();
            }
        });
        call.submit();
        call.submit();
        QTRY_COMPARE_WITH_TIMEOUT(call.order.count(QLatin1Char('b')), 5, 30000);
        QCOMPARE(call.order.size(), 10);
    }

    void addresses()
    {
        Call call;
        call.server.answer.body = good;
        const int port = call.server.serverPort();
        const QString here = text("127.0.0.1:%1").arg(port), nowhere = text("no-such-host.invalid");
        const struct {
            QString host;
            int port;
            QString path;
        } rows[] = {{here, 0, text("/s")},
                    {text("http://") + here + text("/not-used"), 0, text("/s")},
                    {nowhere, 0, text("http://") + here + text("/s")},
                    {text("127.0.0.1"), port, text("s")},
                    {text("127.0.0.1:1"), port, text("/s")}}; // the port of its own counts
        for (const auto& row : rows) {
            call.transport.setHost(row.host, false, row.port);
            QVERIFY(call.ask(row.path));
            QCOMPARE(call.outcome(), text("value pong"));
            QCOMPARE(call.server.requests.takeFirst().line, QByteArray("POST /s HTTP/1.1"));
        }
    }

    void unreachable()
    {
        Call call;
        const int port = call.server.serverPort();
        call.server.close();
        for (const char* host : {"127.0.0.1", "", "a b"}) {
            call.transport.setHost(text(host), port);
            QVERIFY(call.ask());
            QVERIFY2(call.outcome().startsWith(unasked), qPrintable(call.outcome()));
        }
    }

    /// While it waits, in its first slot and in its second one.
    void destroyed()
    {
        for (const int slot : {0, 1, 2}) {
            const bool silent = slot == 0, withArgument = slot == 2;
            HttpLoopback server;
            server.answer.body = good;
            server.answer.silent = silent;
            auto transport = std::make_unique<QtSoapHttpTransport>();
            int first = 0, second = 0;
            connect(transport.get(), qOverload<>(&QtSoapHttpTransport::responseReady), this, [&] {
                ++first;
                if (!withArgument) {
                    transport.reset();
                }
            });
            connect(transport.get(), qOverload<const QtSoapMessage&>(&QtSoapHttpTransport::responseReady),
                    this, [&] {
                        ++second;
                        transport.reset();
                    });
            transport->setHost(text("127.0.0.1"), server.serverPort());
            QtSoapMessage request;
            transport->submitRequest(request, text("/"));
            transport->submitRequest(request, text("/"));
            QTRY_VERIFY_WITH_TIMEOUT(silent ? !server.requests.isEmpty() : !transport, 30000);
            transport.reset();
            QCoreApplication::processEvents();
            QCOMPARE(first, silent ? 0 : 1);
            QCOMPARE(second, withArgument ? 1 : 0);
        }
    }

    void foreignRequestsOfTheManager()
    {
        Call call;
        call.server.answer.body = good;
        QNetworkRequest request(QUrl(text("http://127.0.0.1:%1/other").arg(call.server.serverPort())));
        QNetworkReply* const other = call.transport.networkAccessManager()->get(request);
        QTRY_VERIFY_WITH_TIMEOUT(other->isFinished(), 30000);
        QCoreApplication::processEvents();
        QVERIFY(call.order.isEmpty() && !call.transport.networkReply());
        QCOMPARE(other->readAll(), good);
    }

    /// A request to a secure host never leaves in plain text.
    void secureHost()
    {
        Call call;
        call.transport.setHost(text("127.0.0.1"), true, call.server.serverPort());
        call.transport.setTimeout(300);
        QVERIFY(call.ask());
        QVERIFY2(call.outcome().startsWith(text("Other The server ")), qPrintable(call.outcome()));
        QCOMPARE(call.transport.networkReply()->url().scheme(), text("https"));
        QVERIFY(call.server.requests.isEmpty());
    }
};

TOLVAN_CORE_TEST_MAIN(SoapTransportTest)
#include "tst_soap_transport.moc"
