#include "HttpLoopback.h"
#include "TestMain.h"

#include <utilsDll/soap/qtsoap.h>

#include <QAuthenticator>
#include <QFile>
#include <QNetworkProxy>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <functional>

Q_DECLARE_METATYPE(HttpLoopback::Answer)

using namespace TOLVAN_NAMESPACE;

namespace
{

QByteArray envelope(const QByteArray& body)
{
    return "<e:Envelope xmlns:e='" SOAPv11_ENVELOPE "'><e:Body>" + body + "</e:Body></e:Envelope>";
}

const QByteArray good = envelope("<pingResponse><r>pong</r></pingResponse>");
const QByteArray serverFault =
    envelope("<e:Fault><faultcode>e:Server.Busy</faultcode><faultstring>too busy</faultstring></e:Fault>");

/// A transport, its server, and what its signals told.
struct Call : QObject {
    Q_OBJECT
public:
    Call()
    {
        transport.setHost(QStringLiteral("127.0.0.1"), server.serverPort());
        transport.setTimeout(10000);
        connect(&transport, SIGNAL(responseReady()), this, SLOT(onReady()));
        connect(&transport, SIGNAL(responseReady(QtSoapMessage)), this, SLOT(onReady(QtSoapMessage)));
    }

    void submit(const QString& path = QStringLiteral("/service"))
    {
        QtSoapMessage request; // need not outlive the call
        request.setMethod(QStringLiteral("ping"), QStringLiteral("urn:ping"));
        transport.submitRequest(request, path);
    }

    /// Submits and waits; false when there is not exactly one pair of signals.
    bool ask(const QString& path = QStringLiteral("/service"))
    {
        order.clear();
        submit(path);
        return QTest::qWaitFor([this] { return order.size() >= 2; }, 15000) && order == QStringLiteral("ab");
    }

    QString faultText() const { return transport.getResponse().faultString().toString(); }

    HttpLoopback server;
    QtSoapHttpTransport transport;
    QString order;
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
    }
};

} // namespace

/// The transport against a server in the same program that behaves, and one that does not.
class SoapTransportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void requestOnTheWire();
    void actions_data();
    void actions();
    void severalInARow();
    void overlapping();
    void answers_data();
    void answers();
    void failures_data();
    void failures();
    void endlessAnswerIsCutOff();
    void unreachable_data();
    void unreachable();
    void destroyedUnderWay();
    void destroyedByItsSlot();
    void submittedFromItsSlot();
    void foreignRequestsOfTheManager();
    void proxy();
    void authentication();
    void secureServer();
};

void SoapTransportTest::requestOnTheWire()
{
    Call call;
    call.server.answer.body = good;
    QVERIFY(!call.transport.networkReply());
    QVERIFY(!call.transport.getResponse().method().isValid());
    QVERIFY(call.ask(QStringLiteral("/a b/ser?x=1&y=%20")));
    QCOMPARE(call.transport.getResponse().returnValue().toString(), QStringLiteral("pong"));
    QCOMPARE(call.received.returnValue().toString(), QStringLiteral("pong"));
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
    QVERIFY(call.server.requests.last().header("X-Evil").isNull());
}

void SoapTransportTest::severalInARow()
{
    Call call;
    for (int k = 0; k < 20; ++k) {
        call.server.answer.status = k % 3 ? "200 OK" : "500 Internal Server Error";
        call.server.answer.body =
            k % 3 ? envelope("<r><n>" + QByteArray::number(k) + "</n></r>") : serverFault;
        QVERIFY(call.ask());
        QCOMPARE(call.transport.getResponse().isFault(), k % 3 == 0);
        if (k % 3)
            QCOMPARE(call.transport.getResponse().returnValue().toInt(), k);
    }
    QCOMPARE(call.server.requests.size(), 20);
    QVERIFY(call.transport.networkAccessManager()->findChildren<QNetworkReply*>().size() <= 2);
}

void SoapTransportTest::overlapping()
{
    Call call;
    call.server.answer.body = good;
    for (int k = 0; k < 5; ++k)
        call.submit();
    QTRY_COMPARE_WITH_TIMEOUT(call.order, QStringLiteral("ababababab"), 30000);
}

void SoapTransportTest::answers_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("expected"); // the text of the first child, or "fault: " and its text
    const QByteArray xml = "text/xml", latin = "text/xml; charset=\"ISO-8859-1\"";
    const QByteArray word = envelope("<r><a>Gr\xF6\xDF"
                                     "e</a></r>");
    QTest::newRow("fault with 500") << QByteArray("500 Oops") << xml << serverFault << "fault: too busy";
    QTest::newRow("fault with 200") << QByteArray("200 OK") << xml << serverFault << "fault: too busy";
    QTest::newRow("fault with 401") << QByteArray("403 No") << xml << serverFault << "fault: too busy";
    QTest::newRow("message of another type")
        << QByteArray("200 OK") << QByteArray("application/soap") << good << "pong";
    QTest::newRow("taken on") << QByteArray("202 Accepted") << xml << QByteArray() << QString();
    QTest::newRow("character set of the header")
        << QByteArray("200 OK") << latin << word << QStringLiteral("Größe");
    QTest::newRow("of the document") << QByteArray("200 OK") << QByteArray("text/xml;charset=us-ascii")
                                     << "<?xml version='1.0' encoding='iso-8859-1'?>" + word
                                     << QStringLiteral("Größe");
}

