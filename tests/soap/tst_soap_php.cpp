#include "SoapCall.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>

using namespace SoapCall;

/// Another make of SOAP: the server classes of PHP, in a process of their own.
class SoapPhpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const QString php = QStandardPaths::findExecutable(text("php"));
        if (php.isEmpty()) {
            QSKIP("PHP (php-cli) is not installed");
        }
        const QStringList check{text("-r"), text("exit(extension_loaded('soap') ? 0 : 1);")};
        if (QProcess::execute(php, check) != 0) {
            QSKIP("the SOAP classes of PHP (php-soap) are not installed");
        }
        {
            QTcpServer probe;
            QVERIFY(probe.listen(QHostAddress::LocalHost));
            m_port = probe.serverPort();
        }
        m_php.setProcessChannelMode(QProcess::MergedChannels);
        m_php.start(php, {text("-S"), text("127.0.0.1:%1").arg(m_port), text(SOAP_SERVICE)});
        QVERIFY(m_php.waitForStarted());
        const auto answers = [this] {
            QTcpSocket socket;
            socket.connectToHost(QHostAddress::LocalHost, m_port);
            return socket.waitForConnected(200);
        };
        QVERIFY2(QTest::qWaitFor(answers, 20000), m_php.readAll().constData());
    }

    void cleanupTestCase()
    {
        m_php.kill();
        m_php.waitForFinished();
    }

    void understandsArguments()
    {
        const QtSoapMessage answer =
            ask(request("p:describe", {value("a", -2147483647 - 1), value("b", true, 0), value("c", false, 0),
                                       value("d", "12"), value("e"), value("f", 30.48, QtSoapType::Double),
                                       value("g", std::numeric_limits<qlonglong>::min(), QtSoapType::Long),
                                       value("h", text("Größe").toUtf8(), QtSoapType::Base64Binary),
                                       structure("p", {value("first-born.2", "Ada"), value("level", 3)}),
                                       list("l", {value("", 7), value("", 8)})}));
        QCOMPARE(answer.returnValue().toString().split(QLatin1Char('|')),
                 QStringList({text("integer -2147483648"), text("boolean true"), text("boolean false"),
                              text("string \"12\""), text("NULL null"), text("double 30.48"),
                              text("integer -9223372036854775808"), text("string \"Größe\""),
                              text("object {\"first-born.2\":\"Ada\",\"level\":3}"), text("array [7,8]")}));
    }

    void structsAndArrays()
    {
        const QtSoapMessage answer = ask(request(
            "echo",
            {structure(
                "value",
                {structure("inner", {value("deep", "  a<b>&amp;\"'\n\tä日\U0001F5BC "), value("nil")}),
                 value("yes", true, 0), value("far", qInf(), QtSoapType::Double),
                 list("list", {structure("item", {value("k", 0)}), structure("item", {value("k", 1)})})})}));
        QCOMPARE(described(answer.returnValue()),
                 text("return{inner{deep:string=  a<b>&amp;\"'\n\tä日\U0001F5BC  nil:string nil} "
                      "yes:boolean=true far:float=INF list[0:item{k:int=0} 1:item{k:int=1}]}"));
    }

    void arraysOfRanks()
    {
        QtSoapArray full(named("a"), QtSoapType::Int, 2, 2), sparse(named("b"), QtSoapType::Int, 2, 2, 2);
        for (int k = 0; k < 4; ++k) {
            full.insert(k, value("", k));
        }
        sparse.insert(7, value("", 7));
        const QtSoapMessage answer =
            ask(request("describe", {new QtSoapArray(full), new QtSoapArray(sparse)}));
        QVERIFY2(!answer.isFault(), qPrintable(answer.faultString().toString()));
        QCOMPARE(answer.returnValue().toString(), text(R"(array [[0,1],[2,3]]|array {"1":{"1":{"1":7}}})"));
        const QtSoapMessage echoed = ask(request("echo", {new QtSoapArray(full)})); // as arrays of arrays
        QCOMPARE(echoed.returnValue()[1][1].value(), QVariant(3));
    }

    void sharedValues()
    {
        const QtSoapMessage answer = ask(request("shared", {}));
        QCOMPARE(answer.returnValue().count(), 2);
        QCOMPARE(answer.returnValue()[0][text("name")].toString(), text("once"));
        QCOMPARE(answer.returnValue()[1][text("name")].toString(), text("once"));
        QVERIFY(!answer.returnValue()[0].id().isEmpty());
        QCOMPARE(answer.returnValue()[1].href(), QLatin1Char('#') + answer.returnValue()[0].id());
    }

    void faults()
    {
        const QtSoapMessage answer = ask(request("fail", {value("text", "no <way> & \"no\" ö")}));
        QVERIFY(answer.isFault());
        QCOMPARE(answer.faultCode(), QtSoapMessage::Server);
        QCOMPARE(answer.faultString().toString(), text("no <way> & \"no\" ö"));
        QCOMPARE(described(answer.faultDetail()), text("detail{code:string=7 where{line:string=a & b}}"));
        const QtSoapMessage refused = ask(request("noSuchMethod", {}));
        QVERIFY(refused.isFault() && refused.faultString().toString().contains(text("noSuchMethod")));
    }

private:
    QtSoapMessage ask(QtSoapMessage message)
    {
        QtSoapHttpTransport transport;
        transport.setHost(text("127.0.0.1"), m_port);
        QSignalSpy answered(&transport, SIGNAL(responseReady()));
        transport.submitRequest(message, text("/"));
        answered.wait(30000);
        return transport.getResponse();
    }

    QProcess m_php;
    quint16 m_port = 0;
};

TOLVAN_CORE_TEST_MAIN(SoapPhpTest)
#include "tst_soap_php.moc"
