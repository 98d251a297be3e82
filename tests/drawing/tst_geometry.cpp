#include "TestMain.h"

#include <utilsDll/GuiUtils.h>

#include <cmath>
#include <limits>

using namespace TOLVAN_NAMESPACE;

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

double above(double value)
{
    return std::nextafter(value, infinity);
}

double below(double value)
{
    return std::nextafter(value, -infinity);
}

} // namespace

/// Lines and circles, and rounding: the tables of the tools, with neighbours in the last place.
class GeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lineMeetsCircle()
    {
        const auto& points = lineAndCircleIntersectionPoints;
        using Points = QList<QPointF>;
        QCOMPARE(points(2, 0, 0, 0, 1, 0, 1), Points({{2, 0}, {0, 0}})); // in the order of the direction
        QCOMPARE(points(3, 0, 3, -1, 3, 4, 2), Points({{3, 6}, {3, 2}}));
        QCOMPARE(points(0, 0, 3, 4, 3, 4, 5), Points({{0, 0}, {6, 8}}));
        QCOMPARE(points(0, 0, 2, 0, 1, 1, below(1)), Points({{1, 0}}));
        QCOMPARE(points(0, 0, 2, 0, 1, 1, above(1)).size(), 2);
        QCOMPARE(points(0, 0, 2, 0, 1, 1, 1 - 2e-12), Points());
        QCOMPARE(points(0, 0, 1e-12, 0, 0, 0, 5), Points()); // no direction
        QCOMPARE(points(0, 0, above(1e-12), 0, 0, 0, 5), Points({{-5, 0}, {5, 0}}));
        QCOMPARE(points(0, 0, notANumber, 1, 0, 0, 1), Points());
    }

    void rounding()
    {
        const auto becomes = [](double value, int precision, double rounded) {
            const double result = roundWithPrecision(value, precision);
            QVERIFY2(result == rounded, qPrintable(QString::number(result, 'g', 17)));
        };
        becomes(2.345, 2, 2.35);
        becomes(-2.5, 0, -2);
        becomes(below(-2.5), 0, -3);
        becomes(123.6, -3, 124); // whole, as with the precision 0
        becomes(0.1234567890123456, 15, 0.1234567890123456);
        becomes(above(2.35), 2, above(2.35));
        becomes(1.5, 400, 1.5); // the factor is no double
        becomes(1e10, 0, 2147483647);
        becomes(notANumber, 0, 0);
        QVERIFY(std::isnan(roundWithPrecision(notANumber, 2)));
    }
};

TOLVAN_CORE_TEST_MAIN(GeometryTest)
#include "tst_geometry.moc"