void SoapTransportTest::answers()
{
    QFETCH(QByteArray, status);
    QFETCH(QByteArray, type);
    QFETCH(QByteArray, body);
    QFETCH(QString, expected);
    Call call;
    call.server.answer.status = status;
    call.server.answer.contentType = type;
    call.server.answer.body = body;
    QVERIFY(call.ask());
    const QtSoapMessage& answer = call.transport.getResponse();
    QCOMPARE(answer.isFault() ? QStringLiteral("fault: ") + call.faultText()
                              : answer.returnValue().toString(),
             expected);
    if (answer.isFault())
        QCOMPARE(answer.faultCode(), QtSoapMessage::Server);
}

void SoapTransportTest::failures_data()
{
    using Answer = HttpLoopback::Answer;
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* text, const std::function<void(Answer&)>& change) {
        Answer answer;
        answer.body = good;
        change(answer);
        QTest::newRow(name) << answer << QString::fromLatin1(text);
    };
    row("HTML with 200", "(text/html, 25 bytes) is no SOAP message", [](Answer& a) {
        a.contentType = "text/html";
        a.body = "<html><body>hi</body></h>";
    });
    row("HTML with 404", "status 404 Not Found", [](Answer& a) {
        a.status = "404 Not Found";
        a.body = "<html/>";
    });
    row("redirection", "status 302", [](Answer& a) {
        a.status = "302 Found";
        a.body.clear();
    });
    row("500 without fault", "status 500", [](Answer& a) {
        a.status = "500 Oops";
        a.body = "stack trace";
    });
    row("empty with 200", "it is empty", [](Answer& a) { a.body.clear(); });
    row("closes before the answer", "could not be asked", [](Answer& a) { a.sent = 0; });
    row("closes in the header", "", [](Answer& a) { a.sent = 30; });
    row("closes in the body", "not complete", [](Answer& a) { a.sent = 150; });
    row("no HTTP", "", [](Answer& a) {
        a.rawBody = true;
        a.body = "220 mail.example.org ESMTP\r\n\r\n";
        a.sent = a.body.size();
    });
    row("silence", "did not answer within 0.5 s", [](Answer& a) { a.silent = true; });
    row("byte after byte", "not complete after 5 s", [](Answer& a) { a.dripMs = 100; });
    row("body shorter than announced", "did not answer within 0.5 s", [](Answer& a) { a.claimed = 100000; });
    row("100 MB announced", "larger than 64 MiB", [](Answer& a) { a.claimed = 100000000; });
}

void SoapTransportTest::failures()
{
    QFETCH(HttpLoopback::Answer, answer);
    QFETCH(QString, text);
    Call call;
    call.server.answer = answer;
    call.transport.setTimeout(500);
    QVERIFY(call.ask());
    QVERIFY(call.transport.getResponse().isFault() && call.received.isFault());
    QVERIFY2(call.faultText().contains(text) && !call.faultText().isEmpty(), qPrintable(call.faultText()));
    QVERIFY(call.transport.getResponse().faultCode() != QtSoapMessage::Server);
    QTest::qWait(50);
    QCOMPARE(call.order.size(), 2); // nothing more comes
    call.server.answer = HttpLoopback::Answer();
    call.server.answer.body = good; // and the transport is as good as new
    QVERIFY(call.ask());
    QCOMPARE(call.transport.getResponse().returnValue().toString(), QStringLiteral("pong"));
}

void SoapTransportTest::endlessAnswerIsCutOff()
{
    Call call;
    call.server.answer.endless = true;
    QVERIFY(call.ask());
    QVERIFY2(call.faultText().contains(QStringLiteral("larger than 64 MiB")), qPrintable(call.faultText()));
#ifndef Q_OS_WIN // Wine may go on taking what is written for a peer that has left
    QVERIFY2(call.server.written < 80 * 1024 * 1024, qPrintable(QString::number(call.server.written)));
#endif
}

void SoapTransportTest::unreachable_data()
{
    QTest::addColumn<QString>("host");
    QTest::newRow("nobody listens") << "127.0.0.1";
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
    QCOMPARE(call.transport.getResponse().faultCode(), QtSoapMessage::Other);
    QVERIFY2(call.faultText().startsWith(QStringLiteral("The server could not be asked: ")),
             qPrintable(call.faultText()));
}

