#include "WeekSentence.h"

#include "AvailabilityMath.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quorvane::WeekSentence {

namespace {

const QStringList names{u"Sun"_s, u"Mon"_s, u"Tue"_s, u"Wed"_s, u"Thu"_s, u"Fri"_s, u"Sat"_s};

int mondayFirst(int weekday)
{
    return (weekday + 5) % 7;
}

// The days as the box reads them. A run of three or more becomes a span; other sets are
// listed with blanks, since the box reads a span or names, never both in one clause.
QString daysText(QList<int> days)
{
    std::sort(days.begin(), days.end());
    if (days.size() == 7)
        return u"Every day"_s;
    if (days == QList<int>{2, 3, 4, 5, 6})
        return u"Weekdays"_s;
    if (days == QList<int>{1, 7})
        return u"Weekends"_s;
    if (days.size() >= 3 && days.last() - days.first() == days.size() - 1)
        return names[days.first() - 1] + u'\u2013' + names[days.last() - 1];
    std::sort(days.begin(), days.end(), [](int a, int b) { return mondayFirst(a) < mondayFirst(b); });
    QStringList out;
    for (const int day : days)
        out << names[day - 1];
    return out.join(u' ');
}

// An end as the box reads it: a suffix keeps the hour as written, so the first hour of the
// day ends as "0:30 AM"; midnight at the end of the day is "24:00", since "12 AM" reads as noon
// there.
QString endText(int minute)
{
    if (minute >= AvailabilityMath::dayMinutes)
        return u"24:00"_s;
    if (minute < 60)
        return u"0:%1 AM"_s.arg(minute, 2, 10, QChar(u'0'));
    return AvailabilityMath::label(minute);
}

} // namespace

QString describe(const QList<DayAvailability> &days)
{
    // Days with the same hours, in the order the week is shown.
    QList<DayAvailability> ordered;
    for (const DayAvailability &day : days) {
        if (!day.ranges.isEmpty() && day.weekday >= 1 && day.weekday <= 7)
            ordered << day;
    }
    std::stable_sort(ordered.begin(), ordered.end(), [](const DayAvailability &a, const DayAvailability &b) {
        return mondayFirst(a.weekday) < mondayFirst(b.weekday);
    });
    QList<std::pair<QList<int>, QList<TimeRange>>> groups;
    for (const DayAvailability &day : std::as_const(ordered)) {
        const auto same =
            std::find_if(groups.begin(), groups.end(), [&](const auto &g) { return g.second == day.ranges; });
        if (same != groups.end())
            same->first << day.weekday;
        else
            groups.append({{day.weekday}, day.ranges});
    }
    if (groups.isEmpty())
        return u"No working hours"_s;
    QStringList clauses;
    for (const auto &[weekdays, ranges] : std::as_const(groups)) {
        const QString when = daysText(weekdays);
        for (const TimeRange &r : ranges)
            clauses << when + u' ' + AvailabilityMath::label(r.start) + u'\u2013' + endText(r.end);
    }
    return clauses.join(u", "_s);
}

} // namespace quorvane::WeekSentence
