#include "SoapCall.h"
#include "TestMain.h"

#include <QTextCodec>

using namespace SoapCall;

namespace
{

const QString xsi = QStringLiteral("http://www.w3.org/2001/XMLSchema-instance");

QDomElement written(const QtSoapMessage& message)
{
    QDomDocument document;
    QString error;
    if (!document.setContent(message.toXmlString(), true, &error)) {
        qWarning("%s", qPrintable(error));
    }
    return document.documentElement();
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

/// Messages: what is written, what is read, and that both agree.
class SoapMessagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void requestAsWritten();
    void namespacesAsWritten();
    void texts_data();
    void texts();
    void namesThatXmlForbids();
    void prefixesAndAttributes();
    void prefixes();
    void literalAnswer();
    void encodedAnswer();
    void faults();
    void faultsOfOthers_data();
    void faultsOfOthers();
    void headerAndBody();
    void encodings_data();
    void encodings();
    void treeOfTheCaller();
    void copiesAndReuse();
};

void SoapMessagesTest::requestAsWritten()
{
    QtSoapMessage message;
    QVERIFY(!written(message).hasChildNodes());
    message.setMethod(QStringLiteral("convertLength"), QStringLiteral("urn:example:units"));
    message.addMethodArgument(QStringLiteral("amount"), QString(), 12);
    message.addMethodArgument(QStringLiteral("unit"), QString(), QStringLiteral("inch"));
    message.addMethodArgument(QStringLiteral("round"), QString(), true, 0);
    message.addMethodArgument(value("nothing"));
    const QDomElement root = written(message);
    QCOMPARE(root.namespaceURI() + root.localName(), QStringLiteral(SOAPv11_ENVELOPE "Envelope"));
    QCOMPARE(root.attributeNS(QStringLiteral(SOAPv11_ENVELOPE), QStringLiteral("encodingStyle")),
             QStringLiteral(SOAPv11_ENCODING));
    QCOMPARE(root.childNodes().size(), 1); // no empty header
    const QDomElement method = root.firstChildElement().firstChildElement();
    QCOMPARE(method.namespaceURI() + method.localName(), QStringLiteral("urn:example:unitsconvertLength"));
    const QStringList expected{QStringLiteral("amount xsd:int 12"), QStringLiteral("unit xsd:string inch"),
                               QStringLiteral("round xsd:boolean true"), QStringLiteral("nothing  nil")};
    QStringList arguments;
    for (QDomElement e = method.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        QCOMPARE(e.namespaceURI(), QStringLiteral("urn:example:units")); // inherited
        const bool nil = e.attributeNS(xsi, QStringLiteral("nil")) == QStringLiteral("true");
        arguments += e.localName() + QLatin1Char(' ') + e.attributeNS(xsi, QStringLiteral("type")) +
                     QLatin1Char(' ') + (nil ? QStringLiteral("nil") : e.text());
    }
    QCOMPARE(arguments, expected);
    QCOMPARE(message.toXmlString().count(QLatin1Char('\n')), 0);
    QVERIFY(
        message.toXmlString(2).contains(QStringLiteral("\n  <SOAP-ENV:Body>\n    <convertLength xmlns=")));
    QVERIFY(message.setContent(message.toXmlString(3).toUtf8()));
    QCOMPARE(message.method().count(), 4);
}

void SoapMessagesTest::namespacesAsWritten()
{
    QtSoapNamespaces::instance().registerNamespace(QStringLiteral("st"), QStringLiteral("urn:example:grid"));
    QtSoapMessage message;
    message.setMethod(QtSoapQName(QStringLiteral("store"), QStringLiteral("urn:example:grid")));
    message.addMethodArgument(QStringLiteral("own"), QStringLiteral("urn:example:grid"), 1);
    message.addMethodArgument(QStringLiteral("none"), QString(), 2);
    auto* const other = new QtSoapStruct(QtSoapQName(QStringLiteral("other"), QStringLiteral("urn:a&b")));
    other->insert(value("inherits", 3));
    message.addMethodArgument(other);
    message.addMethodArgument(QStringLiteral("outside"), QString(), 4);
    QStringList uris;
    const QDomElement method = written(message).firstChildElement().firstChildElement();
    for (QDomElement e = method.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        uris += e.namespaceURI();
    }
    QCOMPARE(uris, QStringList({QStringLiteral("urn:example:grid"), QString(), QStringLiteral("urn:a&b"),
                                QString()}));
    QCOMPARE(method.elementsByTagName(QStringLiteral("inherits")).item(0).namespaceURI(),
             QStringLiteral("urn:a&b"));
    QCOMPARE(message.toXmlString().count(QStringLiteral("xmlns:st=")), 1);
}

void SoapMessagesTest::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("arrives");
    const auto same = [](const char* row, const QString& text) { QTest::newRow(row) << text << text; };
    same("markup", QStringLiteral("a<b>&amp;\"c\"'d'<![CDATA[x]]>"));
    same("blanks only", QStringLiteral("   "));
    same("line ends", QStringLiteral("a\r\nb\rc\n\td\n"));
    same("beyond ASCII", QStringLiteral("äöß 日本 \U0001F5BC"));
    same("empty", QString(QLatin1String("")));
    same("long", QString(300000, QLatin1Char('x')));
    QTest::newRow("what XML cannot carry")
        << QString(QStringLiteral("a\x01") + QChar(0xFFFE) + QChar(0xD800) + QLatin1Char('b') +
                   QChar(0xDC00) + QChar(0xD801)) // half of a pair, at the end
        << QStringLiteral("a\uFFFD\uFFFD\uFFFDb\uFFFD\uFFFD");
}

