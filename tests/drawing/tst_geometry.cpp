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
    void lineMeetsCircle_data();
    void lineMeetsCircle();
    void pointsLieOnBoth();
    void rounding_data();
    void rounding();
};

void GeometryTest::lineMeetsCircle_data()
{
    QTest::addColumn<QList<double>>("line");
    QTest::addColumn<QList<double>>("circle");
    QTest::addColumn<QList<QPointF>>("points");
    const auto row = [](const char* name, QList<double> line, QList<double> circle, QList<QPointF> points) {
        QTest::newRow(name) << line << circle << points;
    };
    const QList<double> axis{0, 0, 2, 0};
    row("other direction, other order", {2, 0, 0, 0}, {1, 0, 1}, {{2, 0}, {0, 0}});
    row("upright", {3, 0, 3, -1}, {3, 4, 2}, {{3, 6}, {3, 2}});
    row("radius a last place short", axis, {1, 1, below(1)}, {{1, 0}});
    row("radius short by 12 digits", axis, {1, 1, 1 - 2e-12}, {});
    row("points at 1e-12", {0, 0, 1e-12, 0}, {0, 0, 5}, {});
    row("points just further apart", {0, 0, above(1e-12), 0}, {0, 0, 5}, {{-5, 0}, {5, 0}});
    row("not a number", {0, 0, notANumber, 1}, {0, 0, 1}, {});
}

void GeometryTest::lineMeetsCircle()
{
    QFETCH(const QList<double>, line);
    QFETCH(const QList<double>, circle);
    QFETCH(const QList<QPointF>, points);
    QCOMPARE(
        lineAndCircleIntersectionPoints(line[0], line[1], line[2], line[3], circle[0], circle[1], circle[2]),
        points);
}

void GeometryTest::pointsLieOnBoth()
{
    // A radius that is larger in the last place only still gives two points.
    QCOMPARE(lineAndCircleIntersectionPoints(0, 0, 2, 0, 1, 1, above(1)).size(), 2);
    for (int degrees = 0; degrees < 360; degrees += 7) {
        const double angle = degrees * M_PI / 180.0;
        const double dx = 1e5 * std::cos(angle);
        const double dy = 1e5 * std::sin(angle);
        const auto points = lineAndCircleIntersectionPoints(-7, 3, -7 + dx, 3 + dy, 11, 13, 500);
        QCOMPARE(points.size(), 2);
        for (const QPointF& point : points) {
            QVERIFY(std::abs(std::hypot(point.x() - 11, point.y() - 13) - 500) < 1e-9);
            QVERIFY(std::abs((point.x() + 7) * dy - (point.y() - 3) * dx) / 1e5 < 1e-9);
        }
        const QPointF way = points[1] - points[0];
        QVERIFY(way.x() * dx + way.y() * dy > 0); // first the one that the direction meets first
    }
}

void GeometryTest::rounding_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("precision");
    QTest::addColumn<double>("rounded");

    const auto row = [](const char* name, double value, int precision, double rounded) {
        QTest::newRow(name) << value << precision << rounded;
    };
    row("half up", 2.345, 2, 2.35);
    row("whole, negative half up", -2.5, 0, -2);
    row("whole, beyond the negative half", below(-2.5), 0, -3);
    row("negative precision rounds whole", 123.6, -3, 124);
    row("differs beyond 12 digits only", 0.1234567890123456, 15, 0.1234567890123456);
    row("last place above stays", above(2.35), 2, above(2.35));
    row("factor beyond a double", 1.5, 400, 1.5);
    row("beyond the integers", 1e10, 0, 2147483647);
    row("not a number", notANumber, 0, 0);
}

void GeometryTest::rounding()
{
    QFETCH(double, value);
    QFETCH(int, precision);
    QFETCH(double, rounded);
    const double result = roundWithPrecision(value, precision);
    QVERIFY2(result == rounded, qPrintable(QString::number(result, 'g', 17)));
    QVERIFY(std::isnan(roundWithPrecision(notANumber, 2)));
}

TOLVAN_CORE_TEST_MAIN(GeometryTest)
#include "tst_geometry.moc"
