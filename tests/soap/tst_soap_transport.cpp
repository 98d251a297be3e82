#include "HttpLoopback.h"
#include "SoapCall.h"
#include "TestMain.h"

#include <QFile>
#include <QNetworkProxy>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

using namespace SoapCall;
Q_DECLARE_METATYPE(HttpLoopback::Answer)
Q_DECLARE_METATYPE(QtSoapMessage) // as clients with queued connections do, under the bare name

namespace
{

const QByteArray good = envelope("<pingResponse><r>pong</r></pingResponse>");
const QByteArray large = good + "<!--" + QByteArray(5000000, 'x') + "-->"; // more than fits the read-ahead
const QByteArray serverFault =
    envelope("<e:Fault><faultcode>e:Server.Busy</faultcode><faultstring>too busy</faultstring></e:Fault>");

const QString unasked = QStringLiteral("Other The server could not be asked: ");

/// A transport, its server, and what its signals carried.
struct Call : QObject {
    Q_OBJECT
public:
    Call()
    {
        transport.setHost(QStringLiteral("127.0.0.1"), server.serverPort());
        transport.setTimeout(10000);
        connect(&transport, SIGNAL(responseReady()), this, SLOT(onReady()));
        qRegisterMetaType<QtSoapMessage>("QtSoapMessage");
        connect(&transport, SIGNAL(responseReady(QtSoapMessage)), SLOT(onReady(QtSoapMessage)),
                Qt::QueuedConnection);
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
        return QTest::qWaitFor([this] { return order.size() >= 2; }, 40000) && order == QStringLiteral("ab");
    }

    /// "value" and the text of the first child, or the class of the fault and its text.
    QString outcome() const
    {
        const QtSoapMessage& answer = transport.getResponse();
        if (!answer.isFault()) {
            return QStringLiteral("value ") + answer.returnValue().toString();
        }
        const char* const codes[] = {"VersionMismatch", "MustUnderstand", "Client", "Server", "Other"};
        return QLatin1String(codes[answer.faultCode()]) + QLatin1Char(' ') + answer.faultString().toString();
    }

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
    void overlappingAndFromItsSlot();
    void answers_data();
    void answers();
    void endlessAnswerIsCutOff();
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

void SoapTransportTest::answers_data()
{
    using Answer = HttpLoopback::Answer;
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<int>("timeout");
    QTest::addColumn<QString>("outcome"); // what outcome() says of the answer, as a pattern
    const auto row = [](const char* name, const char* outcome, const Answer& answer, int timeout = 10000) {
        QTest::newRow(name) << answer << timeout << QString::fromUtf8(outcome);
    };
    const QByteArray ok = "200 OK", oops = "500 Oops", xml = "text/xml", html = "text/html";
    const QByteArray latin = envelope("<r><a>\xF6\xDF</a></r>"), mail = "220 example.org ESMTP\r\n\r\n";
    row("fault with 500", "^Server too busy$", {oops, xml, serverFault});
    row("fault with 200", "^Server too busy$", {ok, xml, serverFault});
    row("fault with 403", "^Server too busy$", {"403 No", xml, serverFault});
    row("a message of another type", "^value pong$", {ok, "application/soap", good});
    row("a large message", "^value pong$", {ok, xml, large});
    row("taken on", "^value $", {"202 Accepted", xml, QByteArray()});
    row("character set of the header", "^value öß$", {ok, "text/xml; charset=\"ISO-8859-1\"", latin});
    row("character set of the document", "^value öß$",
        {ok, "text/xml;charset=us-ascii", "<?xml version='1.0' encoding='iso-8859-1'?>" + latin});
    row("HTML with 200", "^Client .*\\(text/html, 7 bytes\\) is no SOAP message", {ok, html, "<html/>"});
    row("HTML with 404", "^Other .*status 404 Not Found", {"404 Not Found", html, "<html/>"});
    row("redirection", "^Other .*status 302", {"302 Found", xml, QByteArray()});
    row("500 without fault", "^Other .*status 500", {oops, xml, "stack trace"});
    row("empty with 200", "^Other .*it is empty", {ok, xml, QByteArray()});
    row("closes before the answer", "^Other .*could not be asked", {ok, xml, good, -1, 0});
    row("closes in the header", "^(Client|Other) .", {ok, xml, good, -1, 30});
    row("closes in the body", "^Other .*not complete", {ok, xml, good, -1, 150});
    row("no HTTP", "^Other .", {ok, xml, mail, -1, mail.size(), 0, false, true});
    row("100 MB announced", "^Other .*larger than 64 MiB", {ok, xml, good, 100000000});
    row("silence", "^Other .*did not answer within 0.3 s", {ok, xml, good, -1, -1, 0, true}, 300);
    row("body shorter than announced", "^Other .*within 0.3 s", {ok, xml, good, 100000}, 300);
    row("slow, but moving", "^value pong$", {ok, xml, good, -1, -1, 10}, 2000);
    // a loaded machine may let the shorter time pass between two bytes
    row("too slow", "^Other .*(not complete after 3 s|within 0.3 s)", {ok, xml, good, -1, -1, 50}, 300);
}

void SoapTransportTest::answers()
{
    QFETCH(HttpLoopback::Answer, answer);
    QFETCH(int, timeout);
    QFETCH(QString, outcome);
    Call call;
    call.server.answer = answer;
    call.transport.setTimeout(timeout);
    QVERIFY(call.ask());
    QVERIFY2(QRegularExpression(outcome).match(call.outcome()).hasMatch(), qPrintable(call.outcome()));
    QCOMPARE(call.received.toXmlString(), call.transport.getResponse().toXmlString());
    QTest::qWait(50);
    QCOMPARE(call.order.size(), 2); // nothing more comes
    call.server.answer = HttpLoopback::Answer();
    call.server.answer.body = good; // and the transport is as good as new
    call.transport.setTimeout(10000);
    QVERIFY(call.ask());
    QCOMPARE(call.outcome(), QStringLiteral("value pong"));
    QVERIFY(call.transport.networkAccessManager()->findChildren<QNetworkReply*>().size() <= 2);
}

void SoapTransportTest::endlessAnswerIsCutOff()
{
    EndlessServer server;
    Call call;
    call.transport.setHost(QStringLiteral("127.0.0.1"), server.port);
    call.submit();
    qint64 received = 0;
    QNetworkReply* const reply = call.transport.networkReply();
    connect(reply, &QNetworkReply::metaDataChanged, this, [] { QThread::sleep(2); }); // a busy caller
    connect(reply, &QNetworkReply::downloadProgress, this,
            [&](qint64 bytes) { received = qMax(received, bytes); });
    QTRY_COMPARE_WITH_TIMEOUT(call.order, QStringLiteral("ab"), 60000);
    QVERIFY2(call.outcome().contains(QStringLiteral("larger than 64 MiB")), qPrintable(call.outcome()));
    QVERIFY2(received > 0 && received < 70 * 1024 * 1024, qPrintable(QString::number(received)));
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
