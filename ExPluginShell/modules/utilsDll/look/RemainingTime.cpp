#include "look/RemainingTime.h"

#include <cmath>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr qint64 window = 10'000;  // ms that the speed is taken from
constexpr qint64 interval = 200;   // ms between two samples
constexpr qint64 firstView = 2000; // ms before an estimate is given

} // namespace

void RemainingTime::add(qint64 milliseconds, qint64 done, qint64 total)
{
    const bool startsAnew = total != m_total || (!m_samples.empty() && done < m_samples.back().done);
    if (startsAnew) {
        m_samples.clear();
        m_total = total;
    }
    if (m_samples.size() > 1 && milliseconds - m_samples[m_samples.size() - 2].time < interval) {
        m_samples.pop_back();
    }
    m_samples.push_back({milliseconds, done});
    while (milliseconds - m_samples.front().time > window && m_samples.size() > 2) {
        m_samples.pop_front();
    }
}

int RemainingTime::seconds() const
{
    if (m_samples.empty() || m_total <= 0) {
        return -1;
    }
    const qint64 time = m_samples.back().time - m_samples.front().time;
    const qint64 done = m_samples.back().done - m_samples.front().done;
    if (time < firstView || done <= 0) {
        return -1;
    }
    const double speed = double(done) / double(time); // per millisecond
    const double left = double(qMax<qint64>(0, m_total - m_samples.back().done)) / speed / 1000.0;
    constexpr double longest = 100.0 * 3600.0;
    return int(std::ceil(qMin(left, longest)));
}

QString RemainingTime::text() const
{
    constexpr int few = 5;
    constexpr int minute = 60;
    constexpr int hour = 60 * minute;
    const int left = seconds();
    if (left < 0) {
        return {};
    }
    if (left <= few) {
        return tr("A few seconds left");
    }
    if (left < minute) {
        return tr("About %n seconds left", nullptr, (left + few - 1) / few * few);
    }
    if (left < hour) {
        return tr("About %n minutes left", nullptr, (left + minute / 2) / minute);
    }
    return tr("About %n hours left", nullptr, (left + hour / 2) / hour);
}

} // namespace TOLVAN_NAMESPACE
