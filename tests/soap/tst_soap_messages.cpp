#include "SoapCall.h"

#include <QTextCodec>

using namespace SoapCall;

namespace
{

/// A message as the library writes it, with these contents.
QString written(const char* contents)
{
    return text("<SOAP-ENV:Envelope xmlns:SOAP-ENV=\"http://schemas.xmlsoap.org/soap/envelope/\" "
                "xmlns:SOAP-ENC=\"http://schemas.xmlsoap.org/soap/encoding/\" "
                "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                "xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\" "
                "SOAP-ENV:encodingStyle=\"http://schemas.xmlsoap.org/soap/encoding/\">") +
           QString::fromUtf8(contents) + text("</SOAP-ENV:Envelope>");
}

/// Gives access to what derived classes see.
class Message : public QtSoapMessage
{
public:
    using QtSoapMessage::body;
    using QtSoapMessage::header;
    using QtSoapMessage::isValidSoapMessage;
};

} // namespace

/// Messages: what is written, letter for letter, what is read, and that both agree.
class SoapMessagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void requestAsWritten()
    {
        QtSoapMessage message, read;
        message.setMethod(text("convertLength"), text("urn:example:units"));
        message.addMethodArgument(text("amount"), QString(), 12);
        message.addMethodArgument(text("unit"), QString(), text("inch"));
        message.addMethodArgument(text("round"), QString(), true, 0);
        message.addMethodArgument(value("nothing"));
        auto* const sparse = new QtSoapArray(named("cells"), QtSoapType::String, 2, 3);
        sparse->insert(0, 1, value("c", "B"));
        message.addMethodArgument(sparse);
        message.addMethodArgument(list("list", {structure("p", {value("name", "Ada")})}));
        QCOMPARE(message.toXmlString(),
                 written("<SOAP-ENV:Body><convertLength xmlns=\"urn:example:units\">"
                         "<amount xsi:type=\"xsd:int\">12</amount><unit xsi:type=\"xsd:string\">inch</unit>"
                         "<round xsi:type=\"xsd:boolean\">true</round><nothing xsi:nil=\"true\"/>"
                         "<cells xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"xsd:string[2,3]\">"
                         "<c SOAP-ENC:position=\"[0,1]\" xsi:type=\"xsd:string\">B</c></cells>"
                         "<list xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"xsd:anyType[1]\">"
                         "<p><name xsi:type=\"xsd:string\">Ada</name></p></list>"
                         "</convertLength></SOAP-ENV:Body>"));
        const QString indented = message.toXmlString(2);
        QVERIFY2(indented.contains(text(
                     ">\n  <SOAP-ENV:Body>\n    <convertLength xmlns=\"urn:example:units\">\n      <amount")),
                 qPrintable(indented));
        QVERIFY(read.setContent(indented.toUtf8()));
        QCOMPARE(read.toXmlString(), message.toXmlString());
    }

    void namespacesAsWritten()
    {
        const QString grid = text("urn:example:grid");
        QtSoapNamespaces::instance().registerNamespace(text("st"), grid);
        QtSoapMessage message;
        message.setMethod(QtSoapQName(text("store"), grid));
        message.addMethodArgument(text("own"), grid, 1);
        auto* const other = new QtSoapStruct(QtSoapQName(text("other"), text("urn:a&b")));
        other->insert(value("inherits", 3));
        message.addMethodArgument(other);
        message.addMethodArgument(text("outside"), QString(), 4);
        QCOMPARE(message.toXmlString(),
                 written("<SOAP-ENV:Body><st:store xmlns:st=\"urn:example:grid\">"
                         "<st:own xsi:type=\"xsd:int\">1</st:own>"
                         "<other xmlns=\"urn:a&amp;b\"><inherits xsi:type=\"xsd:int\">3</inherits></other>"
                         "<outside xsi:type=\"xsd:int\">4</outside></st:store></SOAP-ENV:Body>"));
    }

    void prefixesAndAttributes()
    {
        const QString uri = text("urn:dsl"), envelopeUri = text(SOAPv11_ENVELOPE);
        QtSoapMessage message;
        message.setMethod(text("u:GetInfo"), uri);
        message.addMethodArgument(text("u:own"), QString(), 2);  // the prefix is in force
        message.addMethodArgument(text("v:lost"), QString(), 3); // this one is not
        message.addMethodArgument(text("xsi:bad"), uri, 4);      // has a meaning of its own
        auto* const item = value("h", 5);
        item->setAttribute(QtSoapQName(text("mustUnderstand"), envelopeUri), text("0"));
        item->setAttribute(QtSoapQName(text("mustUnderstand"), envelopeUri), text("\"1\""));
        item->setAttribute(QtSoapQName(text("lang"), text(XML_NAMESPACE)), text("en"));
        item->setAttribute(QtSoapQName(text("a b"), uri), text("x"));
        item->setAttribute(named("id"), text("not this way"));
        item->setAttribute(named("gone"), text("x"));
        item->setAttribute(named("gone"), QString());
        message.addHeaderItem(new QtSoapSimpleType(*item));
        delete item; // the copy has attributes of its own
        QVERIFY(message.headerItem(0).attribute(named("gone")).isNull());
        QCOMPARE(message.toXmlString(),
                 written("<SOAP-ENV:Header><h SOAP-ENV:mustUnderstand=\"&quot;1&quot;\" xml:lang=\"en\" "
                         "xmlns:ns1=\"urn:dsl\" ns1:a_x0020_b=\"x\" xsi:type=\"xsd:int\">5</h>"
                         "</SOAP-ENV:Header><SOAP-ENV:Body><u:GetInfo xmlns:u=\"urn:dsl\">"
                         "<u:own xsi:type=\"xsd:int\">2</u:own>"
                         "<v_x003a_lost xsi:type=\"xsd:int\">3</v_x003a_lost>"
                         "<xsi_x003a_bad xmlns=\"urn:dsl\" xsi:type=\"xsd:int\">4</xsi_x003a_bad>"
                         "</u:GetInfo></SOAP-ENV:Body>"));
    }

    void namesThatXmlForbids()
    {
        QtSoapMessage message, read;
        message.setMethod(text("a b><x/>"), text("urn:\"x"));
        for (const char* name : {"", "1st", "a-b.9", "-a", "a:b", "z\u00B5", "_\u00C0"}) {
            message.addMethodArgument(QString::fromUtf8(name), QString(), 4);
        }
        auto* const item = value("i", 3);
        item->setId(text("\"<&"));
        message.addMethodArgument(item);
        QVERIFY2(read.setContent(message.toXmlString().toUtf8()), qPrintable(read.errorString()));
        QCOMPARE(described(read.method()),
                 text("a_x0020_b_x003e__x003c_x_x002f__x003e_{item:int=4 _x0031_st:int=4 a-b.9:int=4 "
                      "_x002d_a:int=4 a_x003a_b:int=4 z_x00b5_:int=4 _\u00C0:int=4 i:int=3}"));
        QCOMPARE(read.method().name().uri(), text("urn:\"x"));
        QCOMPARE(read.method()[7].id(), text("\"<&"));
    }

    void texts()
    {
        const QString same[] = {text("a<b>&amp;\"c\"'d'<![CDATA[x]]> äöß 日本 \U0001F5BC"), text("   "),
                                text(""), text("a\r\nb\rc\n\td\n"), QString(300000, QLatin1Char('x'))};
        for (const QString& given : same) {
            arrives(given, given);
        }
        arrives(text("a\x01") + QChar(0xFFFE) + QChar(0xD800) + QLatin1Char('b') + QChar(0xDC00) +
                    QChar(0xD801), // half of a pair, at the end
                text("a\uFFFD\uFFFD\uFFFDb\uFFFD\uFFFD"));
    }

    void prefixes()
    {
        auto& namespaces = QtSoapNamespaces::instance();
        QCOMPARE(namespaces.prefixFor(text(SOAPv11_ENVELOPE)), text("SOAP-ENV"));
        namespaces.registerNamespace(text("p"), text("urn:a"));
        namespaces.registerNamespace(text("p"), text("urn:b"));
        QVERIFY(namespaces.prefixFor(text("urn:a")).isEmpty());
        QCOMPARE(namespaces.prefixFor(text("urn:b")), text("p"));
        for (const char* prefix : {"xsi", "a:b", "", "xmlfoo"}) {
            QTest::ignoreMessage(
                QtWarningMsg,
                qPrintable(text("SOAP: The prefix \"%1\" cannot stand for \"urn:c\"").arg(text(prefix))));
            namespaces.registerNamespace(QLatin1String(prefix), text("urn:c"));
        }
        QVERIFY(namespaces.prefixFor(text("urn:c")).isEmpty());
    }

    void literalAnswer()
    {
        QtSoapMessage message;
        QVERIFY(message.setContent(envelope(
            "<!-- c --><convertLengthResponse xmlns='urn:u'><?pi x?><convertLengthResult><cm>30.48</cm>"
            "<raw><![CDATA[<&>]]> tail</raw><row>1</row><row>2</row></convertLengthResult>"
            "</convertLengthResponse>")));
        QCOMPARE(described(message.method()),
                 text("convertLengthResponse{convertLengthResult{cm:string=30.48 raw:string=<&> tail "
                      "row:string=1 row:string=2}}"));
        const QtSoapType& value = message.returnValue();
        QCOMPARE(value[text("cm")].value().toDouble(), 30.48);
        QVERIFY2(value[text("cm")].toString().capacity() < 32, "a value keeps its reader's buffer");
        QVERIFY(!value[text("x")].isValid() && !message.isFault());
        QCOMPARE(message.faultCode(), QtSoapMessage::Other);
        QVERIFY(!message.faultString().isValid());
        QVERIFY(message.setContent(envelope("<pingResponse xmlns='urn:u'/>")));
        QVERIFY(!message.returnValue().isValid());
        QVERIFY(dynamic_cast<const QtSoapStruct*>(&message.method())); // clients look into it
        QVERIFY(message.setContent(envelope("")) && !message.method().isValid());
        QVERIFY(message.setContent(QtSoapMessage().toXmlString().toUtf8()) && message.bodyItemCount() == 0);
    }

    void encodedAnswer()
    {
        for (const char* year : {"2001", "1999", "2000/10"}) {
            QtSoapMessage message;
            QVERIFY(message.setContent(
                envelope(QByteArray("<g:r xmlns:g='urn:g' xmlns:o='http://www.w3.org/") + year +
                         "/XMLSchema-instance'><v><ids o:type='c:Array' "
                         "c:arrayType='d:int[2]'><item>7</item><item>8</item></ids>"
                         "<note o:nil='true'/><c:long>5</c:long><odd o:type='d:int'><a/></odd>"
                         "<empty o:type='c:Struct'/></v></g:r>")));
            // nothing is lost of a value that contradicts its type
            QCOMPARE(described(message.returnValue()),
                     text("v{ids[0:item:int=7 1:item:int=8] note:string nil long:long=5 "
                          "odd{a:string=} empty{}}"));
        }
    }

    void faults()
    {
        QtSoapMessage message, read;
        message.setMethod(text("m"));
        message.setFaultString(text("Door 4 is <locked>"));
        QVERIFY(message.isFault() && !message.method().isValid() && !message.faultDetail().isValid());
        QCOMPARE(message.faultCode(), QtSoapMessage::Other);
        message.addFaultDetail(value("a", 1));
        message.addFaultDetail(value("b", 2)); // appended, not replaced
        const char* const codes[] = {"SOAP-ENV:VersionMismatch", "SOAP-ENV:MustUnderstand", "SOAP-ENV:Client",
                                     "SOAP-ENV:Server", "Other"};
        for (int code = QtSoapMessage::VersionMismatch; code <= QtSoapMessage::Other; ++code) {
            message.setFaultCode(static_cast<QtSoapMessage::FaultCode>(code));
            QCOMPARE(
                message.toXmlString(),
                written(QByteArray("<SOAP-ENV:Body><SOAP-ENV:Fault><faultcode>") + codes[code] +
                        "</faultcode><faultstring xsi:type=\"xsd:string\">Door 4 is &lt;locked&gt;"
                        "</faultstring><detail><a xsi:type=\"xsd:int\">1</a><b xsi:type=\"xsd:int\">2</b>"
                        "</detail></SOAP-ENV:Fault></SOAP-ENV:Body>"));
            QVERIFY(read.setContent(message.toXmlString().toUtf8()) && read.isFault());
            QCOMPARE(int(read.faultCode()), code);
        }
        message.setMethod(text("m"));
        QVERIFY(!message.isFault() && message.method().isValid());
    }

    void faultsOfOthers()
    {
        const QPair<const char*, QtSoapMessage::FaultCode> codes[] = {
            {"e:Server", QtSoapMessage::Server},
            {"e:Client.Locked", QtSoapMessage::Client},
            {" MustUnderstand ", QtSoapMessage::MustUnderstand},
            {"d:ServerBusy", QtSoapMessage::Other}};
        for (const auto& [code, expected] : codes) {
            QtSoapMessage message;
            QVERIFY(message.setContent(envelope(
                QByteArray("<e:Fault><faultcode>") + code +
                "</faultcode><faultstring xml:lang='en'>Door 4 is locked</faultstring><detail>"
                "<l:lockInfo xmlns:l='urn:l'>by <l:holder>desk</l:holder></l:lockInfo></detail></e:Fault>")));
            QVERIFY(message.isFault());
            QCOMPARE(message.faultCode(), expected);
            QCOMPARE(described(message.faultString()), text("faultstring:string=Door 4 is locked"));
            QCOMPARE(described(message.faultDetail()), text("detail{lockInfo{holder:string=desk}}"));
        }
        QtSoapMessage message;
        QVERIFY(message.setContent(envelope("<Fault xmlns='urn:own'/>")) && !message.isFault());
    }

    void headerAndBody()
    {
        Message message;
        message.addHeaderItem(value("h", 1));
        message.addHeaderItem(value("h", 2));
        QTest::ignoreMessage(QtWarningMsg, "SOAP: An argument was added before a method was set");
        message.addMethodArgument(text("a"), QString(), 3);
        message.addBodyItem(value("b", 4));
        Message read;
        QVERIFY(read.setContent(message.toXmlString().toUtf8()));
        QCOMPARE(read.headerItemCount(), 2);
        QCOMPARE(read.headerItem(1).toInt(), 2);
        QCOMPARE(read.bodyItem(1).toInt(), 4);
        QtSoapStruct& body = read.body();
        const Message shared(read);
        body.insert(value("c", 5)); // through the reference from before the copy was made
        QCOMPARE(shared.bodyItemCount(), 2);
        QDomDocument good, bad;
        QVERIFY(good.setContent(envelope(""), true) && bad.setContent(QByteArrayLiteral("<a/>"), true));
        QVERIFY(read.isValidSoapMessage(good) && !read.isValidSoapMessage(bad));
        QVERIFY(!read.errorString().isEmpty() && read.body().count() == 3);
        read.clear();
        QCOMPARE(read.toXmlString(), QtSoapMessage().toXmlString());
    }

    void encodings()
    {
        const QPair<const char*, QString> rows[] = {{"UTF-8", QString()},
                                                    {"ISO-8859-1", text("iso-8859-1")},
                                                    {"windows-1252", text("windows-1252")},
                                                    {"UTF-16", text("utf-16")},
                                                    {"UTF-16BE", text("UTF-16")}}; // without a mark
        for (const auto& [codec, declared] : rows) {
            QString document = QString::fromUtf8(envelope("<r><a>Größe</a></r>"));
            if (!declared.isEmpty()) {
                document.prepend(text("<?xml version='1.0' encoding='%1'?>").arg(declared));
            }
            QtSoapMessage message;
            QVERIFY2(message.setContent(QTextCodec::codecForName(codec)->fromUnicode(document)), codec);
            QCOMPARE(message.returnValue().toString(), text("Größe"));
        }
    }

    void treeOfTheCaller()
    {
        QDomDocument document;
        const QByteArray source =
            envelope("<r><a c:arrayType='d:int[2]'><i>1</i><i>2</i></a><b><c>x</c>y</b></r>");
        QVERIFY(document.setContent(source, true));
        QtSoapMessage fromTree, fromText;
        QVERIFY2(fromTree.setContent(document), qPrintable(fromTree.errorString()));
        QVERIFY(fromText.setContent(source));
        QCOMPARE(fromTree.toXmlString(), fromText.toXmlString());
        QVERIFY(document.setContent(QByteArrayLiteral("<!DOCTYPE a><a/>"), true));
        QVERIFY(!fromTree.setContent(document) && fromTree.isFault());
        QVERIFY(fromTree.errorString().contains(text("document type")));
        document = QDomDocument();
        document.createElement(text("first")); // a document is null before that
        QDomNode node = document;
        for (int k = 0; k < 2000; ++k) {
            node = node.appendChild(
                document.createElementNS(text(SOAPv11_ENVELOPE), text(k == 0 ? "Envelope" : "Body")));
        }
        QVERIFY(!fromTree.setContent(document));
        QVERIFY(fromTree.errorString().contains(text("levels")));
    }

    void copiesAndReuse()
    {
        QtSoapMessage message;
        message.setMethod(text("m"));
        message.addMethodArgument(text("a"), QString(), 1);
        QtSoapMessage copy(message);
        message.addMethodArgument(text("b"), QString(), 2);
        QCOMPARE(copy.method().count(), 1);
        copy = message;
        QVERIFY(!message.setContent(QByteArray()));
        QVERIFY(message.isFault() && copy.method().count() == 2 && !message.errorString().isEmpty());
        QCOMPARE(message.faultString().toString(), message.errorString());
        QVERIFY(message.setContent(copy.toXmlString().toUtf8()) && message.errorString().isEmpty());
    }

private:
    static void arrives(const QString& given, const QString& expected)
    {
        QtSoapMessage message = request("m", {value("t", given), value("nil")}), read;
        for (const int indent : {0, 4}) {
            QVERIFY2(read.setContent(message.toXmlString(indent).toUtf8()), qPrintable(read.errorString()));
            QCOMPARE(read.returnValue().toString(), expected);
            QVERIFY(read.returnValue().value().isValid() && !read.method()[1].value().isValid());
        }
    }
};

TOLVAN_CORE_TEST_MAIN(SoapMessagesTest)
#include "tst_soap_messages.moc"
