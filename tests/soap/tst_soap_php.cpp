#include "SoapCall.h"
#include "TestMain.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>

using namespace SoapCall;

namespace
{

/// The raw form in which the service is to write its result.
QString resultAs(const char* type, const char* text)
{
    return QStringLiteral("<return xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                          "xmlns:xsd='http://www.w3.org/2001/XMLSchema' xsi:type='xsd:%1'>%2</return>")
        .arg(QLatin1String(type), QString::fromUtf8(text));
}

constexpr int anyXml = 147; // XSD_ANYXML of PHP: the text is written as it is

} // namespace

/// Another make of SOAP: the server classes of PHP, in a process of their own.
class SoapPhpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void understandsArguments();
    void typesOfTheService_data();
    void typesOfTheService();
    void structsAndArrays();
    void arraysOfRanks();
    void sharedValues();
    void faults();

private:
    QtSoapMessage ask(const QtSoapMessage& message)
    {
        return SoapCall::ask(m_port, QStringLiteral("/"), message);
    }

    QProcess m_php;
    quint16 m_port = 0;
};

void SoapPhpTest::initTestCase()
{
    const QString php = QStandardPaths::findExecutable(QStringLiteral("php"));
    if (php.isEmpty()) {
        QSKIP("PHP (php-cli) is not installed");
    }
    QProcess modules;
    modules.start(php, {QStringLiteral("-m")});
    QVERIFY(modules.waitForFinished());
    if (!modules.readAllStandardOutput().contains("soap")) {
        QSKIP("the SOAP classes of PHP (php-soap) are not installed");
    }
    {
        QTcpServer probe;
        QVERIFY(probe.listen(QHostAddress::LocalHost));
        m_port = probe.serverPort();
    }
    m_php.setProcessChannelMode(QProcess::MergedChannels);
    m_php.start(php, {QStringLiteral("-S"), QStringLiteral("127.0.0.1:%1").arg(m_port),
                      QFINDTESTDATA("../peers/soap_service.php")});
    QVERIFY(m_php.waitForStarted());
    const auto answers = [this] {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, m_port);
        return socket.waitForConnected(200);
    };
    QVERIFY2(QTest::qWaitFor(answers, 20000), m_php.readAll().constData());
}

void SoapPhpTest::cleanupTestCase()
{
    m_php.kill();
    m_php.waitForFinished();
}

void SoapPhpTest::understandsArguments()
{
    const QtSoapMessage answer = ask(request(
        "describe", {value("a", -2147483647 - 1), value("b", true), value("c", false), value("d", "12"),
                     value("e"), typed("f", "double", "30.48"), typed("g", "long", "-9223372036854775808"),
                     typed("h", "base64Binary", "R3LDtsOfZQ=="),
                     structure("p", {value("name", "Ada"), value("level", 3)}),
                     list("l", {value("", 7), value("", 8)})}));
    QCOMPARE(
        answer.returnValue().toString().split(QLatin1Char('|')),
        QStringLiteral(
            "integer -2147483648|boolean true|boolean false|string \"12\"|NULL null|double 30.48|"
            "integer -9223372036854775808|string \"Größe\"|object {\"name\":\"Ada\",\"level\":3}|array [7,8]")
            .split(QLatin1Char('|')));
}

void SoapPhpTest::typesOfTheService_data()
{
    QTest::addColumn<QString>("raw");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char* type, const char* text, const QVariant& value) {
        QTest::addRow("%s %s", type, text) << resultAs(type, text) << value;
    };
    row("boolean", "1", true);
    row("float", "INF", std::numeric_limits<double>::infinity());
    row("dateTime", "2021-03-04T05:06:07.5+02:00", QStringLiteral("2021-03-04T05:06:07.5+02:00"));
    row("string", "   ", QStringLiteral("   "));
    row("string", "<![CDATA[<&>]]>&#228;", QStringLiteral("<&>ä"));
}

void SoapPhpTest::typesOfTheService()
{
    QFETCH(QString, raw);
    QFETCH(QVariant, value);
    const QtSoapMessage answer =
        ask(request("typed", {SoapCall::value("text", raw), SoapCall::value("type", anyXml)}));
    QVERIFY2(!answer.isFault(), qPrintable(answer.faultString().toString()));
    QCOMPARE(answer.returnValue().value(), value);
    QCOMPARE(int(answer.returnValue().value().type()), int(value.type()));
}

void SoapPhpTest::structsAndArrays()
{
    const QtSoapMessage answer = ask(request(
        "echo",
        {structure(
            "value",
            {structure("inner", {value("deep", "  a<b>&amp;\"'\n\tä日\U0001F5BC "), value("nothing")}),
             list("list", {structure("item", {value("k", 0)}), structure("item", {value("k", 1)})})})}));
    QCOMPARE(described(answer.returnValue()),
             QStringLiteral("return{inner{deep:string=  a<b>&amp;\"'\n\tä日\U0001F5BC  nothing:string nil} "
                            "list[0:item{k:int=0} 1:item{k:int=1}]}"));
}

void SoapPhpTest::arraysOfRanks()
{
    QtSoapArray full(named("a"), QtSoapType::Int, 2, 2), sparse(named("b"), QtSoapType::Int, 2, 2, 2);
    for (int k = 0; k < 4; ++k) {
        full.insert(k, SoapCall::value("", k));
    }
    sparse.insert(7, SoapCall::value("", 7));
    const QtSoapMessage answer = ask(request("describe", {new QtSoapArray(full), new QtSoapArray(sparse)}));
    QVERIFY2(!answer.isFault(), qPrintable(answer.faultString().toString()));
    QCOMPARE(answer.returnValue().toString(),
             QStringLiteral(R"(array [[0,1],[2,3]]|array {"1":{"1":{"1":7}}})"));
    const QtSoapMessage echoed = ask(request("echo", {new QtSoapArray(full)})); // as arrays of arrays
    QCOMPARE(echoed.returnValue()[1][1].value(), QVariant(3));
}

void SoapPhpTest::sharedValues()
{
    const QtSoapMessage answer = ask(request("shared", {}));
    QCOMPARE(answer.returnValue().count(), 2);
    QCOMPARE(answer.returnValue()[0][QStringLiteral("name")].toString(), QStringLiteral("once"));
    QCOMPARE(answer.returnValue()[1][QStringLiteral("name")].toString(), QStringLiteral("once"));
    QVERIFY(!answer.returnValue()[0].id().isEmpty());
    QCOMPARE(answer.returnValue()[1].href(), QLatin1Char('#') + answer.returnValue()[0].id());
}

void SoapPhpTest::faults()
{
    const QtSoapMessage answer = ask(request("fail", {value("text", "no <way> & \"no\" ö")}));
    QVERIFY(answer.isFault());
    QCOMPARE(answer.faultCode(), QtSoapMessage::Server);
    QCOMPARE(answer.faultString().toString(), QStringLiteral("no <way> & \"no\" ö"));
    QCOMPARE(described(answer.faultDetail()),
             QStringLiteral("detail{code:string=7 where{line:string=a & b}}"));
    const QtSoapMessage refused = ask(request("noSuchMethod", {}));
    QVERIFY(refused.isFault() && refused.faultString().toString().contains(QStringLiteral("noSuchMethod")));
}

TOLVAN_CORE_TEST_MAIN(SoapPhpTest)
#include "tst_soap_php.moc"
