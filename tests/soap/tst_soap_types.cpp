#include "SoapCall.h"

#include <cmath>
#include <limits>

using namespace SoapCall;

namespace
{

QDomElement parsed(const QString& attributesAndContents, const QString& end = text("</v>"))
{
    QDomDocument document;
    const QString xml = text("<v xmlns:xsi='%1' xmlns:xsd='http://www.w3.org/2001/XMLSchema' xmlns:e='%2' ")
                            .arg(text(XML_SCHEMA_INSTANCE), text(SOAPv11_ENCODING)) +
                        attributesAndContents + end;
    document.setContent(xml, true);
    return document.documentElement();
}

/// A value class of a client: a point written as "x;y".
class Point : public QtSoapSimpleType
{
public:
    bool parse(QDomNode node) override
    {
        const QStringList parts = node.toElement().text().split(QLatin1Char(';'));
        errorStr = text("no point");
        x = parts.value(0).toInt();
        y = parts.value(1).toInt();
        n = QtSoapQName(node.localName());
        return parts.size() == 2;
    }
    QDomElement toDomElement(QDomDocument document) const override
    {
        QDomElement element = document.createElement(n.name());
        element.appendChild(document.createTextNode(text("%1;%2").arg(x).arg(y)));
        return element;
    }
    int x = 0;
    int y = 0;
};

} // namespace

