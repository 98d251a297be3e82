#include "SoapCall.h"
#include "TestMain.h"

#include <QProcess>

using namespace SoapCall;

/// Another make of SOAP: a server made with gSOAP, in a process of its own. It answers with references.
class SoapGSoapTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void understandsArguments();
    void sharedValuesAreResolved();
    void faults();
    void cleanupTestCase();

private:
    QtSoapMessage ask(const QtSoapMessage& message)
    {
        return SoapCall::ask(m_port, QStringLiteral("/"), message);
    }

    QProcess m_server;
    quint16 m_port = 0;
};

void SoapGSoapTest::initTestCase()
{
    m_server.start(QCoreApplication::applicationDirPath() + QStringLiteral("/gsoap_service"), QStringList());
    QTRY_VERIFY_WITH_TIMEOUT(m_server.canReadLine() || m_server.state() == QProcess::NotRunning, 20000);
    m_port = m_server.readLine().trimmed().toUShort();
    QVERIFY2(m_port != 0, qPrintable(m_server.errorString()));
}

void SoapGSoapTest::understandsArguments()
{
    const QtSoapQName number(QStringLiteral("number"));
    QtSoapMessage message =
        request("p:describe", {value("text", " a&<>\"' ä日\U0001F5BC "), value("truth", true),
                               new QtSoapSimpleType(number, 0.25, QtSoapType::Double),
                               structure("person", {value("name", "Ada"), value("first-born.2", 1815)}),
                               list("numbers", {value("n", 7), value("n", -8)})});
    const QtSoapMessage answer = ask(message);
    QVERIFY2(!answer.isFault(), qPrintable(answer.faultString().toString()));
    QCOMPARE(answer.returnValue().toString(),
             QStringLiteral(" a&<>\"' ä日\U0001F5BC |true|0.250000|Ada 1815|7|-8"));
}

void SoapGSoapTest::sharedValuesAreResolved()
{
    const QtSoapMessage answer =
        ask(request("twice", {structure("person", {value("name", "Ada"), value("first-born.2", 1815)})}));
    const QString person = QStringLiteral("{name:string=Ada first-born.2:string=1815}");
    QCOMPARE(described(answer.returnValue()), QStringLiteral("pair{a%1 b%1}").arg(person));
    const QtSoapType& second = answer.returnValue()[QStringLiteral("b")];
    QCOMPARE(second.href(), QLatin1Char('#') + answer.returnValue()[0].id()); // it did come as a reference
}

void SoapGSoapTest::faults()
{
    const QtSoapMessage answer = ask(request("fail", {value("text", "no <such> method & more")}));
    QVERIFY(answer.isFault());
    QCOMPARE(answer.faultCode(), QtSoapMessage::Server);
    QCOMPARE(answer.faultString().toString(), QStringLiteral("no <such> method & more"));
    QCOMPARE(described(answer.faultDetail()), QStringLiteral("detail{code:string=7}"));
}

void SoapGSoapTest::cleanupTestCase()
{
    m_server.closeWriteChannel(); // ends the server
    QVERIFY(m_server.waitForFinished());
}

TOLVAN_CORE_TEST_MAIN(SoapGSoapTest)
#include "tst_soap_gsoap.moc"
