#include "SoapCall.h"

using namespace SoapCall;

namespace
{

QtSoapSimpleType* number(int n)
{
    return value("n", n);
}

} // namespace

/// Arrays: positions of 1 to 5 dimensions, refusals, iterators, and their form in messages. References between
/// elements, which form lists as well.
class SoapArraysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arrayPositions()
    {
        QtSoapArray grid(named("grid"), QtSoapType::Int, 3, 2);
        grid.insert(1, 1, number(11));
        grid.insert(5, number(21));
        grid.insert(1, 1, number(12)); // replaces
        QCOMPARE(grid.count(), 2);
        QCOMPARE(grid.at(3).toInt(), 12);
        QCOMPARE(grid.at(2, 1).toInt(), 21);
        QtSoapArray deep(named("deep"), QtSoapType::Int, 2, 2, 2, 2, 2);
        deep.insert(1, 0, 1, 0, 1, number(5));
        QCOMPARE(deep.at(0x15).toInt(), 5);
        QCOMPARE(deep.at(1, 0, 1, 0, 1).toInt(), 5);
        QtSoapArray line;
        line.append(number(1));
        line.insert(9, number(2));
        line.append(number(3));
        QCOMPARE(line[10].toInt(), 3);
        QCOMPARE(line[text("n")].toInt(), 1);
        line.clear();
        QVERIFY(line.count() == 0 && line.isValid());
        grid.clear();
        QTest::ignoreMessage(QtWarningMsg, "SOAP: The array \"grid\" has no such position");
        grid.insert(0, 0, number(0)); // the dimensions are gone
        QCOMPARE(grid.count(), 0);
    }

    void arrayRefuses()
    {
        constexpr int appended = -2;
        const struct {
            int rows, columns; // -1: none
            int position;
        } refused[] = {{-1, -1, -1}, {2, 2, 4}, {2, 2, appended}, {1, -1, appended}};
        for (const auto& [rows, columns, position] : refused) {
            QtSoapArray array(named("a"), QtSoapType::Other, rows, columns);
            array.insert(0, number(1));
            QTest::ignoreMessage(QtWarningMsg, "SOAP: The array \"a\" has no such position");
            if (position == appended) {
                array.append(number(2));
            } else {
                array.insert(position, number(2)); // deleted, which the address sanitizer sees
            }
            QCOMPARE(array.count(), 1);
            QCOMPARE(array.errorString(), text("The array \"a\" has no such position"));
            array.insert(0, number(3));
            QVERIFY(array.errorString().isEmpty() && array[0].toInt() == 3);
        }
    }

    void mixedItemsAreKept()
    {
        auto* const array = new QtSoapArray(named("a"), QtSoapType::Int);
        array->append(value("nil")); // fits every type
        array->append(number(1));
        QtSoapMessage message = request("m", {array}), read;
        QVERIFY(message.toXmlString().contains(text("arrayType=\"xsd:int[2]\"")));
        array->append(structure("s", {value("t", "x")}));
        array->append(value("t", "y"));
        QVERIFY(message.toXmlString().contains(text("arrayType=\"xsd:anyType[4]\"")));
        QVERIFY(read.setContent(message.toXmlString().toUtf8()));
        QCOMPARE(described(read.returnValue()),
                 text("a[0:nil:string nil 1:n:int=1 2:s{t:string=x} 3:t:string=y]"));
    }

    void arrayIteratorVisitsInOrder()
    {
        QtSoapArray grid(named("grid"), QtSoapType::Int, 40, 5);
        for (int k = 199; k >= 0; k -= 3) {
            grid.insert(k, number(k));
        }
        int last = -1, visited = 0;
        QtSoapArrayIterator it(grid);
        for (; !it.atEnd(); ++it, ++visited) {
            int row = -1, column = -1, beyond = -7;
            it.pos(&row, &column, &beyond);
            it.pos(nullptr, &column);
            QVERIFY(it.pos() > last && beyond == -7);
            QCOMPARE(row * 5 + column, it.pos());
            QCOMPARE(it.current()->toInt(), it.pos());
            last = it.pos();
        }
        QCOMPARE(visited, grid.count());
        QVERIFY(!it.data() && !it.current());
        QVERIFY(it != QtSoapArrayIterator(grid));
    }

    /// The items of a long array that was read lie in blocks; nothing of that can be seen.
    void longArrays()
    {
        constexpr int items = 1000;
        QByteArray all;
        for (int k = 0; k < items; ++k) {
            all += k == 700 ? QByteArray("<s><t>x</t></s>") : "<i>" + QByteArray::number(k) + "</i>";
        }
        QtSoapMessage message, again;
        QVERIFY(message.setContent(envelope("<r><a c:arrayType='d:int[]'>" + all + "</a></r>")));
        auto& array = const_cast<QtSoapArray&>(dynamic_cast<const QtSoapArray&>(message.returnValue()));
        QtSoapArray copy(array);
        QCOMPARE(array.count(), items);
        QCOMPARE(array[699].toInt(), 699);
        QCOMPARE(described(array[700]), text("s{t:string=x}"));
        QVERIFY(!array[items].isValid() && !array.at(-1).isValid());
        array.insert(500, number(5000));
        array.append(number(1));
        QCOMPARE(array.count(), items + 1);
        QCOMPARE(array[500].toInt() + array[items].toInt(), 5001);
        QVERIFY(again.setContent(message.toXmlString().toUtf8()));
        QCOMPARE(described(again.returnValue()), described(array));
        QCOMPARE(copy[500].toInt(), 500);
        copy = array;
        QCOMPARE(described(copy), described(array));
        array.clear();
        QCOMPARE(array.count() + array.at(400).toInt(), 0);
    }

    void arrays_data()
    {
        QTest::addColumn<QByteArray>("attributes");
        QTest::addColumn<QByteArray>("items");
        QTest::addColumn<QString>("contents"); // as described() has it
        const auto row = [](const char* attributes, const char* items, const char* contents) {
            QTest::newRow(attributes) << QByteArray(attributes) << QByteArray(items) << text(contents);
        };
        row("c:arrayType='d:int[]'", "<i>1</i> <j>2</j>", "a[0:i:int=1 1:j:int=2]");
        row("i:type='c:Array'", "<i>1</i><i>2</i>", "a[0:i:string=1 1:i:string=2]");
        row("c:arrayType='d:int[0]'", "", "a[]");
        row("c:arrayType='d:int[ 2 , 2 ]'", "<i>1</i><i>2</i><i>3</i>", "a[0:i:int=1 1:i:int=2 2:i:int=3]");
        row("c:arrayType='d:int[2,2,3]'", "<i c:position='[1,0,2]'>1</i><i>2</i>", "a[8:i:int=1 9:i:int=2]");
        row("c:arrayType='d:int[2,2,2,2]'", "<i c:position='[1,1,1,1]'>1</i>", "a[15:i:int=1]");
        row("c:arrayType='d:int[,2]'", "<i c:position='[2,1]'>1</i>", "a[5:i:int=1]");
        row("c:arrayType='d:int[5]' c:offset='[2]'", "<i>1</i><i>2</i>", "a[2:i:int=1 3:i:int=2]");
        row("c:arrayType='d:int[2,2]' c:offset='[1,0]'", "<i>1</i>", "a[2:i:int=1]");
        row("c:arrayType='d:int[9]'", "<i c:position='[7]'>1</i><i c:position='[2]'>2</i>",
            "a[2:i:int=2 7:i:int=1]");
        row("c:arrayType='d:anyType[2]'", "<i i:type='d:int'>1</i><i i:type='d:string'>2</i>",
            "a[0:i:int=1 1:i:string=2]");
        row("c:arrayType='d:int[][2]'",
            "<i c:arrayType='d:int[1]'><j>4</j></i><i><j i:type='d:int'>5</j></i>",
            "a[0:i[0:j:int=4] 1:i[0:j:int=5]]");
    }

    void arrays()
    {
        QFETCH(QByteArray, attributes);
        QFETCH(QByteArray, items);
        QtSoapMessage message, again;
        QVERIFY2(message.setContent(envelope("<r><a " + attributes + ">" + items + "</a></r>")),
                 qPrintable(message.errorString()));
        QTEST(described(message.returnValue()), "contents");
        QVERIFY2(again.setContent(message.toXmlString().toUtf8()), qPrintable(again.errorString()));
        QTEST(described(again.returnValue()), "contents"); // as written by the library
    }

    void references_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("contents"); // of the first entry; or the error
        QTest::newRow("entries of the body")
            << QByteArray("<r><v href='#1'/></r><multiRef id='1'><n href='#2'/></multiRef>"
                          "<multiRef id='2' i:type='d:int'>7</multiRef>")
            << "r{v{n:int=7}}";
        QTest::newRow("shared inside")
            << QByteArray("<r><a id='1'><x>1</x></a><b href='#1'/><c href='#1'/></r>")
            << "r{a{x:string=1} b{x:string=1} c{x:string=1}}";
        QTest::newRow("array, and its items")
            << QByteArray("<r><l href='#1'/></r><m id='1' c:arrayType='d:int[2]'><i href='#2'/><i>3</i></m>"
                          "<m id='2' i:type='d:int'>2</m>")
            << "r{l[0:i:int=2 1:i:int=3]}";
        QTest::newRow("to something outside")
            << QByteArray("<r><v href='cid:1'/><w href='#gone'/></r>") << "r{v:string nil w:string nil}";
        QTest::newRow("to itself") << QByteArray("<r><v id='1' href='#1'/></r>") << "refers to itself";
        QTest::newRow("in a circle") << QByteArray("<r><a id='1'><b href='#1'/></a></r>")
                                     << "refers to itself";
        QByteArray bomb = "<r href='#9'/><m id='0'><x/></m>";
        for (char k = '1'; k <= '9'; ++k) {
            const QByteArray one = QByteArray("<x href='#") + char(k - 1) + "'/>";
            bomb += QByteArray("<m id='") + k + "'>" + one.repeated(10) + "</m>";
        }
        QTest::newRow("ten to the ninth") << bomb << "References make";
        QByteArray deep = "<r href='#0'/>";
        for (int k = 0; k < 300; ++k) {
            deep += text("<m id='%1'><x href='#%2'/></m>").arg(k).arg(k + 1).toUtf8();
        }
        QTest::newRow("300 levels") << deep << "References nest";
    }

    void references()
    {
        QFETCH(QByteArray, body);
        QFETCH(QString, contents);
        QtSoapMessage message, again;
        const bool read = message.setContent(envelope(body));
        if (!contents.startsWith(text("r{"))) {
            QVERIFY(!read);
            QVERIFY2(message.errorString().contains(contents), qPrintable(message.errorString()));
            return;
        }
        QVERIFY2(read, qPrintable(message.errorString()));
        QCOMPARE(described(message.method()), contents);
        QVERIFY(message.method()[message.method().count() - 1].href().startsWith(QLatin1Char('#')));
        QVERIFY(again.setContent(message.toXmlString().toUtf8())); // written out
        QCOMPARE(described(again.method()), contents);
        QCOMPARE(again.bodyItemCount(), message.bodyItemCount());
    }
};

TOLVAN_CORE_TEST_MAIN(SoapArraysTest)
#include "tst_soap_arrays.moc"
