#include "SoapCall.h"
#include "TestMain.h"

#include <KDSoapServer/KDSoapServer.h>
#include <KDSoapServer/KDSoapServerObjectInterface.h>

#include <QDateTime>

using namespace SoapCall;

namespace
{

const QString schema = QStringLiteral("http://www.w3.org/2001/XMLSchema");
const QString service = QStringLiteral("urn:example:peer");

/// What the peer understood of a value: name, type, text, children.
QString understood(const KDSoapValue& value)
{
    QStringList children;
    const KDSoapValueList& values = value.childValues();
    for (const KDSoapValue& child : values) {
        children += understood(child);
    }
    QString text =
        value.name() + QLatin1Char(':') + value.type() + QLatin1Char('=') + value.value().toString();
    if (value.isNil()) {
        text += QStringLiteral("nil");
    }
    return children.isEmpty() ? text
                              : text + QLatin1Char('{') + children.join(QLatin1Char(' ')) + QLatin1Char('}');
}

class Service : public QObject, public KDSoapServerObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(KDSoapServerObjectInterface)

public:
    void processRequest(const KDSoapMessage& request, KDSoapMessage& response,
                        const QByteArray& action) override
    {
        response.setUse(KDSoapMessage::EncodedUse);
        response.setNamespaceUri(service);
        if (request.name() == QStringLiteral("describe")) {
            const QString text = QString::fromUtf8(action) + QLatin1Char(' ') + request.namespaceUri() +
                                 QLatin1Char(' ') + understood(request);
            response = KDSoapValue(QStringLiteral("describeResponse"), QVariant());
            response.addArgument(QStringLiteral("return"), text, schema, QStringLiteral("string"));
        } else if (request.name() == QStringLiteral("echo")) {
            response = KDSoapValue(QStringLiteral("echoResponse"), request.childValues());
        } else if (request.name() == QStringLiteral("types")) {
            types(response);
        } else {
            response.setFault(true);
            response.addArgument(QStringLiteral("faultcode"), QStringLiteral("SOAP-ENV:Client.Unknown"));
            response.addArgument(QStringLiteral("faultstring"), QStringLiteral("no <such> method & more"));
            KDSoapValueList detail;
            detail.addArgument(QStringLiteral("name"), request.name(), schema, QStringLiteral("string"));
            response.addArgument(QStringLiteral("detail"), detail);
        }
    }

private:
    static void types(KDSoapMessage& response)
    {
        response = KDSoapValue(QStringLiteral("typesResponse"), QVariant());
        KDSoapValueList values;
        const auto add = [&values](const char* type, const QVariant& value) {
            values.addArgument(QLatin1String(type), value, schema, QLatin1String(type));
        };
        add("boolean", true);
        add("int", std::numeric_limits<int>::min());
        add("long", std::numeric_limits<qlonglong>::min());
        add("unsignedLong", std::numeric_limits<qulonglong>::max());
        add("double", 0.1);
        add("string", QStringLiteral(" a&<>\"'\nü\U0001F5BC "));
        add("dateTime", QDateTime(QDate(2021, 3, 4), QTime(5, 6, 7), Qt::UTC));
        add("base64Binary", QByteArray("\x00\x01\xFF", 3));
        KDSoapValue nil(QStringLiteral("nil"), QVariant());
        nil.setNillable(true);
        values.append(nil);
        KDSoapValueList people;
        for (int k = 0; k < 2; ++k) {
            KDSoapValueList person;
            person.addArgument(QStringLiteral("name"), QStringLiteral("Person %1").arg(k), schema,
                               QStringLiteral("string"));
            people.append(KDSoapValue(QStringLiteral("item"), person, service, QStringLiteral("Person")));
        }
        people.setArrayType(service, QStringLiteral("Person"));
        values.append(KDSoapValue(QStringLiteral("people"), people));
        response.addArgument(QStringLiteral("return"), values);
    }
};