void SoapTransportTest::destroyedUnderWay()
{
    HttpLoopback server;
    server.answer.silent = true;
    QSignalSpy* spy = nullptr;
    {
        QtSoapHttpTransport transport;
        spy = new QSignalSpy(&transport, SIGNAL(responseReady()));
        spy->setParent(this);
        transport.setHost(QStringLiteral("127.0.0.1"), server.serverPort());
        QtSoapMessage request;
        transport.submitRequest(request, QStringLiteral("/"));
        transport.submitRequest(request, QStringLiteral("/"));
        QTRY_VERIFY(!server.requests.isEmpty());
    }
    QTest::qWait(50);
    QCOMPARE(spy->count(), 0);
}

void SoapTransportTest::destroyedByItsSlot()
{
    HttpLoopback server;
    server.answer.body = good;
    for (const bool withArgument : {false, true}) {
        auto transport = std::make_unique<QtSoapHttpTransport>();
        transport->setHost(QStringLiteral("127.0.0.1"), server.serverPort());
        const auto destroy = [&transport] { transport.reset(); };
        if (withArgument)
            connect(transport.get(), qOverload<const QtSoapMessage&>(&QtSoapHttpTransport::responseReady),
                    this, destroy);
        else
            connect(transport.get(), qOverload<>(&QtSoapHttpTransport::responseReady), this, destroy);
        QtSoapMessage request;
        transport->submitRequest(request, QStringLiteral("/"));
        QTRY_VERIFY(!transport);
    }
}

void SoapTransportTest::submittedFromItsSlot()
{
    Call call;
    call.server.answer.body = good;
    int left = 3;
    connect(&call.transport, qOverload<>(&QtSoapHttpTransport::responseReady), this, [&] {
        if (left-- > 0)
            call.submit();
    });
    call.submit();
    QTRY_COMPARE_WITH_TIMEOUT(call.order, QStringLiteral("abababab"), 30000);
}

void SoapTransportTest::foreignRequestsOfTheManager()
{
    Call call;
    call.server.answer.body = good;
    QNetworkRequest request(QUrl(QStringLiteral("http://127.0.0.1:%1/other").arg(call.server.serverPort())));
    QNetworkReply* const other = call.transport.networkAccessManager()->get(request);
    QTRY_VERIFY(other->isFinished());
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
    QVERIFY2(!call.transport.getResponse().isFault(), qPrintable(call.faultText()));
    QCOMPARE(call.server.requests.first().line,
             QByteArray("POST http://soap.example.org:8080/service HTTP/1.1"));
}

void SoapTransportTest::authentication()
{
    Call call;
    call.server.answer.rawBody = true;
    call.server.answer.body =
        "HTTP/1.1 401 Who\r\nWWW-Authenticate: Basic realm=\"r\"\r\nContent-Length: 0\r\n\r\n";
    int asked = 0;
    connect(call.transport.networkAccessManager(), &QNetworkAccessManager::authenticationRequired, this,
            [&](QNetworkReply*, QAuthenticator* authenticator) {
                if (++asked > 1)
                    return;
                authenticator->setUser(QStringLiteral("u"));
                authenticator->setPassword(QStringLiteral("p"));
                call.server.answer = HttpLoopback::Answer();
                call.server.answer.body = good;
            });
    QVERIFY(call.ask());
    QCOMPARE(call.transport.getResponse().returnValue().toString(), QStringLiteral("pong"));
    QCOMPARE(call.server.requests.last().header("Authorization"), QByteArray("Basic dTpw"));
}

void SoapTransportTest::secureServer()
{
    const QString openssl = QStandardPaths::findExecutable(QStringLiteral("openssl"));
    if (openssl.isEmpty())
        QSKIP("the program openssl, which makes the server's certificate, is not installed");
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
    call.server.answer.body = good;
    call.server.secure(own, QSslKey(&keyFile, QSsl::Rsa));
    call.transport.setHost(QStringLiteral("localhost"), true, call.server.serverPort());
    QVERIFY(call.ask()); // nobody vouches for the certificate
    QVERIFY2(call.faultText().startsWith(QStringLiteral("The server could not be asked: ")),
             qPrintable(call.faultText()));
    QVERIFY(call.server.requests.isEmpty());
    connect(call.transport.networkAccessManager(), &QNetworkAccessManager::sslErrors, this,
            [&own](QNetworkReply* reply, const QList<QSslError>&) {
                reply->ignoreSslErrors({QSslError(QSslError::SelfSignedCertificate, own)});
            });
    QVERIFY(call.ask());
    QVERIFY2(!call.transport.getResponse().isFault(), qPrintable(call.faultText()));
    QCOMPARE(call.transport.networkReply()->url().scheme(), QStringLiteral("https"));
}

TOLVAN_CORE_TEST_MAIN(SoapTransportTest)
#include "tst_soap_transport.moc"
