#include "today/TodayCounters.h"

#include <algorithm>

namespace quorvane::TodayCounters {

Counts counts(const QList<Booking> &today, const QList<Booking> &upcoming, const QList<Poll> &polls, const Instant &now,
              const WeekCalendar &calendar)
{
    const qint64 week = calendar.position(now).weekStartDay;
    Counts out;
    out.today = int(today.size());
    out.thisWeek = int(std::count_if(upcoming.cbegin(), upcoming.cend(), [&](const Booking &b) {
        return calendar.position(b.start).weekStartDay == week;
    }));
    out.openPolls = int(std::count_if(polls.cbegin(), polls.cend(), [](const Poll &p) { return !p.booked; }));
    return out;
}

bool showsConnectCard(bool googleConnected, bool hasAccount)
{
    return hasAccount && !googleConnected;
}

} // namespace quorvane::TodayCounters
