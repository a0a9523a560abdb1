#pragma once

#include "Booking.h"
#include "Instant.h"
#include "Poll.h"
#include "WeekCalendar.h"

#include <QList>

// The three counters at the top of the Today screen, from the model's lists and the moment.
namespace quorvane::TodayCounters {

struct Counts {
    int today = 0;
    int thisWeek = 0;
    int openPolls = 0;

    bool operator==(const Counts &) const = default;
};

// `today` and `upcoming` as the model derives them. The week is the calendar week that holds
// `now` under the locale's week rules, in the calendar's zone: a Sunday belongs to the coming
// week in the US and to the ending one in Germany.
[[nodiscard]] Counts counts(const QList<Booking> &today, const QList<Booking> &upcoming, const QList<Poll> &polls,
                            const Instant &now, const WeekCalendar &calendar);

// The card asking to connect Google Calendar stays away until the account is known, so it
// does not flash during the first load.
[[nodiscard]] bool showsConnectCard(bool googleConnected, bool hasAccount);

} // namespace quorvane::TodayCounters
