#include "HttpLoopback.h"
#include "SoapCall.h"

#include <QProcess>

using namespace SoapCall;

/// The client of the README does what is said there.
class SoapExampleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runs()
    {
        const struct {
            const char* body;
            int exitCode;
            const char* output;
        } rows[] = {
            {"<r xmlns='urn:example:units'><r><cm>30.48</cm></r></r>", 0, "30.48 cm"},
            {"<e:Fault><faultcode>e:Client</faultcode><faultstring>what unit?</faultstring></e:Fault>", 1,
             "what unit?"}};
        for (const auto& row : rows) {
            HttpLoopback server;
            server.answer.body = envelope(row.body);
            QProcess client;
            client.setProcessChannelMode(QProcess::MergedChannels);
            client.start(QCoreApplication::applicationDirPath() + text("/soap_client"),
                         {text("127.0.0.1"), QString::number(server.serverPort())});
            QTRY_COMPARE_WITH_TIMEOUT(client.state(), QProcess::NotRunning, 30000);
            QCOMPARE(client.exitStatus(), QProcess::NormalExit);
            QCOMPARE(client.exitCode(), row.exitCode);
            if (QSysInfo::kernelType() != text("winnt")) { // there, output does not reach pipes reliably
                QVERIFY2(client.readAll().contains(row.output), "the example printed something else");
            }
            QCOMPARE(server.requests.size(), 1);
            QCOMPARE(server.requests.first().line, QByteArray("POST /units HTTP/1.1"));
            QtSoapMessage request;
            QVERIFY(request.setContent(server.requests.first().body));
            QCOMPARE(described(request.method()),
                     text("convertLength{amount:int=12 unit:string=inch round:boolean=true}"));
        }
    }
};

TOLVAN_CORE_TEST_MAIN(SoapExampleTest)
#include "tst_soap_example.moc"
