#include "SoapCall.h"
#include "TestMain.h"

#include <QElapsedTimer>

#include <functional>

Q_DECLARE_METATYPE(std::function<QByteArray()>)

using namespace SoapCall;

namespace
{

QByteArray repeated(const char* text, int times)
{
    return QByteArray(text).repeated(times);
}

QByteArray array(const char* attributes, const char* items = "")
{
    return envelope(QByteArray("<r><a ") + attributes + ">" + items + "</a></r>");
}

QByteArray numbered(const QByteArray& before, const QByteArray& behind, int times)
{
    QByteArray text;
    for (int k = 0; k < times; ++k) {
        text += before + QByteArray::number(k) + behind;
    }
    return text;
}

QByteArray entityBomb()
{
    QByteArray text = "<!DOCTYPE l [<!ENTITY l0 'lol'>";
    for (int k = 1; k < 10; ++k) {
        text += "<!ENTITY l" + QByteArray::number(k) + " '" +
                repeated(("&l" + QByteArray::number(k - 1) + ";").constData(), 10) + "'>";
    }
    return text + "]>" + envelope("<r>&l9;</r>");
}

QByteArray wide(const QByteArray& utf8)
{
    const QString text = QChar(QChar::ByteOrderMark) + QString::fromUtf8(utf8);
    return QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
}

} // namespace

/// Documents from servers that are broken or mean harm: an error text each, soon, and a message that is a
/// fault.
class SoapHostileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isRefused_data();
    void isRefused();
    void isAccepted_data();
    void isAccepted();
    void truncatedAnywhere();
    void limitsOfTheClient();
};

