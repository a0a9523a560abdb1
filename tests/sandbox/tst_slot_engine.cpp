// The slot engine: what makes a time bookable, and how the offered times are ranked.
#include "SlotEngine.h"

#include "ISO.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::sandbox;

namespace {

constexpr int monday = 2;

Instant at(const QString &iso)
{
    return ISO::parse(iso).value();
}

// A host in UTC, open on Mondays 9:00-12:00, nothing booked; "now" is early on the Sunday
// before, and a week is asked for, so one Monday is in view.
SlotEngine::Query mondayMorning()
{
    SlotEngine::Query q;
    q.settings.timezone = u"UTC"_s;
    q.settings.availability = {{monday, {{9 * 60, 12 * 60}}}};
    q.settings.minNoticeMinutes = 0;
    q.type.slug = u"intro"_s;
    q.type.minutes = 30;
    q.now = at(u"2025-03-09T06:00:00Z"_s);
    q.days = 7;
    return q;
}

Booking booking(const QString &start, int minutes, BookingStatus status = BookingStatus::confirmed)
{
    Booking b;
    b.id = start;
    b.start = at(start);
    b.end = b.start.addSecs(60LL * minutes);
    b.status = status;
    return b;
}

// Starts as "09:00 09:15" in UTC, to compare with readable tables.
QString wallTimes(const QList<Slot> &slots)
{
    QStringList out;
    for (const Slot &s : slots)
        out.append(s.start.toUTC().toString(u"HH:mm"_s));
    return out.join(u' ');
}

const Slot &slotAt(const QList<Slot> &slots, const QString &iso)
{
    const auto it = std::find_if(slots.cbegin(), slots.cend(), [&](const Slot &s) { return s.start == at(iso); });
    if (it == slots.cend())
        qFatal("no slot at %s", qPrintable(iso));
    return *it;
}

} // namespace

class TestSlotEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Starts on the quarter hour within the hours, each leaving room for the whole meeting.
    void gridFitsTheAvailability()
    {
        SlotEngine::Query q = mondayMorning();
        const auto starts = [&](int from, int to, int minutes) {
            q.settings.availability = {{monday, {{from, to}}}};
            q.type.minutes = minutes;
            return wallTimes(SlotEngine::slots(q));
        };
        QCOMPARE(starts(9 * 60 + 10, 10 * 60, 30), u"09:15 09:30"_s);
        QCOMPARE(starts(9 * 60, 9 * 60 + 29, 30), QString());
        QCOMPARE(starts(9 * 60, 11 * 60, 60), u"09:00 09:15 09:30 09:45 10:00"_s);
        QCOMPARE(SlotEngine::slots(q).first().end, at(u"2025-03-10T10:00:00Z"_s));
    }

    // Notice counts from now; without any, only what has begun is out.
    void minimumNotice()
    {
        SlotEngine::Query q = mondayMorning();
        q.now = at(u"2025-03-10T09:05:00Z"_s);
        QVERIFY(wallTimes(SlotEngine::slots(q)).startsWith(u"09:15 "_s));
        q.settings.minNoticeMinutes = 60;
        QVERIFY(wallTimes(SlotEngine::slots(q)).startsWith(u"10:15 "_s));
    }

    // Active meetings block their time and the type's buffers around them; cancelled ones nothing.
    void buffersKeepTimeFreeAroundBookings()
    {
        SlotEngine::Query q = mondayMorning();
        const auto starts = [&](int before, int after, BookingStatus status) {
            q.type.bufferBefore = before;
            q.type.bufferAfter = after;
            q.bookings = {booking(u"2025-03-10T10:00:00Z"_s, 30, status)};
            return wallTimes(SlotEngine::slots(q)).remove(u" 10:45 11:00 11:15 11:30"_s); // the same in each
        };
        QCOMPARE(starts(0, 0, BookingStatus::confirmed), u"09:00 09:15 09:30 10:30"_s);
        QCOMPARE(starts(15, 0, BookingStatus::confirmed), u"09:00 09:15 09:30"_s);
        QCOMPARE(starts(0, 15, BookingStatus::pending), u"09:00 09:15 10:30"_s);
        QCOMPARE(starts(15, 15, BookingStatus::cancelled), u"09:00 09:15 09:30 09:45 10:00 10:15 10:30"_s);
    }

    void focusBlocksAreNeverOffered()
    {
        SlotEngine::Query q = mondayMorning();
        q.settings.focusBlocks = {{u"f1"_s, monday, {10 * 60, 11 * 60}, u"Deep work"_s},
                                  {u"f2"_s, monday + 1, {9 * 60, 12 * 60}, u"Another day"_s}};
        QCOMPARE(wallTimes(SlotEngine::slots(q)), u"09:00 09:15 09:30 11:00 11:15 11:30"_s);
    }

    void fullDaysAreSkipped()
    {
        SlotEngine::Query q = mondayMorning();
        q.settings.maxMeetingsPerDay = 2;
        q.settings.availability.append({monday + 1, {{9 * 60, 9 * 60 + 30}}});
        // Both outside the hours, so only the count can keep the day closed; a cancelled one doesn't count.
        q.bookings = {booking(u"2025-03-10T07:00:00Z"_s, 30), booking(u"2025-03-10T17:00:00Z"_s, 30)};
        QCOMPARE(SlotEngine::slots(q).size(), 1);
        QCOMPARE(SlotEngine::slots(q).first().start.date(), QDate(2025, 3, 11));
        q.bookings.last().status = BookingStatus::cancelled;
        QCOMPARE(SlotEngine::slots(q).size(), 12);
    }

    // The days asked for, but never beyond the host's horizon.
    void horizonLimitsTheDays()
    {
        SlotEngine::Query q = mondayMorning();
        for (int day = 1; day <= 7; ++day)
            q.settings.availability.append({day, {{8 * 60, 8 * 60 + 30}}});
        const auto days = [&](int horizon, int asked) {
            q.settings.horizonDays = horizon;
            q.days = asked;
            QSet<QDate> seen;
            for (const Slot &s : SlotEngine::slots(q))
                seen.insert(s.start.date());
            return seen.size();
        };
        QCOMPARE(days(3, 14), 3);
        QCOMPARE(days(14, 2), 2);
    }

    // New York springs forward on 9 March 2025: 9:00 is 14:00 UTC on the Saturday, and on the
    // Sunday the hour from 2:00 doesn't exist, so nothing starts in it and 3:00 is 07:00 UTC.
    void localHoursFollowDaylightSaving()
    {
        SlotEngine::Query q = mondayMorning();
        q.settings.timezone = u"America/New_York"_s;
        q.settings.availability = {{7, {{9 * 60, 9 * 60 + 30}}}, {1, {{60, 4 * 60}}}};
        q.now = at(u"2025-03-07T12:00:00Z"_s);
        QCOMPARE(wallTimes(SlotEngine::slots(q)), u"14:00 06:00 06:15 06:30 06:45 07:00 07:15 07:30"_s);
    }

    void scoresPreferTheHostsBestHours()
    {
        SlotEngine::Query q = mondayMorning();
        q.settings.availability = {{monday, {{9 * 60, 17 * 60}}}, {monday + 1, {{9 * 60, 17 * 60}}}};
        q.bookings = {booking(u"2025-03-10T14:00:00Z"_s, 30)};
        const QList<Slot> s = SlotEngine::slots(q);
        const auto score = [&](const QString &iso) { return slotAt(s, iso).score; };
        // Mid-morning beats the edges of the day.
        QVERIFY(score(u"2025-03-11T10:30:00Z"_s) > score(u"2025-03-11T09:00:00Z"_s));
        QVERIFY(score(u"2025-03-11T10:30:00Z"_s) > score(u"2025-03-11T16:00:00Z"_s));
        // Next to Monday's meeting beats the same hour on the empty Tuesday…
        QVERIFY(score(u"2025-03-10T14:30:00Z"_s) > score(u"2025-03-11T14:30:00Z"_s));
        // …but away from it, the fuller Monday loses.
        QVERIFY(score(u"2025-03-10T16:30:00Z"_s) < score(u"2025-03-11T16:30:00Z"_s));
        // A time in the guest's night scores below zero.
        QVERIFY(score(u"2025-03-11T11:30:00Z"_s) > 0);
        q.guestZone = QTimeZone("Asia/Tokyo"); // 20:30 there
        QVERIFY(slotAt(SlotEngine::slots(q), u"2025-03-11T11:30:00Z"_s).score < 0);
    }

    void bestTimesComeFromDifferentDays()
    {
        SlotEngine::Query q = mondayMorning();
        q.settings.availability.clear();
        for (int day = 2; day <= 6; ++day)
            q.settings.availability.append({day, {{9 * 60, 17 * 60}}});
        q.bookings = {booking(u"2025-03-12T11:00:00Z"_s, 60)};
        const QList<Slot> all = SlotEngine::slots(q);
        const QList<Slot> best = SlotEngine::bestOnDifferentDays(all, 4, QTimeZone::utc());
        // Four days, in time order; nothing left out beats the weakest pick but on a chosen day.
        QCOMPARE(wallTimes(best), u"10:30 10:30 10:30 10:30"_s);
        QSet<QDate> days;
        int weakest = INT_MAX;
        for (qsizetype i = 0; i < best.size(); ++i) {
            days.insert(best.at(i).start.date());
            weakest = std::min(weakest, best.at(i).score);
            QVERIFY(i == 0 || best.at(i - 1).start < best.at(i).start);
        }
        QCOMPARE(days.size(), 4);
        for (const Slot &s : all)
            QVERIFY(days.contains(s.start.date()) || s.score <= weakest);
    }
};

QTEST_GUILESS_MAIN(TestSlotEngine)
#include "tst_slot_engine.moc"
