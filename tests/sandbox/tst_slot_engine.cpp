// The slot engine: what makes a time bookable, and how the offered times are ranked.
#include "SlotEngine.h"

#include "ISO.h"

#include <QTest>

#include <functional>

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

// Half an hour from `start`.
Booking booking(const QString &start, BookingStatus status = BookingStatus::confirmed)
{
    Booking b;
    b.id = start;
    b.start = at(start);
    b.end = b.start.addSecs(1800);
    b.status = status;
    return b;
}

// Starts as "09:00 09:15" in UTC, to compare with readable tables.
QString wallTimes(const QList<Slot> &slots, const QString &format = u"HH:mm"_s)
{
    QStringList out;
    for (const Slot &s : slots)
        out.append(s.start.toUTC().toString(format));
    return out.join(u' ');
}

// Each slot's score by its start, as "Mon 09:00" in UTC.
QHash<QString, int> scores(const QList<Slot> &slots)
{
    QHash<QString, int> out;
    for (const Slot &s : slots)
        out.insert(s.start.toUTC().toString(u"ddd HH:mm"_s), s.score);
    return out;
}

using Tweak = std::function<void(SlotEngine::Query &)>;

} // namespace

Q_DECLARE_METATYPE(Tweak)

class TestSlotEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What each rule leaves of the Monday morning (or of the days a row opens instead).
    void rulesTakeTimesOut_data()
    {
        QTest::addColumn<Tweak>("tweak");
        QTest::addColumn<QString>("starts");
        const QString late = u" 10:45 11:00 11:15 11:30"_s; // 11:30 the last that ends by noon
        const auto bookedAtTen = [](SlotEngine::Query &q, BookingStatus status, int before, int after) {
            q.bookings = {booking(u"2025-03-10T10:00:00Z"_s, status)};
            q.type.bufferBefore = before;
            q.type.bufferAfter = after;
        };
        QTest::newRow("notice counts from now") << Tweak([](auto &q) {
            q.now = at(u"2025-03-10T09:05:00Z"_s);
            q.settings.minNoticeMinutes = 60;
        }) << u"10:15 10:30"_s + late;
        QTest::newRow("buffer before") << Tweak([=](auto &q) { bookedAtTen(q, BookingStatus::confirmed, 15, 0); })
                                       << u"09:00 09:15 09:30"_s + late;
        QTest::newRow("pending, buffer after")
            << Tweak([=](auto &q) { bookedAtTen(q, BookingStatus::pending, 0, 15); }) << u"09:00 09:15 10:30"_s + late;
        QTest::newRow("cancelled blocks nothing")
            << Tweak([=](auto &q) { bookedAtTen(q, BookingStatus::cancelled, 15, 15); })
            << u"09:00 09:15 09:30 09:45 10:00 10:15 10:30"_s + late;
        QTest::newRow("focus blocks, on their own weekday") << Tweak([](auto &q) {
            q.settings.focusBlocks = {{u"f1"_s, monday, {10 * 60, 11 * 60}, u"Deep work"_s},
                                      {u"f2"_s, monday + 1, {9 * 60, 12 * 60}, u"Another day"_s}};
        }) << u"09:00 09:15 09:30 11:00 11:15 11:30"_s;
        // Both bookings outside the hours, so only the count can close Monday; cancelled ones don't count.
        const auto twoBooked = [](SlotEngine::Query &q, BookingStatus second) {
            q.settings.maxMeetingsPerDay = 2;
            q.settings.availability.append({monday + 1, {{9 * 60, 9 * 60 + 30}}});
            q.bookings = {booking(u"2025-03-10T07:00:00Z"_s), booking(u"2025-03-10T17:00:00Z"_s, second)};
        };
        QTest::newRow("full day") << Tweak([=](auto &q) { twoBooked(q, BookingStatus::confirmed); }) << u"09:00"_s;
        QTest::newRow("not full") << Tweak([=](auto &q) { twoBooked(q, BookingStatus::cancelled); })
                                  << u"09:00 09:15 09:30 09:45 10:00 10:15 10:30"_s + late + u" 09:00"_s;
        QTest::newRow("horizon before the days asked") << Tweak([](auto &q) {
            q.settings.availability.clear();
            for (int day = 1; day <= 7; ++day)
                q.settings.availability.append({day, {{8 * 60, 8 * 60 + 30}}});
            q.settings.horizonDays = 3;
            q.days = 14;
        }) << u"08:00 08:00 08:00"_s;
        // New York springs forward on 9 March 2025: 9:00 is 14:00 UTC on the Saturday, and on the
        // Sunday the hour from 2:00 doesn't exist, so nothing starts in it and 3:00 is 07:00 UTC.
        QTest::newRow("daylight saving") << Tweak([](auto &q) {
            q.settings.timezone = u"America/New_York"_s;
            q.settings.availability = {{7, {{9 * 60, 9 * 60 + 30}}}, {1, {{60, 4 * 60}}}};
            q.now = at(u"2025-03-07T12:00:00Z"_s);
        }) << u"14:00 06:00 06:15 06:30 06:45 07:00 07:15 07:30"_s;
    }
    void rulesTakeTimesOut()
    {
        QFETCH(Tweak, tweak);
        QFETCH(QString, starts);
        SlotEngine::Query q = mondayMorning();
        tweak(q);
        QCOMPARE(wallTimes(SlotEngine::slots(q)), starts);
    }

    // Mid-morning beats the day's edges; next to a meeting beats the same hour on an empty day,
    // but away from it the fuller day loses; the guest's night scores below zero. The best picks
    // come one a day, in time order, and nothing on the day left out beats the weakest of them.
    void scoresRankTheTimes()
    {
        SlotEngine::Query q = mondayMorning();
        q.settings.availability.clear();
        for (int day = monday; day <= monday + 4; ++day)
            q.settings.availability.append({day, {{9 * 60, 17 * 60}}});
        q.bookings = {booking(u"2025-03-10T14:00:00Z"_s)};
        const QList<Slot> all = SlotEngine::slots(q);
        const QHash<QString, int> score = scores(all);
        QVERIFY(score[u"Tue 10:30"_s] > score[u"Tue 09:00"_s]);
        QVERIFY(score[u"Mon 14:30"_s] > score[u"Tue 14:30"_s]);
        QVERIFY(score[u"Mon 16:30"_s] < score[u"Tue 16:30"_s]);
        QVERIFY(score[u"Tue 11:30"_s] > 0);
        q.guestZone = QTimeZone("Asia/Tokyo"); // 20:30 there
        QVERIFY(scores(SlotEngine::slots(q))[u"Tue 11:30"_s] < 0);

        const QList<Slot> best = SlotEngine::bestOnDifferentDays(all, 4, QTimeZone::utc());
        QCOMPARE(wallTimes(best, u"ddd HH:mm"_s), u"Tue 10:30 Wed 10:30 Thu 10:30 Fri 10:30"_s);
        const int weakest = std::ranges::min_element(best, {}, &Slot::score)->score;
        for (const Slot &s : all)
            QVERIFY(s.start.date().dayOfWeek() != Qt::Monday || s.score <= weakest);
    }
};

QTEST_GUILESS_MAIN(TestSlotEngine)
#include "tst_slot_engine.moc"