void SoapMessagesTest::texts()
{
    QFETCH(QString, text);
    QFETCH(QString, arrives);
    QtSoapMessage message, read;
    message.setMethod(QStringLiteral("m"));
    message.addMethodArgument(QStringLiteral("t"), QString(), text);
    message.addMethodArgument(value("nil"));
    for (const int indent : {0, 4}) {
        QVERIFY2(read.setContent(message.toXmlString(indent).toUtf8()), qPrintable(read.errorString()));
        QCOMPARE(read.returnValue().toString(), arrives);
        QVERIFY(read.returnValue().value().isValid() && !read.method()[1].value().isValid());
    }
}

void SoapMessagesTest::namesThatXmlForbids()
{
    QtSoapMessage message, read;
    message.setMethod(QStringLiteral("a b><x/>"), QStringLiteral("urn:\"x"));
    message.addMethodArgument(QString(), QString(), 1);
    message.addMethodArgument(QStringLiteral("1st"), QString(), 2);
    for (const char* name : {"a-b.9", "-a", "a:b", "z\u00D7", "_\u00C0"}) {
        message.addMethodArgument(QString::fromUtf8(name), QString(), 4);
    }
    auto* const item = value("i", 3);
    item->setId(QStringLiteral("\"<&"));
    message.addMethodArgument(item);
    QVERIFY2(read.setContent(message.toXmlString().toUtf8()), qPrintable(read.errorString()));
    QCOMPARE(read.method().name().name(), QStringLiteral("a_x0020_b_x003e__x003c_x_x002f__x003e_"));
    QCOMPARE(read.method().name().uri(), QStringLiteral("urn:\"x"));
    QCOMPARE(read.method()[1].name().name(), QStringLiteral("_x0031_st"));
    QStringList names;
    for (int k = 2; k < 7; ++k) {
        names += read.method()[k].name().name();
    }
    QCOMPARE(names,
             QStringList({QStringLiteral("a-b.9"), QStringLiteral("_x002d_a"), QStringLiteral("a_x003a_b"),
                          QStringLiteral("z_x00d7_"), QStringLiteral("_\u00C0")}));
    QCOMPARE(read.method()[7].id(), QStringLiteral("\"<&"));
}