class Server : public KDSoapServer
{
    Q_OBJECT

public:
    Server()
    {
        setUse(KDSoapMessage::EncodedUse);
        setPath(QStringLiteral("/peer"));
    }
    QObject* createServerObject() override { return new Service; }
};

} // namespace

/// Another make of SOAP: a server of KD SOAP, in this process.
class SoapKdSoapTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void understandsRequests();
    void valuesComeBack();
    void typesOfTheService();
    void faults();
    void cleanupTestCase();

private:
    QtSoapMessage ask(const QtSoapMessage& message)
    {
        return SoapCall::ask(m_server.serverPort(), QStringLiteral("/peer"), message,
                             QStringLiteral("urn:act"));
    }

    Server m_server;
};

void SoapKdSoapTest::initTestCase()
{
    QVERIFY(m_server.listen(QHostAddress::LocalHost));
}

void SoapKdSoapTest::understandsRequests()
{
    const QtSoapMessage answer = ask(
        request("describe", {value("a", -7), value("b", true), value("c", "x & <y>"), value("d"),
                             typed("e", "double", "2.5"),
                             list("f", {structure("g", {value("h", 0)}), structure("g", {value("h", 1)})})}));
    QCOMPARE(
        answer.returnValue().toString(),
        QStringLiteral("urn:act urn:example:peer describe:={a:int=-7 b:boolean=true c:string=x & <y> d:=nil "
                       "e:double=2.5 f:Array={g:={h:int=0} g:={h:int=1}}}"));
}

void SoapKdSoapTest::valuesComeBack()
{
    const QString text = QStringLiteral(" a&<>\"'\t\nä日\U0001F5BC ");
    const QtSoapMessage answer =
        ask(request("echo", {value("t", text), value("n", 2147483647),
                             structure("outer", {structure("inner", {value("deep", false)})})}));
    QCOMPARE(described(answer.method()),
             QStringLiteral("echoResponse{t:string=%1 n:int=2147483647 outer{inner{deep:boolean=false}}}")
                 .arg(text));
}

void SoapKdSoapTest::typesOfTheService()
{
    const QtSoapMessage answer = ask(request("types", {}));
    QVERIFY2(!answer.isFault(), qPrintable(answer.faultString().toString()));
    const QtSoapType& value = answer.returnValue();
    const QVariantList expected{true,
                                std::numeric_limits<int>::min(),
                                std::numeric_limits<qlonglong>::min(),
                                std::numeric_limits<qulonglong>::max(),
                                0.1,
                                QStringLiteral(" a&<>\"'\nü\U0001F5BC "),
                                QStringLiteral("2021-03-04T05:06:07Z"),
                                QStringLiteral("AAH/"),
                                QVariant()};
    for (int k = 0; k < expected.size(); ++k) {
        QCOMPARE(value[k].value(), expected.at(k));
        QCOMPARE(int(value[k].value().type()), int(expected.at(k).type()));
    }
    QCOMPARE(described(value[QStringLiteral("people")]),
             QStringLiteral("people[0:item{name:string=Person 0} 1:item{name:string=Person 1}]"));
}

void SoapKdSoapTest::faults()
{
    const QtSoapMessage answer = ask(request("nothing", {}));
    QVERIFY(answer.isFault());
    QCOMPARE(answer.faultCode(), QtSoapMessage::Client);
    QCOMPARE(answer.faultString().toString(), QStringLiteral("no <such> method & more"));
    QCOMPARE(described(answer.faultDetail()), QStringLiteral("detail{name:string=nothing}"));
}

void SoapKdSoapTest::cleanupTestCase()
{
    QTRY_COMPARE(m_server.numConnectedSockets(), 0); // the server drops its sockets when the loop turns
    QTest::qWait(20);
}

TOLVAN_CORE_TEST_MAIN(SoapKdSoapTest)
#include "tst_soap_kdsoap.moc"