void SoapHostileTest::isRefused_data()
{
    using Make = std::function<QByteArray()>; // made when its turn comes: some are large
    QTest::addColumn<Make>("make");
    QTest::addColumn<QString>("error");
    const auto row = [](const char* name, const char* error, const Make& make) {
        QTest::newRow(name) << make << QString::fromLatin1(error);
    };
    const auto text = [&row](const char* name, const QByteArray& document, const char* error) {
        row(name, error, [document] { return document; });
    };
    text("nothing", "", "Premature end");
    text("not XML", "Service unavailable", "Line 1");
    text("HTML", "<html><body><p>Not found</p></body></html>", "\"html\"");
    text("another root", "<a/>", "no SOAP message");
    text("SOAP 1.2", "<Envelope xmlns='http://www.w3.org/2003/05/soap-envelope'><Body/></Envelope>",
         "another SOAP version");
    text("no namespace", "<Envelope><Body/></Envelope>", "another SOAP version");
    text("no body", "<e:Envelope xmlns:e='" SOAPv11_ENVELOPE "'><e:Header/></e:Envelope>", "no body");
    text("two bodies", envelope("</e:Body><e:Body>"), "two bodies");
    text("header behind the body", envelope("</e:Body><e:Header/><e:Body>"), "behind the body");
    text("something behind the envelope", envelope("") + "<a/>", "Line 1");
    text("mismatched tags", envelope("<a></b>"), "Line 1");
    text("undeclared entity", envelope("<a>&uml;</a>"), "Line 1");
    text("control character", envelope("<a>\x01</a>"), "Line 1");
    text("document type", "<!DOCTYPE e:Envelope>" + envelope(""), "document type");
    text("document type in UTF-16", wide("<!DOCTYPE a>" + envelope("")), "document type");
    text("entity bomb", entityBomb(), "document type");
    text("an encoding out of the list", "<?xml version='1.0' encoding='UTF-7'?>" + envelope(""), "ncoding");
    text("UTF-16 declared, bytes not", "<?xml version='1.0' encoding='UTF-16'?>" + envelope(""),
         "not supported");
    row("100,000 levels", "levels",
        [] { return envelope(repeated("<a>", 100000) + repeated("</a>", 100000)); });
    row("100,000 levels, open", "levels", [] { return envelope(repeated("<a>", 100000)); });
    row("100 MB of text", "larger than 64 MiB",
        [] { return envelope("<a>" + QByteArray(100000000, 'x') + "</a>"); });
    row("3,000,000 elements", "of memory", [] { return envelope(repeated("<a/>", 3000000)); });
    row("60 MB of text", "of memory", [] { return envelope("<a>" + QByteArray(60000000, 'x') + "</a>"); });
    row("a tag of 100,000 attributes", "A tag is longer",
        [] { return envelope("<a" + numbered(" a", "=''", 100000) + "/>"); });
    row("the same in UTF-16", "A tag is longer",
        [] { return wide(envelope("<a" + numbered(" a", "=''", 100000) + "/>")); });
    row("a tag without end", "A tag is longer", [] { return envelope("<a " + QByteArray(200000, ' ')); });
    row("2,000 namespaces", "namespaces",
        [] { return envelope("<a" + numbered(" xmlns:n", "='u'", 2000) + "/>"); });
    text("array of 2^31 items", array("c:arrayType='x:int[2147483648]'"), "not readable");
    text("array of 2^31-1 items", array("c:arrayType='x:int[2147483647]'"), "claims more");
    text("array of 2^60 items", array("c:arrayType='x:int[1048576,1048576,1048576]'"), "claims more");
    text("array of six dimensions", array("c:arrayType='x:int[1,1,1,1,1,1]'"), "five dimensions");
    text("array of negative size", array("c:arrayType='x:int[-1]'"), "not readable");
    text("array with half a bracket", array("c:arrayType='x:int]'"), "not readable");
    text("array open inside", array("c:arrayType='x:int[2,]'", "<i/>"), "inner dimension");
    text("open array of empty rows", array("c:arrayType='x:int[,0]'", "<i/>"), "no place");
    text("more items than claimed", array("c:arrayType='x:int[1]'", "<i/><i/>"), "no place for an item more");
    text("position outside", array("c:arrayType='x:int[2]'", "<i c:position='[2]'/>"),
         "no place for an item at [2]");
    text("position of another rank", array("c:arrayType='x:int[2]'", "<i c:position='[0,0]'/>"), "no place");
    text("position given twice",
         array("c:arrayType='x:int[2]'", "<i c:position='[1]'/><i c:position='[1]'/>"), "no place");
    text("position of an open array", array("c:arrayType='x:int[]'", "<i c:position='[2147483646]'/>"),
         "no place");
    text("offset outside", array("c:arrayType='x:int[2]' c:offset='[2]'"), "offset");
    text("an item more, under a long name",
         envelope("<r><a" + repeated("a", 3000) + " c:arrayType='x:int[0]'><i/></a" + repeated("a", 3000) +
                  "></r>"),
         "no place");
    text("a long encoding", "<?xml version='1.0' encoding='" + repeated("a", 9999) + "'?>" + envelope(""),
         "ncoding");
    text("text in an array", array("c:arrayType='x:int[2]'", "<i/>text"), "beside its items");
    text("ids given twice",
         envelope("<r><a id='1'/><a id='1'/></r>", " e:encodingStyle='" SOAPv11_ENCODING "'"), "id \"1\"");
    text("ids given twice and used", envelope("<r><a id='1'/><a id='1'/><b href='#1'/></r>"), "id \"1\"");
    row("10,000 envelopes", "levels",
        [] { return repeated("<e:Envelope xmlns:e='" SOAPv11_ENVELOPE "'>", 10000); });
}