void SoapMessagesTest::prefixesAndAttributes()
{
    const QString uri = QStringLiteral("urn:dsl");
    Message message;
    message.setMethod(QStringLiteral("u:GetInfo"), uri);
    message.addMethodArgument(QStringLiteral("plain"), QString(), 1);
    message.addMethodArgument(QStringLiteral("u:own"), QString(), 2);  // the prefix is in force
    message.addMethodArgument(QStringLiteral("v:lost"), QString(), 3); // this one is not
    message.addMethodArgument(QStringLiteral("xsi:bad"), uri, 4);      // has a meaning of its own
    auto* const item = value("h", 5);
    item->setAttribute(QtSoapQName(QStringLiteral("mustUnderstand"), QStringLiteral(SOAPv11_ENVELOPE)),
                       QStringLiteral("0"));
    item->setAttribute(QtSoapQName(QStringLiteral("mustUnderstand"), QStringLiteral(SOAPv11_ENVELOPE)),
                       QStringLiteral("\"1\""));
    item->setAttribute(QtSoapQName(QStringLiteral("lang"), QStringLiteral(XML_NAMESPACE)),
                       QStringLiteral("en"));
    item->setAttribute(QtSoapQName(QStringLiteral("a b"), uri), QStringLiteral("x"));
    item->setAttribute(named("id"), QStringLiteral("not this way"));
    item->setAttribute(named("gone"), QStringLiteral("x"));
    item->setAttribute(named("gone"), QString());
    message.addHeaderItem(new QtSoapSimpleType(*item));
    delete item; // the copy has attributes of its own
    const QDomElement header = written(message).firstChildElement().firstChildElement();
    QCOMPARE(header.attributes().size(), 4); // three of these, and xsi:type
    QCOMPARE(header.attributeNS(QStringLiteral(SOAPv11_ENVELOPE), QStringLiteral("mustUnderstand")),
             QStringLiteral("\"1\""));
    QCOMPARE(header.attributeNS(uri, QStringLiteral("a_x0020_b")), QStringLiteral("x"));
    QVERIFY(message.headerItem(0).attribute(named("gone")).isNull());
    QStringList names;
    const QDomElement method = written(message).lastChildElement().firstChildElement();
    for (QDomElement e = method.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        names += e.namespaceURI() + QLatin1Char(' ') + e.localName();
    }
    QCOMPARE(method.namespaceURI() + method.localName(), QStringLiteral("urn:dslGetInfo"));
    QCOMPARE(names, QStringList({QStringLiteral(" plain"), QStringLiteral("urn:dsl own"),
                                 QStringLiteral(" v_x003a_lost"), QStringLiteral("urn:dsl xsi_x003a_bad")}));
}

void SoapMessagesTest::prefixes()
{
    auto& namespaces = QtSoapNamespaces::instance();
    QCOMPARE(namespaces.prefixFor(QStringLiteral(SOAPv11_ENVELOPE)), QStringLiteral("SOAP-ENV"));
    QVERIFY(namespaces.prefixFor(QStringLiteral("urn:a")).isEmpty());
    namespaces.registerNamespace(QStringLiteral("p"), QStringLiteral("urn:a"));
    namespaces.registerNamespace(QStringLiteral("p"), QStringLiteral("urn:b"));
    QVERIFY(namespaces.prefixFor(QStringLiteral("urn:a")).isEmpty());
    QCOMPARE(namespaces.prefixFor(QStringLiteral("urn:b")), QStringLiteral("p"));
    for (const char* prefix : {"xsi", "a:b", "", "xmlfoo"}) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot stand for \"urn:c\"")));
        namespaces.registerNamespace(QLatin1String(prefix), QStringLiteral("urn:c"));
    }
    QVERIFY(namespaces.prefixFor(QStringLiteral("urn:c")).isEmpty());
}

void SoapMessagesTest::literalAnswer()
{
    QtSoapMessage message;
    QVERIFY(message.setContent(
        envelope("<!-- c --><convertLengthResponse xmlns='urn:u'><?pi x?><convertLengthResult><cm>30.48</cm>"
                 "<raw><![CDATA[<&>]]> tail</raw><row>1</row><row>2</row></convertLengthResult>"
                 "</convertLengthResponse>")));
    QCOMPARE(described(message.method()),
             QStringLiteral("convertLengthResponse{convertLengthResult{cm:string=30.48 raw:string=<&> tail "
                            "row:string=1 row:string=2}}"));
    const QtSoapType& value = message.returnValue();
    QCOMPARE(value[QStringLiteral("cm")].value().toDouble(), 30.48);
    QVERIFY2(value[QStringLiteral("cm")].toString().capacity() < 32, "a value keeps its reader's buffer");
    QVERIFY(!value[QStringLiteral("x")].isValid() && !message.isFault());
    QCOMPARE(message.faultCode(), QtSoapMessage::Other);
    QVERIFY(!message.faultString().isValid());
    QVERIFY(message.setContent(envelope("<pingResponse xmlns='urn:u'/>")));
    QVERIFY(!message.returnValue().isValid());
    QVERIFY(dynamic_cast<const QtSoapStruct*>(&message.method())); // clients look into it
    QVERIFY(message.setContent(envelope("")) && !message.method().isValid());
    QVERIFY(message.setContent(QtSoapMessage().toXmlString().toUtf8()) && message.bodyItemCount() == 0);
}

