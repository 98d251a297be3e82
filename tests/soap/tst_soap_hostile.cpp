#include "SoapCall.h"

using namespace SoapCall;

namespace
{

QByteArray repeated(const char* unit, int times)
{
    return QByteArray(unit).repeated(times);
}

QByteArray array(const char* attributes, const char* items = "")
{
    return envelope(QByteArray("<r><a ") + attributes + ">" + items + "</a></r>");
}

QByteArray numbered(const QByteArray& before, const QByteArray& behind, int times)
{
    QByteArray all;
    for (int k = 0; k < times; ++k) {
        all += before + QByteArray::number(k) + behind;
    }
    return all;
}

QByteArray wide(const QByteArray& utf8)
{
    const QString all = QChar(QChar::ByteOrderMark) + QString::fromUtf8(utf8);
    return QByteArray(reinterpret_cast<const char*>(all.utf16()), all.size() * 2);
}

} // namespace

/// Documents from servers that are broken or mean harm: an error text each, soon, and a message that is a
/// fault.
class SoapHostileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isRefused_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QString>("error");
        const auto row = [](const char* name, const QByteArray& document, const char* error) {
            QTest::newRow(name) << document << text(error);
        };
        row("nothing", "", "Premature end");
        row("not XML", "Service unavailable", "Line 1");
        row("HTML", "<html><body><p>Not found</p></body></html>", "no SOAP message: its root is \"html\"");
        row("SOAP 1.2", "<Envelope xmlns='http://www.w3.org/2003/05/soap-envelope'><Body/></Envelope>",
            "another SOAP version: \"http://www.w3.org/2003/05/soap-envelope\"");
        row("no body", "<e:Envelope xmlns:e='" SOAPv11_ENVELOPE "'><e:Header/></e:Envelope>", "has no body");
        row("two bodies", envelope("</e:Body><e:Body>"), "two bodies");
        row("header behind the body", envelope("</e:Body><e:Header/><e:Body>"), "behind the body");
        row("something behind the envelope", envelope("") + "<a/>", "Line 1");
        row("mismatched tags", envelope("<a></b>"), "Line 1");
        row("undeclared entity", envelope("<a>&uml;</a>"), "Line 1");
        row("control character", envelope("<a>\x01</a>"), "Line 1");
        row("document type", "<!DOCTYPE e:Envelope>" + envelope(""), "document type");
        row("document type in UTF-16", wide("<!DOCTYPE a>" + envelope("")), "document type");
        row("an entity in it", "<!DOCTYPE l [<!ENTITY l 'lol'>]>" + envelope("<r>&l;</r>"), "document type");
        row("an encoding out of the list", "<?xml version='1.0' encoding='UTF-7'?>" + envelope(""), "UTF-7");
        row("UTF-16 declared, bytes not", "<?xml version='1.0' encoding='UTF-16'?>" + envelope(""),
            "not supported");
        row("a long encoding", "<?xml version='1.0' encoding='" + repeated("a", 9999) + "'?>" + envelope(""),
            "ncoding");
        row("257 levels", envelope(repeated("<a>", 255) + "x" + repeated("</a>", 255)),
            "more than 256 levels deep");
        row("100,000 levels, open", envelope(repeated("<a>", 100000)), "levels");
        row("10,000 envelopes", repeated("<e:Envelope xmlns:e='" SOAPv11_ENVELOPE "'>", 10000), "levels");
        row("65 MiB", envelope("<a>" + QByteArray(65 << 20, 'x') + "</a>"), "larger than 64 MiB");
        row("60 MiB of text", envelope("<a>" + QByteArray(60 << 20, 'x') + "</a>"), "of memory");
        row("a tag of 100,000 attributes", envelope("<a" + numbered(" a", "=''", 100000) + "/>"),
            "A tag is longer than 65536 bytes");
        row("the same in UTF-16", wide(envelope("<a" + numbered(" a", "=''", 100000) + "/>")),
            "A tag is longer");
        row("a tag without end", envelope("<a " + QByteArray(200000, ' ')), "A tag is longer");
        row("2,000 namespaces", envelope("<a" + numbered(" xmlns:n", "='u'", 2000) + "/>"),
            "More than 1024 namespaces");
        row("array of 2^31 items", array("c:arrayType='x:int[2147483648]'"), "not readable");
        row("array of 2^31-1 items", array("c:arrayType='x:int[2147483647]'"),
            "claims more than 16777216 items");
        row("array of 2^60 items", array("c:arrayType='x:int[1048576,1048576,1048576]'"), "claims more");
        row("array of six dimensions", array("c:arrayType='x:int[1,1,1,1,1,1]'"), "five dimensions");
        row("array of negative size", array("c:arrayType='x:int[-1]'"), "not readable");
        row("array with half a bracket", array("c:arrayType='x:int]'"), "not readable");
        row("array open inside", array("c:arrayType='x:int[2,]'", "<i/>"), "inner dimension");
        row("open array of empty rows", array("c:arrayType='x:int[,0]'", "<i/>"), "no place");
        row("more items than claimed", array("c:arrayType='x:int[1]'", "<i/><i/>"),
            "no place for an item more");
        row("position outside", array("c:arrayType='x:int[2]'", "<i c:position='[2]'/>"),
            "no place for an item at [2]");
        row("position of another rank", array("c:arrayType='x:int[2]'", "<i c:position='[0,0]'/>"),
            "no place");
        row("position given twice",
            array("c:arrayType='x:int[2]'", "<i c:position='[1]'/><i c:position='[1]'/>"), "no place");
        row("position of an open array", array("c:arrayType='x:int[]'", "<i c:position='[2147483646]'/>"),
            "no place");
        row("offset outside", array("c:arrayType='x:int[2]' c:offset='[2]'"), "offset");
        row("an item more, under a long name", // which is cut in the error
            envelope("<r><a" + repeated("a", 3000) + " c:arrayType='x:int[0]'><i/></a" + repeated("a", 3000) +
                     "></r>"),
            "no place");
        row("text in an array", array("c:arrayType='x:int[2]'", "<i/>text"), "a text beside its items");
        row("ids given twice",
            envelope("<r><a id='1'/><a id='1'/></r>", " e:encodingStyle='" SOAPv11_ENCODING "'"), "id \"1\"");
        row("ids given twice and used", envelope("<r><a id='1'/><a id='1'/><b href='#1'/></r>"), "id \"1\"");
    }

    void isRefused()
    {
        QFETCH(QByteArray, document);
        QFETCH(QString, error);
        QtSoapMessage message;
        message.setMethod(text("earlier"));
        QVERIFY(!message.setContent(document));
        QVERIFY2(message.errorString().contains(error), qPrintable(message.errorString()));
        QVERIFY(message.errorString().size() < 500);
        QVERIFY(message.isFault());
        QCOMPARE(message.faultString().toString(), message.errorString());
        QCOMPARE(message.faultCode() == QtSoapMessage::VersionMismatch,
                 error.startsWith(text("another SOAP version")));
        QVERIFY(QtSoapMessage().setContent(message.toXmlString().toUtf8()));
    }

    void isAccepted_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::newRow("256 levels") << envelope(repeated("<a>", 254) + "x" + repeated("</a>", 254));
        QTest::newRow("'>' and quotes in values") << envelope("<a b='>\"' c=\"'>\"/>");
        QTest::newRow("a comment with tags")
            << envelope("<!-- <a " + QByteArray(100000, ' ') + "<!DOCTYPE -->");
        QTest::newRow("CDATA with tags")
            << envelope("<a><![CDATA[<!DOCTYPE a><" + QByteArray(100000, 'x') + "]]></a>");
        QTest::newRow("ids of the service's own") << envelope("<r><a id='1'/><b id='1'/></r>");
        QTest::newRow("entries behind the body")
            << envelope("").replace("</e:Envelope>", "<x>y</x> </e:Envelope>\n<!-- -->");
        QTest::newRow("10,000 names and namespaces") << envelope(numbered("<a xmlns='u", "'/>", 10000));
        QTest::newRow("byte order mark") << "\xEF\xBB\xBF" + envelope("");
        QTest::newRow("blank lines before the declaration") << "\r\n \n<?xml version='1.0'?>" + envelope("");
    }

    void isAccepted()
    {
        QFETCH(QByteArray, document);
        QtSoapMessage message;
        QVERIFY2(message.setContent(document), qPrintable(message.errorString()));
        QVERIFY(!message.isFault() && message.errorString().isEmpty());
    }

    void truncatedAnywhere()
    {
        const QByteArray whole = envelope(
            "<r><a c:arrayType='x:int[2]'><i c:position='[1]'>5</i></a><b><![CDATA[x]]>&amp;</b></r>");
        QVERIFY(QtSoapMessage().setContent(whole));
        for (int length = 0; length < whole.size(); ++length) {
            QtSoapMessage message;
            QVERIFY2(!message.setContent(whole.left(length)), whole.left(length).constData());
            QVERIFY(message.isFault() && !message.errorString().isEmpty());
        }
    }

    void limitsOfTheClient()
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
        QVERIFY(error(limits).contains(text("more than 22 elements")));
        limits = QtSoapLimits();
        limits.documentBytes = document.size() - 1;
        QVERIFY(error(limits).contains(text("larger than")));
        limits = QtSoapLimits();
        limits.memoryBytes = 3000;
        QVERIFY(error(limits).contains(text("of memory")));
        QDomDocument tree;
        QVERIFY(tree.setContent(document, true) && !message.setContent(tree));
    }
};

TOLVAN_CORE_TEST_MAIN(SoapHostileTest)
#include "tst_soap_hostile.moc"