void SoapHostileTest::isRefused()
{
    QFETCH(std::function<QByteArray()>, make);
    QFETCH(QString, error);
    const QByteArray document = make();
    QElapsedTimer clock;
    clock.start();
    QtSoapMessage message;
    message.setMethod(QStringLiteral("earlier"));
    QVERIFY(!message.setContent(document));
    QVERIFY2(clock.elapsed() < 60000, qPrintable(QString::number(clock.elapsed())));
    QVERIFY2(message.errorString().contains(error), qPrintable(message.errorString()));
    QVERIFY(!message.errorString().isEmpty() && message.errorString().size() < 500);
    QVERIFY(message.isFault());
    QCOMPARE(message.faultString().toString(), message.errorString());
    QCOMPARE(message.faultCode() == QtSoapMessage::VersionMismatch,
             error == QStringLiteral("another SOAP version"));
    QVERIFY(QtSoapMessage().setContent(message.toXmlString().toUtf8()));
}

void SoapHostileTest::isAccepted_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("250 levels") << envelope(repeated("<a>", 250) + "x" + repeated("</a>", 250));
    QTest::newRow("'>' and quotes in values") << envelope("<a b='>\"' c=\"'>\"/>");
    QTest::newRow("a comment with tags") << envelope("<!-- <a " + QByteArray(100000, ' ') + "<!DOCTYPE -->");
    QTest::newRow("CDATA with tags") << envelope("<a><![CDATA[<!DOCTYPE a><" + QByteArray(100000, 'x') +
                                                 "]]></a>");
    QTest::newRow("1 MB of text") << envelope("<a>" + QByteArray(1000000, 'x') + "</a>");
    QTest::newRow("ids of the service's own") << envelope("<r><a id='1'/><b id='1'/></r>");
    QTest::newRow("entries behind the body")
        << envelope("").replace("</e:Envelope>", "<x>y</x> </e:Envelope>\n<!-- -->");
    QTest::newRow("10,000 names and namespaces") << envelope(numbered("<a xmlns='u", "'/>", 10000));
    QTest::newRow("byte order mark") << "\xEF\xBB\xBF" + envelope("");
    QTest::newRow("blank lines before the declaration") << "\r\n \n<?xml version='1.0'?>" + envelope("");
}

void SoapHostileTest::isAccepted()
{
    QFETCH(QByteArray, document);
    QtSoapMessage message;
    QVERIFY2(message.setContent(document), qPrintable(message.errorString()));
    QVERIFY(!message.isFault() && message.errorString().isEmpty());
}

void SoapHostileTest::truncatedAnywhere()
{
    const QByteArray whole =
        envelope("<r><a c:arrayType='x:int[2]'><i c:position='[1]'>5</i></a><b><![CDATA[x]]>&amp;</b></r>");
    QVERIFY(QtSoapMessage().setContent(whole));
    for (int length = 0; length < whole.size(); ++length) {
        QtSoapMessage message;
        QVERIFY2(!message.setContent(whole.left(length)), whole.left(length).constData());
        QVERIFY(message.isFault() && !message.errorString().isEmpty());
    }
}

void SoapHostileTest::limitsOfTheClient()
{
    const QByteArray document = envelope("<r>" + repeated("<a>x</a>", 20) + "</r>");
    QtSoapMessage message;
    QVERIFY(message.setContent(document));
    const auto error = [&](const QtSoapLimits& limits) {
        message.setLimits(limits);
        return message.setContent(document) ? QString() : message.errorString();
    };
    QtSoapLimits limits;
    limits.elements = 23; // envelope, body and entry
    QCOMPARE(error(limits), QString());
    limits.elements = 22;
    QVERIFY(error(limits).contains(QStringLiteral("more than 22 elements")));
    limits = QtSoapLimits();
    limits.documentBytes = document.size() - 1;
    QVERIFY(error(limits).contains(QStringLiteral("larger than")));
    limits = QtSoapLimits();
    limits.memoryBytes = 3000;
    QVERIFY(error(limits).contains(QStringLiteral("of memory")));
    QDomDocument tree;
    QVERIFY(tree.setContent(document, true) && !message.setContent(tree));
}

TOLVAN_CORE_TEST_MAIN(SoapHostileTest)
#include "tst_soap_hostile.moc"