void SoapMessagesTest::encodedAnswer()
{
    for (const char* uri : {"http://www.w3.org/2001/XMLSchema-instance", XML_SCHEMA_INSTANCE,
                            "http://www.w3.org/2000/10/XMLSchema-instance"}) {
        QtSoapMessage message;
        QVERIFY(message.setContent(
            envelope(QByteArray("<g:r xmlns:g='urn:g' xmlns:o='") + uri +
                     "'><v><ids o:type='c:Array' c:arrayType='d:int[2]'><item>7</item><item>8</item></ids>"
                     "<note o:nil='true'/><c:long>5</c:long><odd o:type='d:int'><a/></odd>"
                     "<empty o:type='c:Struct'/></v></g:r>")));
        // nothing is lost of a value that contradicts its type
        QCOMPARE(described(message.returnValue()),
                 QStringLiteral("v{ids[0:item:int=7 1:item:int=8] note:string nil long:long=5 "
                                "odd{a:string=} empty{}}"));
    }
}

void SoapMessagesTest::faults()
{
    QtSoapMessage message;
    message.setMethod(QStringLiteral("m"));
    message.setFaultString(QStringLiteral("Door 4 is <locked>"));
    QVERIFY(message.isFault() && !message.method().isValid() && !message.returnValue().isValid());
    QCOMPARE(message.faultCode(), QtSoapMessage::Other);
    QVERIFY(!message.faultDetail().isValid());
    for (const auto code : {QtSoapMessage::VersionMismatch, QtSoapMessage::MustUnderstand,
                            QtSoapMessage::Client, QtSoapMessage::Server, QtSoapMessage::Other}) {
        message.setFaultCode(code);
        message.addFaultDetail(value("code", int(code)));
        QtSoapMessage read;
        QVERIFY(read.setContent(message.toXmlString().toUtf8()));
        QVERIFY(read.isFault());
        QCOMPARE(read.faultCode(), code);
        QCOMPARE(read.faultString().toString(), QStringLiteral("Door 4 is <locked>"));
        QCOMPARE(read.faultDetail().count(), int(code) + 1); // appended, not replaced
    }
    QStringList order;
    const QDomElement fault = written(message).firstChildElement().firstChildElement();
    for (QDomElement e = fault.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        order += e.namespaceURI() + e.localName();
    }
    QCOMPARE(order, QStringList({QStringLiteral("faultcode"), QStringLiteral("faultstring"),
                                 QStringLiteral("detail")}));
    message.setMethod(QStringLiteral("m"));
    QVERIFY(!message.isFault() && message.method().isValid());
}

void SoapMessagesTest::faultsOfOthers_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<int>("expected");
    QTest::newRow("prefixed") << "e:Server" << int(QtSoapMessage::Server);
    QTest::newRow("dotted") << "e:Client.Locked" << int(QtSoapMessage::Client);
    QTest::newRow("bare") << " MustUnderstand " << int(QtSoapMessage::MustUnderstand);
    QTest::newRow("of the service") << "d:ServerBusy" << int(QtSoapMessage::Other);
}

void SoapMessagesTest::faultsOfOthers()
{
    QFETCH(QString, code);
    QFETCH(int, expected);
    QtSoapMessage message;
    QVERIFY(message.setContent(envelope(
        "<e:Fault><faultcode>" + code.toUtf8() +
        "</faultcode><faultstring xml:lang='en'>Door 4 is locked</faultstring><detail>"
        "<l:lockInfo xmlns:l='urn:l'>by <l:holder>desk</l:holder></l:lockInfo></detail></e:Fault>")));
    QVERIFY(message.isFault());
    QCOMPARE(int(message.faultCode()), expected);
    QCOMPARE(described(message.faultString()), QStringLiteral("faultstring:string=Door 4 is locked"));
    QCOMPARE(described(message.faultDetail()), QStringLiteral("detail{lockInfo{holder:string=desk}}"));
}

