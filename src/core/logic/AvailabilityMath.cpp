#include "AvailabilityMath.h"

#include <algorithm>
#include <cmath>

namespace quorvane::AvailabilityMath {

int snap(int minute, int step)
{
    if (step <= 0)
        return std::clamp(minute, 0, dayMinutes);
    // std::round takes halves away from zero, which the grid relies on.
    const double steps = std::round(double(minute) / double(step));
    const double snapped = std::clamp(steps * step, 0.0, double(dayMinutes));
    return int(snapped);
}

QList<TimeRange> normalize(const QList<TimeRange> &ranges)
{
    QList<TimeRange> sorted;
    sorted.reserve(ranges.size());
    std::copy_if(ranges.cbegin(), ranges.cend(), std::back_inserter(sorted),
                 [](const TimeRange &r) { return r.start < r.end; });
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const TimeRange &a, const TimeRange &b) { return a.start < b.start; });

    QList<TimeRange> merged;
    for (const TimeRange &range : std::as_const(sorted)) {
        if (!merged.isEmpty() && merged.last().end >= range.start)
            merged.last().end = std::max(merged.last().end, range.end);
        else
            merged.append(range);
    }
    return merged;
}

TimeRange move(const TimeRange &range, int delta)
{
    const int length = range.duration();
    const int start = std::min(snap(range.start + delta), dayMinutes - length);
    return {start, start + length};
}

TimeRange resize(const TimeRange &range, Edge edge, int minute, int minLength)
{
    const int s = snap(minute);
    if (edge == Edge::start)
        return {std::min(s, range.end - minLength), range.end};
    return {range.start, std::max(s, range.start + minLength)};
}

QList<DayAvailability> set(const QList<DayAvailability> &days, int weekday, const QList<TimeRange> &ranges)
{
    QList<DayAvailability> result;
    std::copy_if(days.cbegin(), days.cend(), std::back_inserter(result),
                 [weekday](const DayAvailability &d) { return d.weekday != weekday; });
    const QList<TimeRange> merged = normalize(ranges);
    if (!merged.isEmpty())
        result.append(DayAvailability{weekday, merged});
    std::stable_sort(result.begin(), result.end(),
                     [](const DayAvailability &a, const DayAvailability &b) { return a.weekday < b.weekday; });
    return result;
}

int totalMinutes(const QList<DayAvailability> &days)
{
    int total = 0;
    for (const DayAvailability &day : days)
        for (const TimeRange &range : day.ranges)
            total += range.duration();
    return total;
}

QString label(int minute)
{
    // 1440 wraps to hour 0 and so reads as midnight, the end of the day.
    const int hour = (minute / 60) % 24;
    const int m = minute % 60;
    const int twelve = hour % 12 == 0 ? 12 : hour % 12;
    const QString suffix = hour < 12 ? QStringLiteral("AM") : QStringLiteral("PM");
    if (m == 0)
        return QStringLiteral("%1 %2").arg(twelve).arg(suffix);
    return QStringLiteral("%1:%2 %3").arg(twelve).arg(m, 2, 10, QLatin1Char('0')).arg(suffix);
}

} // namespace quorvane::AvailabilityMath
