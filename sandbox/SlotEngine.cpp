#include "SlotEngine.h"

#include <QSet>

#include <algorithm>

namespace quorvane::sandbox::SlotEngine {

namespace {

// The ranking: mid-morning is the host's best time, every meeting already on a day makes it
// worse, a time next to another meeting keeps the rest of the day in one piece, sooner is a
// little better, and a time in the guest's night is much worse.
constexpr int peakMinute = 10 * 60 + 30;
constexpr int peakScore = 40;
constexpr int minutesPerPoint = 6;
constexpr int perMeetingThatDay = 8;
constexpr int adjacentBonus = 12;
constexpr int adjacentGapMinutes = 15;
constexpr int guestNightPenalty = 30;
constexpr int guestDayStartHour = 8;
constexpr int guestDayEndHour = 20;

struct Candidate {
    Instant start;
    Instant end;
    int localMinute = 0;
};

bool overlaps(const Instant &a0, const Instant &a1, const Instant &b0, const Instant &b1)
{
    return a0 < b1 && b0 < a1;
}

QList<TimeRange> rangesOn(const HostSettings &settings, int day)
{
    QList<TimeRange> out;
    for (const DayAvailability &a : settings.availability) {
        if (a.weekday == day)
            out.append(a.ranges);
    }
    return out;
}

bool inFocusBlock(const HostSettings &settings, int day, int startMinute, int endMinute)
{
    return std::any_of(settings.focusBlocks.cbegin(), settings.focusBlocks.cend(), [&](const FocusBlock &f) {
        return f.weekday == day && startMinute < f.range.end && f.range.start < endMinute;
    });
}

bool blockedByBooking(const QList<Booking> &active, const Candidate &c, const EventType &type)
{
    const Instant from = c.start.addSecs(-60LL * type.bufferBefore);
    const Instant to = c.end.addSecs(60LL * type.bufferAfter);
    return std::any_of(active.cbegin(), active.cend(),
                       [&](const Booking &b) { return overlaps(from, to, b.start, b.end); });
}

bool nextToBooking(const QList<Booking> &active, const Candidate &c, const EventType &type)
{
    const qint64 before = 60LL * (type.bufferBefore + adjacentGapMinutes);
    const qint64 after = 60LL * (type.bufferAfter + adjacentGapMinutes);
    return std::any_of(active.cbegin(), active.cend(), [&](const Booking &b) {
        const qint64 gapBefore = b.end.secsTo(c.start);
        const qint64 gapAfter = c.end.secsTo(b.start);
        return (gapBefore >= 0 && gapBefore <= before) || (gapAfter >= 0 && gapAfter <= after);
    });
}

int score(const Query &q, const Candidate &c, int meetingsThatDay, bool adjacent, int daysAhead)
{
    int s = peakScore - std::abs(c.localMinute - peakMinute) / minutesPerPoint;
    s -= perMeetingThatDay * meetingsThatDay;
    s -= daysAhead;
    if (adjacent)
        s += adjacentBonus;
    if (q.guestZone.isValid()) {
        const int hour = c.start.toTimeZone(q.guestZone).time().hour();
        if (hour < guestDayStartHour || hour >= guestDayEndHour)
            s -= guestNightPenalty;
    }
    return s;
}

// The grid times of one local day, skipping local times that don't exist (the hour a
// clock springs forward).
QList<Candidate> gridOf(const Query &q, const QDate &date, const QTimeZone &zone)
{
    QList<Candidate> out;
    const int day = weekday(date);
    for (const TimeRange &range : rangesOn(q.settings, day)) {
        const int first = (std::max(range.start, 0) + gridMinutes - 1) / gridMinutes * gridMinutes;
        for (int m = first; m + q.type.minutes <= range.end && m < 24 * 60; m += gridMinutes) {
            const QTime wall(m / 60, m % 60);
            const QDateTime local(date, wall, zone);
            if (!local.isValid() || local.time() != wall || local.date() != date)
                continue;
            if (inFocusBlock(q.settings, day, m, m + q.type.minutes))
                continue;
            const Instant start = local.toUTC();
            out.append({start, start.addSecs(60LL * q.type.minutes), m});
        }
    }
    std::sort(out.begin(), out.end(), [](const Candidate &a, const Candidate &b) { return a.start < b.start; });
    return out;
}

} // namespace

int weekday(const QDate &date)
{
    return date.dayOfWeek() % 7 + 1;
}

QTimeZone hostZone(const HostSettings &settings)
{
    const QTimeZone zone(settings.timezone.toUtf8());
    return zone.isValid() ? zone : QTimeZone::systemTimeZone();
}

QList<Slot> slots(const Query &q)
{
    const int span = std::min(q.days, q.settings.horizonDays);
    const QTimeZone zone = hostZone(q.settings);
    const QDate today = q.now.toTimeZone(zone).date();
    const Instant earliest = q.now.addSecs(60LL * std::max(q.settings.minNoticeMinutes, 0));

    QList<Booking> active;
    std::copy_if(q.bookings.cbegin(), q.bookings.cend(), std::back_inserter(active),
                 [](const Booking &b) { return b.isActive(); });

    QList<Slot> out;
    for (int offset = 0; offset < span; ++offset) {
        const QDate date = today.addDays(offset);
        const auto meetingsThatDay = std::count_if(
            active.cbegin(), active.cend(), [&](const Booking &b) { return b.start.toTimeZone(zone).date() == date; });
        if (meetingsThatDay >= q.settings.maxMeetingsPerDay)
            continue;
        for (const Candidate &c : gridOf(q, date, zone)) {
            if (c.start < earliest || blockedByBooking(active, c, q.type))
                continue;
            const bool adjacent = nextToBooking(active, c, q.type);
            out.append(Slot{c.start, c.end, score(q, c, int(meetingsThatDay), adjacent, offset)});
        }
    }
    return out;
}

QList<Slot> bestOnDifferentDays(QList<Slot> candidates, int count, const QTimeZone &zone)
{
    std::stable_sort(candidates.begin(), candidates.end(), [](const Slot &a, const Slot &b) {
        return a.score != b.score ? a.score > b.score : a.start < b.start;
    });
    QList<Slot> picked;
    QSet<QDate> days;
    for (const Slot &slot : candidates) {
        if (picked.size() >= count)
            break;
        const QDate day = slot.start.toTimeZone(zone).date();
        if (days.contains(day))
            continue;
        days.insert(day);
        picked.append(slot);
    }
    std::sort(picked.begin(), picked.end(), [](const Slot &a, const Slot &b) { return a.start < b.start; });
    return picked;
}

} // namespace quorvane::sandbox::SlotEngine