void SoapMessagesTest::headerAndBody()
{
    Message message;
    message.addHeaderItem(new QtSoapSimpleType(QtSoapQName(QStringLiteral("h"), QStringLiteral("urn:h")), 1));
    message.addHeaderItem(new QtSoapSimpleType(QtSoapQName(QStringLiteral("h"), QStringLiteral("urn:h")), 2));
    QTest::ignoreMessage(QtWarningMsg, "SOAP: An argument was added before a method was set");
    message.addMethodArgument(QStringLiteral("a"), QString(), 3);
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
    QVERIFY(!written(read).hasChildNodes());
}

void SoapMessagesTest::encodings_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QString>("declared");
    QTest::newRow("UTF-8, undeclared") << QByteArray("UTF-8") << QString();
    QTest::newRow("Latin 1") << QByteArray("ISO-8859-1") << "iso-8859-1";
    QTest::newRow("Windows") << QByteArray("windows-1252") << "windows-1252";
    QTest::newRow("UTF-16") << QByteArray("UTF-16") << "utf-16";
    QTest::newRow("UTF-16 without mark") << QByteArray("UTF-16BE") << "UTF-16";
}

void SoapMessagesTest::encodings()
{
    QFETCH(QByteArray, codec);
    QFETCH(QString, declared);
    QString text = QString::fromUtf8(envelope("<r><a>Größe</a></r>"));
    if (!declared.isEmpty()) {
        text.prepend(QStringLiteral("<?xml version='1.0' encoding='%1'?>").arg(declared));
    }
    QtSoapMessage message;
    QVERIFY2(message.setContent(QTextCodec::codecForName(codec)->fromUnicode(text)),
             qPrintable(message.errorString()));
    QCOMPARE(message.returnValue().toString(), QStringLiteral("Größe"));
}

void SoapMessagesTest::treeOfTheCaller()
{
    QDomDocument document;
    const QByteArray text = envelope("<r><a c:arrayType='d:int[2]'><i>1</i><i>2</i></a><b><c>x</c>y</b></r>");
    QVERIFY(document.setContent(text, true));
    QtSoapMessage fromTree, fromText;
    QVERIFY2(fromTree.setContent(document), qPrintable(fromTree.errorString()));
    QVERIFY(fromText.setContent(text));
    QCOMPARE(fromTree.toXmlString(), fromText.toXmlString());
    QVERIFY(document.setContent(QByteArrayLiteral("<!DOCTYPE a><a/>"), true));
    QVERIFY(!fromTree.setContent(document) && fromTree.isFault());
    QVERIFY(fromTree.errorString().contains(QStringLiteral("document type")));
    QDomDocument deep;
    deep.createElement(QStringLiteral("first")); // a document is null before that
    QDomNode node = deep;
    for (int k = 0; k < 2000; ++k) {
        node = node.appendChild(deep.createElementNS(
            QStringLiteral(SOAPv11_ENVELOPE), k == 0 ? QStringLiteral("Envelope") : QStringLiteral("Body")));
    }
    QVERIFY(!fromTree.setContent(deep));
    QVERIFY(fromTree.errorString().contains(QStringLiteral("levels")));
}

void SoapMessagesTest::copiesAndReuse()
{
    QtSoapMessage message;
    message.setMethod(QStringLiteral("m"));
    message.addMethodArgument(QStringLiteral("a"), QString(), 1);
    QtSoapMessage copy(message);
    message.addMethodArgument(QStringLiteral("b"), QString(), 2);
    QCOMPARE(copy.method().count(), 1);
    copy = message;
    QVERIFY(!message.setContent(QByteArray()));
    QVERIFY(message.isFault() && copy.method().count() == 2 && !message.errorString().isEmpty());
    QCOMPARE(message.faultString().toString(), message.errorString());
    QVERIFY(message.setContent(copy.toXmlString().toUtf8()) && message.errorString().isEmpty());
}

TOLVAN_CORE_TEST_MAIN(SoapMessagesTest)
#include "tst_soap_messages.moc"
