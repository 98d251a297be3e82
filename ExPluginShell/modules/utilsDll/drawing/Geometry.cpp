#include "GuiUtils.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr double tiny = 1e-12;

/// The rule of qFuzzyCompare(), written out so that the results stay the same with every version of Qt.
bool areRelativelyEqual(double a, double b)
{
    return std::abs(a - b) * 1e12 <= std::min(std::abs(a), std::abs(b));
}

/// The rule of qRound() for every double; qRound() itself is undefined beyond the range of int.
int roundToInteger(double value)
{
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    if (std::isnan(value)) {
        return 0;
    }
    const double whole = value >= 0.0 ? std::trunc(value + 0.5) : std::floor(value + 0.5);
    return static_cast<int>(std::clamp(whole, lowest, highest));
}

} // namespace

QList<QPointF> lineAndCircleIntersectionPoints(double x1, double y1, double x2, double y2, double cx,
                                               double cy, double radius)
{
    const double dx = x2 - x1;
    const double dy = y2 - y1;
    const double length = std::sqrt(dx * dx + dy * dy);
    if (length <= tiny) {
        return {};
    }
    const double ux = dx / length;
    const double uy = dy / length;
    const double t = (cx - x1) * ux + (cy - y1) * uy;
    const QPointF foot(x1 + t * ux, y1 + t * uy);
    const double distance = std::sqrt((foot.x() - cx) * (foot.x() - cx) + (foot.y() - cy) * (foot.y() - cy));
    if (radius > distance) {
        const double h = std::sqrt(radius * radius - distance * distance);
        return {{x1 + (t - h) * ux, y1 + (t - h) * uy}, {x1 + (t + h) * ux, y1 + (t + h) * uy}};
    }
    return areRelativelyEqual(distance, radius) ? QList<QPointF>{foot} : QList<QPointF>{};
}

double roundWithPrecision(double value, int precision)
{
    constexpr int commonPrecision = 2;
    if (precision <= 0 || value == 0.0) {
        return roundToInteger(value);
    }
    const double factor = precision == commonPrecision ? 100.0 : std::pow(10.0, precision);
    double whole = 0.0;
    const double fraction = std::modf(value * factor, &whole);
    if (std::abs(fraction) <= tiny) {
        return value;
    }
    const double candidate = (roundToInteger(fraction) + whole) / factor;
    return areRelativelyEqual(value, candidate) ? value : candidate;
}

} // namespace TOLVAN_NAMESPACE
