#include "TestMain.h"
#include "TransportCall.h"

#include <QFile>
#include <QNetworkProxy>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace
{

const QString unasked = QStringLiteral("Other The server could not be asked: ");

} // namespace

/// The transport: where requests go and what they are, against a server in the same program.
class SoapTransportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void requestOnTheWire();
    void actions_data();
    void actions();
    void overlappingAndFromItsSlot();
    void addresses_data();
    void addresses();
    void unreachable_data();
    void unreachable();
    void destroyed_data();
    void destroyed();
    void foreignRequestsOfTheManager();
    void proxy();
    void secureServer();
};

void SoapTransportTest::requestOnTheWire()
{
    Call call;
    call.server.answer.body = good;
    QVERIFY(!call.transport.networkReply());
    QVERIFY(!call.transport.getResponse().method().isValid());
    QVERIFY(call.ask(QStringLiteral("/a b/ser?x=1&y=%20")));
    QCOMPARE(call.outcome(), QStringLiteral("value pong"));
    const auto& request = call.server.requests.first();
    QCOMPARE(request.line, QByteArray("POST /a%20b/ser?x=1&y=%20 HTTP/1.1"));
    QCOMPARE(request.header("Content-Type").toLower(), QByteArray("text/xml;charset=utf-8"));
    QCOMPARE(request.header("Content-Length").toInt(), request.body.size());
    QCOMPARE(request.header("SOAPAction"), QByteArray("\"\""));
    QCOMPARE(request.header("Host"), "127.0.0.1:" + QByteArray::number(call.server.serverPort()));
    QtSoapMessage message;
    QVERIFY(message.setContent(request.body));
    QCOMPARE(message.method().name().uri(), QStringLiteral("urn:ping"));
    QVERIFY(call.transport.networkReply()->isFinished());
    QCOMPARE(call.transport.networkReply()->rawHeader("Content-Type"), call.server.answer.contentType);
}

void SoapTransportTest::actions_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QByteArray>("header");
    QTest::newRow("bare") << "urn:example:units#convert" << QByteArray("\"urn:example:units#convert\"");
    QTest::newRow("quoted") << "\"urn:x\"" << QByteArray("\"urn:x\"");
    QTest::newRow("line end") << "urn:x\r\nX-Evil: 1" << QByteArray("\"urn:x%0D%0AX-Evil: 1\"");
    QTest::newRow("beyond ASCII") << QStringLiteral("urn:ö") << QByteArray("\"urn:%C3%B6\"");
}

void SoapTransportTest::actions()
{
    QFETCH(QString, action);
    QFETCH(QByteArray, header);
    Call call;
    call.server.answer.body = good;
    call.transport.setAction(action);
    QVERIFY(call.ask());
    QVERIFY(call.ask()); // stays
    QCOMPARE(call.server.requests.last().header("SOAPAction"), header);
}

void SoapTransportTest::overlappingAndFromItsSlot()
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

void SoapTransportTest::addresses_data()
{
    QTest::addColumn<QString>("host"); // %1 is the port of the server
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("portGiven");
    QTest::newRow("host with port") << "127.0.0.1:%1"
                                    << "/s" << false;
    QTest::newRow("address as host") << "http://127.0.0.1:%1/not-used"
                                     << "/s" << false;
    QTest::newRow("address as path") << "no-such-host.invalid"
                                     << "http://127.0.0.1:%1/s" << false;
    QTest::newRow("path without slash") << "127.0.0.1"
                                        << "s" << true;
    QTest::newRow("port in both") << "127.0.0.1:1"
                                  << "/s" << true;
}

void SoapTransportTest::addresses()
{
    QFETCH(QString, host);
    QFETCH(QString, path);
    QFETCH(bool, portGiven);
    Call call;
    call.server.answer.body = good;
    const auto filled = [&call](const QString& text) {
        return text.contains(QLatin1Char('%')) ? text.arg(call.server.serverPort()) : text;
    };
    call.transport.setHost(filled(host), false, portGiven ? call.server.serverPort() : 0);
    QVERIFY(call.ask(filled(path)));
    QCOMPARE(call.outcome(), QStringLiteral("value pong"));
    QCOMPARE(call.server.requests.first().line, QByteArray("POST /s HTTP/1.1"));
}

void SoapTransportTest::unreachable_data()
{
    QTest::addColumn<QString>("host");
    QTest::newRow("nothing listens") << "127.0.0.1";
    QTest::newRow("no such host") << "no-such-host.invalid";
    QTest::newRow("no host at all") << QString();
    QTest::newRow("no host name") << "a b";
}

