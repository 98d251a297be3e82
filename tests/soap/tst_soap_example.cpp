#include "HttpLoopback.h"
#include "SoapCall.h"
#include "TestMain.h"

#include <QFile>
#include <QProcess>

using namespace SoapCall;

/// The client of the README: the text there is the program's, and the program does what is said there.
class SoapExampleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readmeShowsTheProgram();
    void runs_data();
    void runs();
};

void SoapExampleTest::readmeShowsTheProgram()
{
    QFile readme(QStringLiteral(SOURCE_FOLDER "/README.md")),
        source(QStringLiteral(SOURCE_FOLDER "/examples/soap_client/main.cpp"));
    QVERIFY(readme.open(QIODevice::ReadOnly | QIODevice::Text) &&
            source.open(QIODevice::ReadOnly | QIODevice::Text));
    QVERIFY2(readme.readAll().contains("```cpp\n" + source.readAll() + "```\n"),
             "README.md does not show examples/soap_client/main.cpp as it is");
}

void SoapExampleTest::runs_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("output");
    QTest::newRow("answer") << QByteArray("<r xmlns='urn:example:units'><r><cm>30.48</cm></r></r>") << 0
                            << "30.48 cm";
    QTest::newRow("fault")
        << QByteArray(
               "<e:Fault><faultcode>e:Client</faultcode><faultstring>what unit?</faultstring></e:Fault>")
        << 1 << "what unit?";
}

void SoapExampleTest::runs()
{
    QFETCH(QByteArray, body);
    QFETCH(int, exitCode);
    QFETCH(QString, output);
    HttpLoopback server;
    server.answer.body = envelope(body);
    QProcess client;
    client.setProcessChannelMode(QProcess::MergedChannels);
    client.start(QCoreApplication::applicationDirPath() + QStringLiteral("/soap_client"),
                 {QStringLiteral("127.0.0.1"), QString::number(server.serverPort())});
    QTRY_COMPARE_WITH_TIMEOUT(client.state(), QProcess::NotRunning, 30000);
    QCOMPARE(client.exitStatus(), QProcess::NormalExit);
    QCOMPARE(client.exitCode(), exitCode);
    if (QSysInfo::kernelType() !=
        QStringLiteral("winnt")) { // there, the output of programs does not reach pipes reliably
        QVERIFY2(QString::fromUtf8(client.readAll()).contains(output), "the example printed something else");
    }
    QCOMPARE(server.requests.size(), 1);
    QCOMPARE(server.requests.first().line, QByteArray("POST /units HTTP/1.1"));
    QtSoapMessage request;
    QVERIFY(request.setContent(server.requests.first().body));
    QCOMPARE(described(request.method()),
             QStringLiteral("convertLength{amount:int=12 unit:string=inch round:boolean=true}"));
}

TOLVAN_CORE_TEST_MAIN(SoapExampleTest)
#include "tst_soap_example.moc"
