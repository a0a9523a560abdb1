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

// Starts as "09:00 09:15" in the given zone, to compare with readable tables.
QString wallTimes(const QList<Slot> &slots, const QTimeZone &zone = QTimeZone::utc())
{
    QStringList out;
    for (const Slot &s : slots)
        out.append(s.start.toTimeZone(zone).toString(u"HH:mm"_s));
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
    void gridFitsTheAvailability_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<int>("minutes");
        QTest::addColumn<QString>("expected");
        QTest::newRow("whole hour, 30 min") << 9 * 60 << 10 * 60 << 30 << u"09:00 09:15 09:30"_s;
        QTest::newRow("odd start rounds up to the grid") << 9 * 60 + 10 << 10 * 60 << 30 << u"09:15 09:30"_s;
        QTest::newRow("too short for the meeting") << 9 * 60 << 9 * 60 + 29 << 30 << QString();
        QTest::newRow("an hour's meeting") << 9 * 60 << 11 * 60 << 60 << u"09:00 09:15 09:30 09:45 10:00"_s;
    }
    void gridFitsTheAvailability()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(int, minutes);
        QFETCH(QString, expected);
        SlotEngine::Query q = mondayMorning();
        q.settings.availability = {{monday, {{from, to}}}};
        q.type.minutes = minutes;
        const QList<Slot> slots = SlotEngine::slots(q);
        QCOMPARE(wallTimes(slots), expected);
        for (const Slot &s : slots)
            QCOMPARE(s.start.secsTo(s.end), 60LL * minutes);
    }

    void minimumNotice_data()
    {
        QTest::addColumn<int>("notice");
        QTest::addColumn<QString>("first");
        QTest::newRow("none: only the past is out") << 0 << u"09:15"_s;
        QTest::newRow("an hour") << 60 << u"10:15"_s;
        QTest::newRow("more than the morning") << 180 << QString();
    }
    void minimumNotice()
    {
        QFETCH(int, notice);
        QFETCH(QString, first);
        SlotEngine::Query q = mondayMorning();
        q.now = at(u"2025-03-10T09:05:00Z"_s);
        q.settings.minNoticeMinutes = notice;
        QCOMPARE(wallTimes(SlotEngine::slots(q)).section(u' ', 0, 0), first);
    }

    void buffersKeepTimeFreeAroundBookings_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");
        QTest::addColumn<BookingStatus>("status");
        QTest::addColumn<QString>("expected");
        // A meeting at 10:00-10:30; the morning ends with 10:45 11:00 11:15 11:30 in every row.
        const QString tail = u" 10:45 11:00 11:15 11:30"_s;
        QTest::newRow("no buffers") << 0 << 0 << BookingStatus::confirmed << u"09:00 09:15 09:30 10:30"_s + tail;
        QTest::newRow("15 before") << 15 << 0 << BookingStatus::confirmed << u"09:00 09:15 09:30"_s + tail;
        QTest::newRow("15 after") << 0 << 15 << BookingStatus::pending << u"09:00 09:15 10:30"_s + tail;
        QTest::newRow("cancelled blocks nothing")
            << 15 << 15 << BookingStatus::cancelled << u"09:00 09:15 09:30 09:45 10:00 10:15 10:30"_s + tail;
    }
    void buffersKeepTimeFreeAroundBookings()
    {
        QFETCH(int, before);
        QFETCH(int, after);
        QFETCH(BookingStatus, status);
        QFETCH(QString, expected);
        SlotEngine::Query q = mondayMorning();
        q.type.bufferBefore = before;
        q.type.bufferAfter = after;
        q.bookings = {booking(u"2025-03-10T10:00:00Z"_s, 30, status)};
        QCOMPARE(wallTimes(SlotEngine::slots(q)), expected);
    }

    void focusBlocksAreNeverOffered()
    {
        SlotEngine::Query q = mondayMorning();
        q.settings.focusBlocks = {{u"f1"_s, monday, {10 * 60, 11 * 60}, u"Deep work"_s},
                                  {u"f2"_s, monday + 1, {9 * 60, 12 * 60}, u"Another day"_s}};
        QCOMPARE(wallTimes(SlotEngine::slots(q)), u"09:00 09:15 09:30 11:00 11:15 11:30"_s);
    }

    void fullDaysAreSkipped_data()
    {
        QTest::addColumn<BookingStatus>("secondStatus");
        QTest::addColumn<bool>("mondayOffered");
        QTest::newRow("two active meetings fill it") << BookingStatus::confirmed << false;
        QTest::newRow("a cancelled one doesn't count") << BookingStatus::cancelled << true;
    }
    void fullDaysAreSkipped()
    {
        QFETCH(BookingStatus, secondStatus);
        QFETCH(bool, mondayOffered);
        SlotEngine::Query q = mondayMorning();
        q.settings.maxMeetingsPerDay = 2;
        q.settings.availability.append({monday + 1, {{9 * 60, 10 * 60}}});
        // Both outside the hours, so only the count can keep the day closed.
        q.bookings = {booking(u"2025-03-10T07:00:00Z"_s, 30), booking(u"2025-03-10T17:00:00Z"_s, 30, secondStatus)};
        const QList<Slot> slots = SlotEngine::slots(q);
        const bool offered = std::any_of(slots.cbegin(), slots.cend(),
                                         [](const Slot &s) { return s.start.date() == QDate(2025, 3, 10); });
        QCOMPARE(offered, mondayOffered);
        QCOMPARE(slots.last().start.date(), QDate(2025, 3, 11));
    }

    void horizonLimitsTheDays_data()
    {
        QTest::addColumn<int>("horizon");
        QTest::addColumn<int>("days");
        QTest::addColumn<int>("expectedDays");
        QTest::newRow("horizon shorter than asked") << 3 << 14 << 3;
        QTest::newRow("asked shorter than horizon") << 14 << 2 << 2;
        QTest::newRow("no horizon") << 0 << 14 << 0;
    }
    void horizonLimitsTheDays()
    {
        QFETCH(int, horizon);
        QFETCH(int, days);
        QFETCH(int, expectedDays);
        SlotEngine::Query q = mondayMorning();
        q.settings.availability.clear();
        for (int day = 1; day <= 7; ++day)
            q.settings.availability.append({day, {{9 * 60, 10 * 60}}});
        q.settings.horizonDays = horizon;
        q.days = days;
        QSet<QDate> seen;
        for (const Slot &s : SlotEngine::slots(q))
            seen.insert(s.start.date());
        QCOMPARE(int(seen.size()), expectedDays);
    }

    // New York springs forward on 9 March 2025: 9:00 is 14:00 UTC before and 13:00 after.
    void localHoursFollowDaylightSaving_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QString>("firstUtc");
        QTest::newRow("Saturday, standard time") << QDate(2025, 3, 8) << u"2025-03-08T14:00:00Z"_s;
        QTest::newRow("Sunday, the change") << QDate(2025, 3, 9) << u"2025-03-09T13:00:00Z"_s;
        QTest::newRow("Monday, daylight time") << QDate(2025, 3, 10) << u"2025-03-10T13:00:00Z"_s;
    }
    void localHoursFollowDaylightSaving()
    {
        QFETCH(QDate, date);
        QFETCH(QString, firstUtc);
        SlotEngine::Query q = mondayMorning();
        q.settings.timezone = u"America/New_York"_s;
        q.settings.availability = {{SlotEngine::weekday(date), {{9 * 60, 9 * 60 + 30}}}};
        q.now = at(u"2025-03-07T12:00:00Z"_s);
        const QList<Slot> slots = SlotEngine::slots(q);
        QCOMPARE(slots.size(), 1);
        QCOMPARE(slots.first().start, at(firstUtc));
    }

    void theMissingHourIsNeverOffered()
    {
        SlotEngine::Query q = mondayMorning();
        q.settings.timezone = u"America/New_York"_s;
        q.settings.availability = {{SlotEngine::weekday(QDate(2025, 3, 9)), {{60, 4 * 60}}}};
        q.now = at(u"2025-03-08T12:00:00Z"_s);
        const QTimeZone ny("America/New_York");
        const QList<Slot> slots = SlotEngine::slots(q);
        QCOMPARE(wallTimes(slots, ny), u"01:00 01:15 01:30 01:45 03:00 03:15 03:30"_s);
        for (const Slot &s : slots)
            QCOMPARE(s.start.secsTo(s.end), 1800);
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
    }

    void aTimeInTheGuestsNightScoresBelowZero()
    {
        SlotEngine::Query q = mondayMorning();
        const int daytime = slotAt(SlotEngine::slots(q), u"2025-03-10T11:30:00Z"_s).score;
        q.guestZone = QTimeZone("Asia/Tokyo"); // 20:30 there
        const int night = slotAt(SlotEngine::slots(q), u"2025-03-10T11:30:00Z"_s).score;
        QVERIFY(night < daytime);
        QVERIFY(night < 0);
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
        QCOMPARE(best.size(), 4);
        QSet<QDate> days;
        for (qsizetype i = 0; i < best.size(); ++i) {
            days.insert(best.at(i).start.date());
            if (i > 0)
                QVERIFY(best.at(i - 1).start < best.at(i).start);
        }
        QCOMPARE(days.size(), 4);
        // Nothing left out beats the weakest pick, except on a day already chosen.
        const int weakest = std::min_element(best.cbegin(), best.cend(), [](auto &a, auto &b) { return a.score < b.score; })->score;
        for (const Slot &s : all)
            QVERIFY(days.contains(s.start.date()) || s.score <= weakest);
    }
};

QTEST_GUILESS_MAIN(TestSlotEngine)
#include "tst_slot_engine.moc"
