#include "SoapCall.h"
#include "TestMain.h"

#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(TOLVAN_NAMESPACE::QtSoapQName)

using namespace SoapCall;

namespace
{

QDomElement parsed(const QString& attributesAndContents, const QString& end = QStringLiteral("</v>"))
{
    QDomDocument document;
    const QString text =
        QStringLiteral("<v xmlns:xsi='%1' xmlns:xsd='http://www.w3.org/2001/XMLSchema' xmlns:e='%2' ")
            .arg(QStringLiteral(XML_SCHEMA_INSTANCE), QStringLiteral(SOAPv11_ENCODING)) +
        attributesAndContents + end;
    QString error;
    if (!document.setContent(text, true, &error)) {
        qFatal("%s", qPrintable(error));
    }
    return document.documentElement();
}

/// A value class of a client: a point written as "x;y".
class Point : public QtSoapSimpleType
{
public:
    bool parse(QDomNode node) override
    {
        const QStringList parts = node.toElement().text().split(QLatin1Char(';'));
        errorStr = QStringLiteral("no point");
        x = parts.value(0).toInt();
        y = parts.value(1).toInt();
        n = QtSoapQName(node.localName());
        return parts.size() == 2;
    }
    QDomElement toDomElement(QDomDocument document) const override
    {
        QDomElement element = document.createElement(n.name());
        element.appendChild(document.createTextNode(QStringLiteral("%1;%2").arg(x).arg(y)));
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
    void namesOfTypes();
    void qualifiedNames_data();
    void qualifiedNames();
    void simpleValues_data();
    void simpleValues();
    void nilAndReferences();
    void constructorsOfSimpleValues();
    void failingLookupsAreSafe();
    void structKeepsOrder();
    void copiesAreIndependent();
    void parseTellsClassesApart();
    void elementsCanBeReadBack();
    void smartPointer();
    void clientClasses();
};

void SoapTypesTest::namesOfTypes()
{
    for (int t = 0; t < QtSoapType::Other; ++t) {
        const auto type = static_cast<QtSoapType::Type>(t);
        QVERIFY(!QtSoapType::typeToName(type).isEmpty());
        QCOMPARE(QtSoapType::nameToType(QtSoapType::typeToName(type)), type);
    }
    const QHash<int, const char*> fixed{{0, "duration"},      {9, "boolean"},  {14, "anyURI"},
                                        {17, "string"},       {27, "decimal"}, {32, "int"},
                                        {40, "unsignedByte"}, {41, "Array"},   {42, "Struct"}};
    for (auto it = fixed.begin(); it != fixed.end(); ++it) {
        QCOMPARE(int(QtSoapType::nameToType(QLatin1String(it.value()))), it.key());
    }
    QCOMPARE(QtSoapType::nameToType(QStringLiteral("INT")), QtSoapType::Other);
    QCOMPARE(QtSoapType::nameToType(QStringLiteral("base64")), QtSoapType::Base64Binary);
    QCOMPARE(int(QtSoapType::Other), 43);
}

void SoapTypesTest::qualifiedNames_data()
{
    QTest::addColumn<QtSoapQName>("left");
    QTest::addColumn<QtSoapQName>("right");
    QTest::addColumn<bool>("equal");
    const QString a = QStringLiteral("a"), upper = QStringLiteral("A"), b = QStringLiteral("b"),
                  u = QStringLiteral("u:1");
    QTest::newRow("a key without URI matches any namespace") << QtSoapQName(a, u) << QtSoapQName(a) << true;
    QTest::newRow("a key with URI wants it") << QtSoapQName(a) << QtSoapQName(a, u) << false;
    QTest::newRow("case does not matter") << QtSoapQName(upper, u) << QtSoapQName(a, u) << true;
    QTest::newRow("other name") << QtSoapQName(b, u) << QtSoapQName(a, u) << false;
    QTest::newRow("other namespace") << QtSoapQName(a, b) << QtSoapQName(a, u) << false;
}

void SoapTypesTest::qualifiedNames()
{
    QFETCH(QtSoapQName, left);
    QFETCH(QtSoapQName, right);
    QFETCH(bool, equal);
    QCOMPARE(left == right, equal);
    if (equal) {
        QVERIFY(!(left < right));
    }
    QtSoapQName assigned(left);
    assigned = QStringLiteral("z");
    QCOMPARE(assigned.name() + assigned.uri(), QStringLiteral("z"));
    QVERIFY(left < assigned);
}

void SoapTypesTest::simpleValues_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("asText");
    const auto row = [](const char* type, const char* text, const QVariant& value,
                        const char* asText = nullptr) {
        QTest::addRow("%s %s", type, text) << QString::fromLatin1(type) << QString::fromUtf8(text) << value
                                           << QString::fromUtf8(asText ? asText : text);
    };
    row("boolean", "true", true);
    row("boolean", " 1 ", true, "true");
    row("boolean", "false", false);
    row("boolean", "TRUE", QStringLiteral("TRUE"));
    row("int", "-2147483648", std::numeric_limits<int>::min());
    row("int", "2147483648", QStringLiteral("2147483648"));
    row("unsignedInt", "4294967295", 4294967295U);
    row("unsignedInt", "-1", QStringLiteral("-1"));
    row("long", "-9223372036854775808", std::numeric_limits<qlonglong>::min());
    row("unsignedLong", "18446744073709551615", std::numeric_limits<qulonglong>::max());
    row("double", "30.48", 30.48);
    row("double", "-INF", -std::numeric_limits<double>::infinity());
    row("double", "inf", QStringLiteral("inf"));
    row("decimal", "0.10", QStringLiteral("0.10"));
    row("integer", "123456789012345678901234567890", QStringLiteral("123456789012345678901234567890"));
    row("dateTime", "2021-03-04T05:06:07", QStringLiteral("2021-03-04T05:06:07"));
    row("base64Binary", "AAEC/w==", QStringLiteral("AAEC/w=="));
    row("string", "  ", QStringLiteral("  "));
    row("nobodyKnowsIt", "x", QStringLiteral("x"));
    row("string", "", QString(QLatin1String("")));
}

void SoapTypesTest::simpleValues()
{
    QFETCH(QString, type);
    QFETCH(QString, text);
    QFETCH(QVariant, value);
    QFETCH(QString, asText);
    // a tree drops texts of blanks only, so the text is put into the tree instead of being parsed
    QDomElement element = parsed(QStringLiteral("xsi:type='xsd:%1'>").arg(type));
    element.appendChild(element.ownerDocument().createTextNode(text));
    QtSoapSimpleType simple;
    QVERIFY2(simple.parse(element), qPrintable(simple.errorString()));
    QCOMPARE(simple.value(), value);
    QCOMPARE(int(simple.value().type()), int(value.type()));
    QCOMPARE(simple.toString(), asText);
    QCOMPARE(simple.type(), QtSoapType::nameToType(type) == QtSoapType::Other ? QtSoapType::String
                                                                              : QtSoapType::nameToType(type));
}

void SoapTypesTest::nilAndReferences()
{
    QtSoapSimpleType value;
    for (const char* nil : {"xsi:null='1'", "xsi:nil='true'"}) {
        QVERIFY(value.parse(parsed(QLatin1String(nil) + QStringLiteral(" xsi:type='xsd:int'>7"))));
        QVERIFY(value.isValid() && !value.value().isValid() && value.toString().isNull());
        QCOMPARE(value.type(), QtSoapType::Int);
    }
    QVERIFY(value.parse(parsed(QStringLiteral("xsi:nil='false' xsi:type='xsd:double'>NaN"))));
    QVERIFY(std::isnan(value.value().toDouble()) && value.toString() == QStringLiteral("NaN"));
    QVERIFY(value.parse(parsed(QStringLiteral("id='a' href='#b'/>"), QString())));
    QCOMPARE(value.id() + value.href(), QStringLiteral("a#b"));
    QVERIFY(!value.value().isValid());
    QDomDocument document;
    const QDomElement written = value.toDomElement(document);
    QCOMPARE(written.attribute(QStringLiteral("href")), QStringLiteral("#b"));
    QVERIFY(!written.hasAttributeNS(QStringLiteral("http://www.w3.org/2001/XMLSchema-instance"),
                                    QStringLiteral("nil")));
}

void SoapTypesTest::constructorsOfSimpleValues()
{
    QCOMPARE(QtSoapSimpleType(named("f"), true).type(), QtSoapType::Int);
    QCOMPARE(QtSoapSimpleType(named("f"), true, 0).type(), QtSoapType::Boolean);
    QCOMPARE(QtSoapSimpleType(named("f"), QString()).type(), QtSoapType::String);
    QCOMPARE(QtSoapSimpleType(named("f")).type(), QtSoapType::Other);
    const auto text = [](const QVariant& content, QtSoapType::Type type) {
        const QtSoapSimpleType made(named("f"), content, type);
        return made.type() == type ? made.toString() : QString();
    };
    const QDate day(2021, 3, 4);
    QCOMPARE(text(0.1, QtSoapType::Double), QStringLiteral("0.1"));
    QCOMPARE(text(qInf(), QtSoapType::Float), QStringLiteral("INF"));
    QCOMPARE(text(day, QtSoapType::Date), QStringLiteral("2021-03-04"));
    QCOMPARE(text(QTime(5, 6, 7, 8), QtSoapType::Time), QStringLiteral("05:06:07.008"));
    QCOMPARE(text(QDateTime(day, QTime(5, 6, 7), Qt::UTC), QtSoapType::DateTime),
             QStringLiteral("2021-03-04T05:06:07Z"));
    QVERIFY(text(QDateTime(day, QTime(5, 6, 7)), QtSoapType::DateTime).size() > 19); // with its offset
    QCOMPARE(text(QByteArray("\xFF\x01", 2), QtSoapType::Base64Binary), QStringLiteral("/wE="));
    QCOMPARE(text(QByteArray("\xFF\x01", 2), QtSoapType::HexBinary), QStringLiteral("FF01"));
    QCOMPARE(text(QStringLiteral("red"), QtSoapType::Other), QStringLiteral("red"));
    QCOMPARE(QtSoapSimpleType(named("f"), true, QtSoapType::Boolean).value(), QVariant(true));
    QCOMPARE(QtSoapSimpleType(named("f"), 7, QtSoapType::Long).value(), QVariant(7LL));
    QVERIFY(!QtSoapSimpleType(named("f"), QVariant(), QtSoapType::Int).value().isValid());
    QtSoapSimpleType seven(named("f"), 7);
    QVERIFY(seven.toInt() == 7 && seven.toBool() && seven.isValid());
    seven.clear();
    QCOMPARE(described(seven), QStringLiteral("f:int nil"));
    QCOMPARE(seven.toInt(), 0);
}

void SoapTypesTest::failingLookupsAreSafe()
{
    QtSoapStruct s;
    QtSoapType& missing = s[QStringLiteral("a")][QtSoapQName(QStringLiteral("b"))][3];
    QVERIFY(!missing.isValid() && missing.toString().isNull() && missing.toInt() == 0 &&
            missing.count() == 0);
    s[QStringLiteral("a")].setName(QtSoapQName(QStringLiteral("changed")));
    QVERIFY(s[QStringLiteral("a")].name().name().isEmpty());
    const QtSoapArray a;
    QVERIFY(!a.at(1, 2).isValid() && !a[-1][QStringLiteral("x")].isValid());
    QVERIFY(!QtSoapType().isValid() && QtSoapArray().isValid() && QtSoapStruct().isValid());
}

void SoapTypesTest::structKeepsOrder()
{
    const auto inX = [](const char* name, int number) {
        return new QtSoapSimpleType(QtSoapQName(QLatin1String(name), QStringLiteral("urn:x")), number);
    };
    QtSoapStruct s(named("s"));
    for (QtSoapType* const item : {inX("b", 1), inX("a", 1), inX("c", 1), inX("a", 2)}) {
        s.insert(item);
    }
    QTest::ignoreMessage(QtWarningMsg, "SOAP: A struct cannot take a null item");
    s.insert(nullptr);
    QCOMPARE(described(s),
             QStringLiteral("s{b:int=1 a:int=1 c:int=1 a:int=2}")); // repeated names make a list
    QCOMPARE(s[QStringLiteral("A")].toInt(), 1);
    const QtSoapQName inY(QStringLiteral("A"), QStringLiteral("urn:y"));
    QVERIFY(!s.at(inY).isValid());
    s.insert(new QtSoapSimpleType(QtSoapQName(QStringLiteral("a"), QStringLiteral("urn:y")), 3));
    QCOMPARE(s.at(inY).toInt(), 3);
    s.insert(new QtSoapSimpleType(inY, 4)); // the exact spelling goes before a match of another case
    QCOMPARE(s.at(inY).toInt(), 4);
    QString names;
    QtSoapStructIterator it(s);
    for (; it.current(); ++it) {
        names += it.key().name();
    }
    QCOMPARE(names, QStringLiteral("bacaaA"));
    QVERIFY(!it.data() && it.key().name().isEmpty() && it != QtSoapStructIterator(s));
    // read, repeated names stay; of names that differ in case only the one of the same case comes first
    QVERIFY(s.parse(parsed(QStringLiteral("><ID>1</ID><id>2</id><id>3</id>"))));
    QCOMPARE(s.count(), 3);
    QCOMPARE(s[QStringLiteral("id")].toInt(), 2);
}

void SoapTypesTest::copiesAreIndependent()
{
    QtSoapArray* const inner = list("inner", {value("n", 1)});
    const std::unique_ptr<QtSoapStruct> outer(
        structure("outer", {inner, new QtSoapType(QtSoapQName(QStringLiteral("bare")))}));
    QtSoapStruct copy(*outer);
    inner->at(0).setName(QtSoapQName(QStringLiteral("renamed")));
    inner->append(value("n", 2));
    const QString before = QStringLiteral("outer{inner[0:n:int=1] -}");
    QCOMPARE(described(copy), before);
    copy = static_cast<const QtSoapStruct&>(copy); // assigned to itself
    QCOMPARE(described(copy), before);
    *inner = QtSoapArray(*inner);
    QCOMPARE(described(*outer), QStringLiteral("outer{inner[0:renamed:int=1 1:n:int=2] -}"));
}

void SoapTypesTest::parseTellsClassesApart()
{
    QtSoapSimpleType simple;
    QVERIFY(!simple.parse(parsed(QStringLiteral("><a/>"))));
    QVERIFY(simple.errorString().contains(QStringLiteral("child elements")));
    QVERIFY(!simple.parse(parsed(QStringLiteral("e:arrayType='xsd:int[0]'>"))));
    QVERIFY(!simple.parse(QDomNode()) && !simple.errorString().isEmpty());
    QtSoapStruct structure;
    QVERIFY(!structure.parse(parsed(QStringLiteral(">text"))) && !structure.errorString().isEmpty());
    QVERIFY(structure.parse(parsed(QStringLiteral(">"))) && structure.errorString().isEmpty());
    QtSoapArray array;
    QVERIFY(!array.parse(parsed(QStringLiteral(">text"))));
    QVERIFY(array.parse(parsed(QStringLiteral("e:arrayType='xsd:int[]'><i>4</i>"))));
    QVERIFY(array[0].value() == QVariant(4) && array[0].type() == QtSoapType::Int);
    QVERIFY(!QtSoapType().parse(QDomNode()));
}

void SoapTypesTest::elementsCanBeReadBack()
{
    QtSoapArray array(QtSoapQName(QStringLiteral("a"), QStringLiteral("urn:x")), QtSoapType::Struct, 2, 3);
    array.insert(1, 2, structure("i", {value("t", " a&<>\"' \x01 "), value("nothing")}));
    QDomDocument document;
    document.createElement(QStringLiteral("first")); // a document is null, and no copy its equal, before that
    document.appendChild(array.toDomElement(document));
    const QString xml = document.toString(-1);
    for (const bool throughText : {false, true}) {
        QDomDocument again = document;
        if (throughText) {
            QVERIFY(again.setContent(xml, true));
        }
        QtSoapArray read;
        QVERIFY2(read.parse(again.documentElement()), qPrintable(read.errorString() + xml));
        QCOMPARE(read.name().uri(), QStringLiteral("urn:x"));
        QCOMPARE(described(read), QStringLiteral("a[5:i{t:string= a&<>\"' \uFFFD  nothing:string nil}]"));
    }
}

void SoapTypesTest::smartPointer()
{
    struct Counted {
        explicit Counted(int& c)
            : count(c)
        {
            ++count;
        }
        ~Counted() { --count; }
        int& count;
    };
    int alive = 0;
    Counted* released = nullptr;
    {
        QtSmartPtr<Counted> first(new Counted(alive)), second(first), empty;
        QVERIFY(empty.isNull() && !empty.ptr() && !empty.releasedPtr());
        first = empty;
        QVERIFY(first.isNull() && alive == 1 && &second.ref() == second.operator->());
        second = QtSmartPtr<Counted>(new Counted(alive));
        QCOMPARE(alive, 1);
        const QtSmartPtr<Counted> third(second);
        released = third.releasedPtr();
        QCOMPARE(second.ptr(), released);
    }
    QCOMPARE(alive, 1);
    delete released;
    QCOMPARE(alive, 0);
}

void SoapTypesTest::clientClasses()
{
    static QtSoapTypeConstructor<Point> constructor;
    auto& factory = QtSoapTypeFactory::instance();
    QVERIFY(factory.registerHandler(QStringLiteral("point"), &constructor));
    QVERIFY(!factory.registerHandler(QStringLiteral("point"), &constructor));
    QVERIFY(!factory.registerHandler(QStringLiteral("int"), &constructor));
    QVERIFY(!factory.registerHandler(QStringLiteral("null"), nullptr));

    const QDomElement element = parsed(QStringLiteral("><p xsi:type='g:point'>3;4</p><q>5</q>"));
    const auto made = factory.soapType(element);
    QVERIFY(!made.isNull());
    const auto* const point = dynamic_cast<const Point*>(&std::as_const(*made)[0]);
    QVERIFY(point && point->x == 3 && point->y == 4);
    QCOMPARE(made->operator[](1).toInt(), 5);

    QVERIFY(factory.soapType(parsed(QStringLiteral("xsi:type='point'>3"))).isNull());
    QVERIFY(factory.errorString().contains(QStringLiteral("no point")));
    QVERIFY(factory.soapType(QDomNode()).isNull());

    QtSoapMessage message; // through the stream, and shared by the copies that cannot know how to copy it
    message.setMethod(QStringLiteral("m"));
    message.addMethodArgument(new Point(*point));
    auto* const sparse = new QtSoapArray(named("sparse"));
    sparse->insert(5, new Point(*point)); // its element is made in the document of the message
    message.addMethodArgument(sparse);
    const QtSoapMessage copy(message);
    QCOMPARE(&copy.method()[0], &message.method()[0]);
    QVERIFY(message.toXmlString().contains(QStringLiteral(":position=\"[5]\"")));
    const QString xml =
        message.toXmlString().replace(QStringLiteral("<p>"), QStringLiteral("<p xsi:type='point'>"));
    QVERIFY2(message.setContent(xml.toUtf8()), qPrintable(message.errorString()));
    QVERIFY(dynamic_cast<const Point*>(&message.returnValue()));
    QCOMPARE(static_cast<const Point&>(message.returnValue()).y, 4);
}

TOLVAN_CORE_TEST_MAIN(SoapTypesTest)
#include "tst_soap_types.moc"