void SoapTransportTest::unreachable()
{
    QFETCH(QString, host);
    Call call;
    const int port = call.server.serverPort();
    call.server.close();
    call.transport.setHost(host, port);
    QVERIFY(call.ask());
    // a name server that is out of reach itself takes longer to say no than the time-out lets it
    QVERIFY2(call.outcome().startsWith(host.endsWith(QStringLiteral("invalid")) ? unasked.left(17) : unasked),
             qPrintable(call.outcome()));
}

void SoapTransportTest::destroyed_data()
{
    QTest::addColumn<bool>("silent");
    QTest::addColumn<bool>("withArgument");
    QTest::newRow("under way") << true << false;
    QTest::newRow("in the first slot") << false << false;
    QTest::newRow("in the second slot") << false << true;
}

void SoapTransportTest::destroyed()
{
    QFETCH(bool, silent);
    QFETCH(bool, withArgument);
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
    connect(transport.get(), qOverload<const QtSoapMessage&>(&QtSoapHttpTransport::responseReady), this, [&] {
        ++second;
        transport.reset();
    });
    transport->setHost(QStringLiteral("127.0.0.1"), server.serverPort());
    QtSoapMessage request;
    transport->submitRequest(request, QStringLiteral("/"));
    transport->submitRequest(request, QStringLiteral("/"));
    QTRY_VERIFY_WITH_TIMEOUT(silent ? !server.requests.isEmpty() : !transport, 30000);
    transport.reset();
    QTest::qWait(50);
    QCOMPARE(first, silent ? 0 : 1);
    QCOMPARE(second, withArgument ? 1 : 0);
}

void SoapTransportTest::foreignRequestsOfTheManager()
{
    Call call;
    call.server.answer.body = good;
    QNetworkRequest request(QUrl(QStringLiteral("http://127.0.0.1:%1/other").arg(call.server.serverPort())));
    QNetworkReply* const other = call.transport.networkAccessManager()->get(request);
    QTRY_VERIFY_WITH_TIMEOUT(other->isFinished(), 30000);
    QTest::qWait(20);
    QVERIFY(call.order.isEmpty() && !call.transport.networkReply());
    QCOMPARE(other->readAll(), good);
}

void SoapTransportTest::proxy()
{
    Call call; // its server plays the proxy
    call.server.answer.body = good;
    call.transport.setHost(QStringLiteral("soap.example.org"), 8080);
    call.transport.networkAccessManager()->setProxy(QNetworkProxy(
        QNetworkProxy::HttpCachingProxy, QStringLiteral("127.0.0.1"), call.server.serverPort()));
    QVERIFY(call.ask());
    QCOMPARE(call.outcome(), QStringLiteral("value pong"));
    QCOMPARE(call.server.requests.first().line,
             QByteArray("POST http://soap.example.org:8080/service HTTP/1.1"));
}

void SoapTransportTest::secureServer()
{
    const QString openssl = QStandardPaths::findExecutable(QStringLiteral("openssl"));
    if (openssl.isEmpty()) {
        QSKIP("the program openssl, which makes the server's certificate, is not installed");
    }
    QTemporaryDir folder;
    const QString key = folder.filePath(QStringLiteral("key.pem")),
                  certificate = folder.filePath(QStringLiteral("cert.pem"));
    QProcess maker;
    maker.setStandardErrorFile(QProcess::nullDevice());
    maker.start(openssl,
                QStringLiteral("req -x509 -newkey rsa:2048 -nodes -days 2 -batch -subj /CN=localhost "
                               "-addext subjectAltName=DNS:localhost -out %1 -keyout %2")
                    .arg(certificate, key)
                    .split(QLatin1Char(' ')));
    QVERIFY(maker.waitForFinished() && maker.exitCode() == 0);
    QFile keyFile(key);
    QVERIFY(keyFile.open(QIODevice::ReadOnly));
    const QSslCertificate own = QSslCertificate::fromPath(certificate).value(0);
    Call call;
    call.server.answer.body = large;
    call.server.secure(own, QSslKey(&keyFile, QSsl::Rsa));
    call.transport.setHost(QStringLiteral("localhost"), true, call.server.serverPort());
    QVERIFY(call.ask()); // the certificate is not trusted
    QVERIFY2(call.outcome().startsWith(unasked), qPrintable(call.outcome()));
    QVERIFY(call.server.requests.isEmpty());
    connect(call.transport.networkAccessManager(), &QNetworkAccessManager::sslErrors, this,
            [&own](QNetworkReply* reply, const QList<QSslError>&) {
                reply->ignoreSslErrors({QSslError(QSslError::SelfSignedCertificate, own)});
            });
    QVERIFY(call.ask());
    QCOMPARE(call.outcome(), QStringLiteral("value pong"));
    QCOMPARE(call.transport.networkReply()->url().scheme(), QStringLiteral("https"));
}

TOLVAN_CORE_TEST_MAIN(SoapTransportTest)
#include "tst_soap_transport.moc"
