// The Today screen's logic: the counters, the next meeting card's caption and times, and
// what a timeline row shows.
#include "NextMeeting.h"
#include "Timeline.h"
#include "TodayCounters.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

// Tuesday 2026-03-10, 09:40 in New York.
const Instant now(QDate(2026, 3, 10), QTime(13, 40), Qt::UTC);

Instant parse(const QString &iso)
{
    const QDateTime t = QDateTime::fromString(iso, Qt::ISODate);
    Q_ASSERT(t.isValid());
    return t.toUTC();
}

Booking booking(const Instant &start, qint64 lengthMsecs, bool link = true)
{
    Booking b;
    b.id = u"b-"_s + start.toString(Qt::ISODate);
    b.name = u"Ann Lee"_s;
    b.start = start;
    b.end = start.addMSecs(lengthMsecs);
    if (link)
        b.meet = u"https://meet.google.com/abc-defg-hij"_s;
    return b;
}

} // namespace

class TestTodayLogic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The week is the calendar's, not a rolling seven days: where it starts depends on the
    // locale, and which day an instant falls on depends on the zone.
    void thisWeek_data()
    {
        QTest::addColumn<QString>("now");
        QTest::addColumn<QString>("locale"); // in New York
        QTest::addColumn<QStringList>("starts");
        QTest::addColumn<int>("expected");
        const QString tuesday = u"2026-03-10T09:40:00-04:00"_s;
        const QStringList lastSunday = {u"2026-03-08T15:00:00-04:00"_s};
        QTest::newRow("Sunday first, last Sunday") << tuesday << u"en_US"_s << lastSunday << 1;
        QTest::newRow("Monday first, last Sunday") << tuesday << u"de_DE"_s << lastSunday << 0;
        QTest::newRow("Monday first, ends of the week")
            << tuesday << u"en_GB"_s
            << QStringList{u"2026-03-09T00:00:00-04:00"_s, u"2026-03-15T23:59:00-04:00"_s,
                           u"2026-03-16T00:00:00-04:00"_s, u"2026-03-08T23:59:00-04:00"_s} << 2;
        // Saturday 23:30 in New York is already Sunday in UTC, the next US week.
        QTest::newRow("the zone decides the day")
            << u"2026-03-10T13:40:00Z"_s << u"en_US"_s << QStringList{u"2026-03-15T03:30:00Z"_s} << 1;
        QTest::newRow("a week across the new year")
            << u"2026-12-31T10:00:00-05:00"_s << u"en_US"_s
            << QStringList{u"2027-01-02T10:00:00-05:00"_s, u"2027-01-03T10:00:00-05:00"_s} << 1;
        QTest::newRow("the same week a year later is another week")
            << tuesday << u"en_US"_s << QStringList{u"2027-03-09T09:40:00-05:00"_s} << 0;
    }
    void thisWeek()
    {
        QFETCH(QString, now);
        QFETCH(QString, locale);
        QFETCH(QStringList, starts);
        QList<Booking> upcoming;
        for (const QString &start : starts)
            upcoming.append(booking(parse(start), 30 * 60'000));
        const WeekCalendar calendar(locale, u"America/New_York"_s);
        QTEST(TodayCounters::counts({}, upcoming, {}, parse(now), calendar).thisWeek, "expected");
    }

    void todayAndOpenPolls()
    {
        const QList<Booking> today = {booking(now.addSecs(3600), 1'800'000), booking(now.addSecs(7200), 1'800'000)};
        Poll open{u"p1"_s, u"Sync"_s, 30, false, {}, {}};
        Poll booked{u"p2"_s, u"Review"_s, 30, true, {}, {}};
        const TodayCounters::Counts counts = TodayCounters::counts(
            today, today, {open, booked, open}, now, WeekCalendar(u"en_US"_s, u"America/New_York"_s));
        QCOMPARE(counts, (TodayCounters::Counts{2, 2, 2}));
    }

    // The card's date is that of its last redraw: the caption counts down from it.
    void caption_data()
    {
        QTest::addColumn<qint64>("startsInMsecs");
        QTest::addColumn<bool>("isNow");
        QTest::addColumn<QString>("caption");
        QTest::newRow("started ten minutes ago") << qint64(-600'000) << true << u"HAPPENING NOW"_s;
        QTest::newRow("starts at this moment") << qint64(0) << true << u"HAPPENING NOW"_s;
        QTest::newRow("under a second away") << qint64(400) << false << u"NEXT · now"_s;
    }
    void caption()
    {
        QFETCH(qint64, startsInMsecs);
        const Booking b = booking(now.addMSecs(startsInMsecs), 30 * 60'000);
        QTEST(NextMeeting::isNow(b, now), "isNow");
        QTEST(NextMeeting::caption(b, now), "caption");
    }

    // The card's time range in the user's locale and zone.
    void cardTimeRange()
    {
        const Booking b = booking(parse(u"2026-03-10T09:30:00-04:00"_s), 45 * 60'000);
        QCOMPARE(NextMeeting::timeRange(b, u"en_US"_s, u"America/New_York"_s), u"Tuesday 9:30\u202FAM – 10:15\u202FAM"_s);
        QCOMPARE(NextMeeting::timeRange(b, u"de_DE"_s, u"Europe/Berlin"_s), u"Dienstag, 14:30 – 15:15"_s);
    }

    void timelineRow_data()
    {
        QTest::addColumn<qint64>("startsInMsecs");
        QTest::addColumn<qint64>("lengthMsecs");
        QTest::addColumn<bool>("link");
        QTest::addColumn<bool>("past");
        QTest::addColumn<bool>("live");
        QTest::addColumn<bool>("join");
        QTest::addColumn<qint64>("minutes");
        constexpr qint64 min = 60'000;
        QTest::newRow("coming") << 60 * min << 30 * min << true << false << false << true << qint64(30);
        QTest::newRow("starts now") << qint64(0) << 30 * min << true << false << true << true << qint64(30);
        QTest::newRow("ends now: not live, not yet past") << -30 * min << 30 * min << true << false << false << true
                                                          << qint64(30);
        QTest::newRow("ended a second ago") << -30 * min - 1'000 << 30 * min << true << true << false << false
                                            << qint64(30);
        QTest::newRow("coming, no link") << 60 * min << 30 * min << false << false << false << false << qint64(30);
        QTest::newRow("29 min 59.999 s") << 60 * min << 30 * min - 1 << true << false << false << true << qint64(29);
    }
    void timelineRow()
    {
        QFETCH(qint64, startsInMsecs);
        QFETCH(qint64, lengthMsecs);
        QFETCH(bool, link);
        const Booking b = booking(now.addMSecs(startsInMsecs), lengthMsecs, link);
        QTEST(Timeline::isPast(b, now), "past");
        QTEST(Timeline::isLive(b, now), "live");
        QTEST(Timeline::showsJoin(b, now), "join");
        QTEST(Timeline::minutes(b), "minutes");
    }
};

QTEST_GUILESS_MAIN(TestTodayLogic)
#include "tst_today_logic.moc"