/// Values on their own: conversions, lookups, ownership.
class SoapTypesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesOfTypes()
    {
        const char* const fixed =
            "duration dateTime time date gYearMonth gYear gMonthDay gDay gMonth boolean base64Binary "
            "hexBinary float double anyURI QName NOTATION string normalizedString token language Name "
            "NMTOKEN NCName ID IDREF ENTITY decimal integer nonPositiveInteger negativeInteger long int "
            "short "
            "byte nonNegativeInteger unsignedLong positiveInteger unsignedInt unsignedShort unsignedByte "
            "Array Struct";
        const QStringList names = QString::fromLatin1(fixed).split(QLatin1Char(' '));
        QCOMPARE(names.size(), int(QtSoapType::Other));
        for (int type = 0; type < names.size(); ++type) {
            QCOMPARE(QtSoapType::typeToName(static_cast<QtSoapType::Type>(type)), names.at(type));
            QCOMPARE(int(QtSoapType::nameToType(names.at(type))), type);
        }
        QCOMPARE(QtSoapType::nameToType(text("INT")), QtSoapType::Other);
        QCOMPARE(QtSoapType::nameToType(text("base64")), QtSoapType::Base64Binary);
    }

    void qualifiedNames()
    {
        const QString a = text("a"), b = text("b"), uri = text("u:1");
        QVERIFY(QtSoapQName(a, uri) == QtSoapQName(a));    // a key without namespace matches any
        QVERIFY(!(QtSoapQName(a) == QtSoapQName(a, uri))); // a key with a namespace does not
        QVERIFY(QtSoapQName(a.toUpper(), uri) == QtSoapQName(a, uri));
        QVERIFY(!(QtSoapQName(b, uri) == QtSoapQName(a, uri)));
        QVERIFY(!(QtSoapQName(a, b) == QtSoapQName(a, uri)));
        QVERIFY(QtSoapQName(a, uri) < QtSoapQName(b) && !(QtSoapQName(a, uri) < QtSoapQName(a)));
        QtSoapQName assigned(a, uri);
        assigned = b;
        QCOMPARE(assigned.name() + assigned.uri(), b);
    }

    void simpleValues_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("given");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char* type, const char* given, const QVariant& value) {
            QTest::addRow("%s %s", type, given) << text(type) << text(given) << value;
        };
        row("boolean", " 1 ", true);
        row("boolean", "false", false);
        row("boolean", "TRUE", text("TRUE"));
        row("int", "-2147483648", std::numeric_limits<int>::min());
        row("int", "2147483648", text("2147483648"));
        row("unsignedInt", "4294967295", 4294967295U);
        row("long", "-9223372036854775808", std::numeric_limits<qlonglong>::min());
        row("unsignedLong", "18446744073709551615", std::numeric_limits<qulonglong>::max());
        row("double", "30.48", 30.48);
        row("double", "-INF", -std::numeric_limits<double>::infinity());
        row("double", "inf", text("inf"));
        row("decimal", "0.10", text("0.10"));
        row("string", "  ", text("  "));
        row("nobodyKnowsIt", "", QString(QLatin1String("")));
    }

    void simpleValues()
    {
        QFETCH(QString, type);
        QFETCH(QString, given);
        QFETCH(QVariant, value);
        // a tree drops texts of blanks only, so the text is put into the tree instead of being parsed
        QDomElement element = parsed(text("xsi:type='xsd:%1'>").arg(type));
        element.appendChild(element.ownerDocument().createTextNode(given));
        QtSoapSimpleType simple;
        QVERIFY2(simple.parse(element), qPrintable(simple.errorString()));
        QCOMPARE(simple.value(), value);
        QCOMPARE(int(simple.value().type()), int(value.type()));
        QCOMPARE(simple.toString(), value.type() == QVariant::Bool ? value.toString() : given);
        QCOMPARE(simple.typeName(), type == text("nobodyKnowsIt") ? text("string") : type);
    }

    void nilAndReferences()
    {
        QtSoapSimpleType value;
        for (const char* nil : {"xsi:null='1'", "xsi:nil='true'"}) {
            QVERIFY(value.parse(parsed(QLatin1String(nil) + text(" xsi:type='xsd:int'>7"))));
            QCOMPARE(described(value), text("v:int nil"));
            QVERIFY(value.toString().isNull());
        }
        QVERIFY(value.parse(parsed(text("xsi:nil='false' xsi:type='xsd:double'>NaN"))));
        QVERIFY(std::isnan(value.value().toDouble()) && value.toString() == text("NaN"));
        QVERIFY(value.parse(parsed(text("id='a' href='#b'/>"), QString())));
        QCOMPARE(value.id() + value.href(), text("a#b"));
        QVERIFY(!value.value().isValid());
        QDomDocument document;
        const QDomElement written = value.toDomElement(document);
        QCOMPARE(written.attribute(text("href")), text("#b"));
        QVERIFY(!written.hasAttributeNS(text("http://www.w3.org/2001/XMLSchema-instance"), text("nil")));
    }

    void constructorsOfSimpleValues()
    {
        QCOMPARE(described(QtSoapSimpleType(named("f"), true)), text("f:int=1"));
        QCOMPARE(described(QtSoapSimpleType(named("f"), true, 0)), text("f:boolean=true"));
        QCOMPARE(described(QtSoapSimpleType(named("f"), QString())), text("f:string="));
        QCOMPARE(QtSoapSimpleType(named("f")).type(), QtSoapType::Other);
        const auto lexical = [](const QVariant& content, QtSoapType::Type type) {
            const QtSoapSimpleType made(named("f"), content, type);
            return made.type() == type ? made.toString() : QString();
        };
        const QDateTime moment(QDate(2021, 3, 4), QTime(5, 6, 7, 8), Qt::UTC);
        QCOMPARE(lexical(qInf(), QtSoapType::Float), text("INF"));
        QCOMPARE(lexical(moment.date(), QtSoapType::Date), text("2021-03-04"));
        QCOMPARE(lexical(moment.time(), QtSoapType::Time), text("05:06:07.008"));
        QCOMPARE(lexical(moment, QtSoapType::DateTime), text("2021-03-04T05:06:07.008Z"));
        QVERIFY(lexical(moment.toLocalTime(), QtSoapType::DateTime).size() > 23); // with its offset
        QCOMPARE(lexical(QByteArray("\xFF\x01", 2), QtSoapType::Base64Binary), text("/wE="));
        QCOMPARE(lexical(QByteArray("\xFF\x01", 2), QtSoapType::HexBinary), text("FF01"));
        QCOMPARE(QtSoapSimpleType(named("f"), 7, QtSoapType::Long).value(), QVariant(7LL));
        QVERIFY(!QtSoapSimpleType(named("f"), QVariant(), QtSoapType::Int).value().isValid());
        QtSoapSimpleType seven(named("f"), 7);
        QVERIFY(seven.toInt() == 7 && seven.toBool());
        seven.clear();
        QCOMPARE(described(seven), text("f:int nil"));
    }

    void failingLookupsAreSafe()
    {
        QtSoapStruct s;
        QtSoapType& missing = s[text("a")][QtSoapQName(text("b"))][3];
        QVERIFY(!missing.isValid() && missing.toString().isNull() && missing.toInt() == 0);
        s[text("a")].setName(QtSoapQName(text("changed")));
        QVERIFY(s[text("a")].name().name().isEmpty());
        const QtSoapArray a;
        QVERIFY(!a.at(1, 2).isValid() && !a[-1][text("x")].isValid());
        QVERIFY(!QtSoapType().isValid() && a.isValid() && s.isValid());
    }

    void structKeepsOrder()
    {
        const QString x = text("urn:x"), y = text("urn:y");
        QtSoapStruct s(named("s"));
        int number = 0;
        for (const char* name : {"b", "a", "c", "a"}) { // repeated names make a list
            s.insert(new QtSoapSimpleType(QtSoapQName(QLatin1String(name), x), ++number));
        }
        QTest::ignoreMessage(QtWarningMsg, "SOAP: A struct cannot take a null item");
        s.insert(nullptr);
        QCOMPARE(described(s), text("s{b:int=1 a:int=2 c:int=3 a:int=4}"));
        QCOMPARE(s[text("A")].toInt(), 2);
        const QtSoapQName inY(text("A"), y);
        QVERIFY(!s.at(inY).isValid());
        s.insert(new QtSoapSimpleType(QtSoapQName(text("a"), y), 5));
        QCOMPARE(s.at(inY).toInt(), 5);
        s.insert(new QtSoapSimpleType(inY, 6)); // the exact spelling goes before a match of another case
        QCOMPARE(s.at(inY).toInt(), 6);
        QString names;
        QtSoapStructIterator it(s);
        for (; it.current(); ++it) {
            names += it.key().name();
        }
        QCOMPARE(names, text("bacaaA"));
        QVERIFY(!it.data() && it.key().name().isEmpty() && it != QtSoapStructIterator(s));
        // read, repeated names stay; of names that differ in case only the one of the same case comes first
        QVERIFY(s.parse(parsed(text("><ID>1</ID><id>2</id><id>3</id>"))));
        QCOMPARE(s.count(), 3);
        QCOMPARE(s[text("id")].toInt(), 2);
        s.clear();
        QCOMPARE(s.count(), 0);
    }

    void copiesAreIndependent()
    {
        QtSoapArray* const inner = list("inner", {value("n", 1)});
        const std::unique_ptr<QtSoapStruct> outer(
            structure("outer", {inner, new QtSoapType(QtSoapQName(text("bare")))}));
        QtSoapStruct copy(*outer);
        inner->at(0).setName(QtSoapQName(text("renamed")));
        inner->append(value("n", 2));
        const QString before = text("outer{inner[0:n:int=1] -}");
        QCOMPARE(described(copy), before);
        copy = static_cast<const QtSoapStruct&>(copy); // assigned to itself
        QCOMPARE(described(copy), before);
        *inner = QtSoapArray(*inner);
        QCOMPARE(described(*outer), text("outer{inner[0:renamed:int=1 1:n:int=2] -}"));
    }

    void parseTellsClassesApart()
    {
        QtSoapSimpleType simple;
        QVERIFY(!simple.parse(parsed(text("><a/>"))));
        QCOMPARE(simple.errorString(), text("\"v\" has child elements and is not a simple value"));
        QVERIFY(!simple.parse(parsed(text("e:arrayType='xsd:int[0]'>"))));
        QVERIFY(!simple.parse(QDomNode()) && !simple.errorString().isEmpty());
        QtSoapStruct structure;
        QVERIFY(!structure.parse(parsed(text(">text"))) && !structure.errorString().isEmpty());
        QVERIFY(structure.parse(parsed(text(">"))) && structure.errorString().isEmpty());
        QtSoapArray array;
        QVERIFY(!array.parse(parsed(text(">text"))));
        QVERIFY(array.parse(parsed(text("e:arrayType='xsd:int[]'><i>4</i>"))));
        QCOMPARE(described(array), text("v[0:i:int=4]"));
        QVERIFY(!QtSoapType().parse(QDomNode()));
    }

    void elementsCanBeReadBack()
    {
        QtSoapArray array(QtSoapQName(text("a"), text("urn:x")), QtSoapType::Struct, 2, 3);
        array.insert(1, 2, structure("i", {value("t", " a&<>\"' \x01 "), value("nothing")}));
        QDomDocument document;
        document.createElement(text("first")); // a document is null, and no copy its equal, before that
        document.appendChild(array.toDomElement(document));
        QDomDocument throughText;
        QVERIFY(throughText.setContent(document.toString(-1), true));
        for (const QDomDocument& again : {document, throughText}) {
            QtSoapArray read;
            QVERIFY2(read.parse(again.documentElement()), qPrintable(read.errorString()));
            QCOMPARE(read.name().uri(), text("urn:x"));
            QCOMPARE(described(read), text("a[5:i{t:string= a&<>\"' \uFFFD  nothing:string nil}]"));
        }
    }

    void clientClasses()
    {
        static QtSoapTypeConstructor<Point> constructor;
        auto& factory = QtSoapTypeFactory::instance();
        QVERIFY(factory.registerHandler(text("point"), &constructor));
        QVERIFY(!factory.registerHandler(text("point"), &constructor));
        QVERIFY(!factory.registerHandler(text("int"), &constructor));
        QVERIFY(!factory.registerHandler(text("null"), nullptr));

        const QDomElement element = parsed(text("><p xsi:type='g:point'>3;4</p><q>5</q>"));
        const auto made = factory.soapType(element);
        QVERIFY(!made.isNull());
        const auto* const point = dynamic_cast<const Point*>(&std::as_const(*made)[0]);
        QVERIFY(point && point->x == 3 && point->y == 4);
        QCOMPARE(made->operator[](1).toInt(), 5);

        QVERIFY(factory.soapType(parsed(text("xsi:type='point'>3"))).isNull());
        QVERIFY(factory.errorString().contains(text("no point")));
        QVERIFY(factory.soapType(QDomNode()).isNull());

        QtSoapMessage message; // through the stream, and shared by the copies that cannot know how to copy it
        message.setMethod(text("m"));
        message.addMethodArgument(new Point(*point));
        auto* const sparse = new QtSoapArray(named("sparse"));
        sparse->insert(5, new Point(*point)); // its element is made in the document of the message
        message.addMethodArgument(sparse);
        const QtSoapMessage copy(message);
        QCOMPARE(&copy.method()[0], &message.method()[0]);
        QVERIFY(message.toXmlString().contains(text(":position=\"[5]\"")));
        const QString xml = message.toXmlString().replace(text("<p>"), text("<p xsi:type='point'>"));
        QVERIFY2(message.setContent(xml.toUtf8()), qPrintable(message.errorString()));
        QVERIFY(dynamic_cast<const Point*>(&message.returnValue()));
        QCOMPARE(static_cast<const Point&>(message.returnValue()).y, 4);
    }
};

TOLVAN_CORE_TEST_MAIN(SoapTypesTest)
#include "tst_soap_types.moc"
