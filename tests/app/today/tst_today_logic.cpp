// The Today screen's logic: the counters, the next meeting's caption, a timeline row.
#include "today/NextMeeting.h"
#include "today/Timeline.h"
#include "today/TodayCounters.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

// Tuesday 2026-03-10, 09:40 in New York.
const Instant now(QDate(2026, 3, 10), QTime(13, 40), Qt::UTC);

Booking booking(const Instant &start, qint64 lengthMsecs, bool link = true)
{
    Booking b;
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
    // The calendar's week, not a rolling seven days: it starts as the locale says, and the
    // zone (New York's) decides an instant's day.
    void counts_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QStringList>("starts"); // upcoming bookings
        QTest::addColumn<int>("thisWeek");
        const QStringList lastSunday = {u"2026-03-08T15:00:00-04:00"_s};
        QTest::newRow("Sunday first, last Sunday") << u"en_US"_s << lastSunday << 1;
        QTest::newRow("Monday first, last Sunday") << u"de_DE"_s << lastSunday << 0;
        QTest::newRow("Monday first, ends of the week")
            << u"en_GB"_s
            << QStringList{u"2026-03-09T00:00:00-04:00"_s, u"2026-03-15T23:59:00-04:00"_s,
                           u"2026-03-16T00:00:00-04:00"_s, u"2026-03-08T23:59:00-04:00"_s}
            << 2;
        // Saturday 23:30 in New York is already Sunday in UTC, the next US week.
        QTest::newRow("the zone decides the day") << u"en_US"_s << QStringList{u"2026-03-15T03:30:00Z"_s} << 1;
        QTest::newRow("the same week a year later is another week")
            << u"en_US"_s << QStringList{u"2027-03-09T09:40:00-05:00"_s} << 0;
    }
    void counts()
    {
        QFETCH(QString, locale);
        QFETCH(QStringList, starts);
        QList<Booking> upcoming;
        for (const QString &start : starts)
            upcoming.append(booking(QDateTime::fromString(start, Qt::ISODate).toUTC(), 30 * 60'000));
        // Today's list is the model's; polls count while not booked.
        const QList<Booking> today = {booking(now.addSecs(3600), 1'800'000), booking(now.addSecs(7200), 1'800'000)};
        const Poll open{u"p1"_s, u"Sync"_s, 30, false, {}, {}}, booked{u"p2"_s, u"Review"_s, 30, true, {}, {}};
        const WeekCalendar calendar(locale, u"America/New_York"_s);
        const TodayCounters::Counts counts =
            TodayCounters::counts(today, upcoming, {open, booked, open}, now, calendar);
        QCOMPARE(counts.today, 2);
        QTEST(counts.thisWeek, "thisWeek");
        QCOMPARE(counts.openPolls, 2);
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
        QTest::newRow("25 minutes away") << qint64(25 * 60'000) << false << u"NEXT · in 25m"_s;
    }
    void caption()
    {
        QFETCH(qint64, startsInMsecs);
        const Booking b = booking(now.addMSecs(startsInMsecs), 30 * 60'000);
        QTEST(NextMeeting::isNow(b, now), "isNow");
        QTEST(NextMeeting::caption(b, now), "caption");
    }

    void timelineRow_data()
    {
        QTest::addColumn<qint64>("startsInMsecs");
        QTest::addColumn<qint64>("lengthMsecs");
        QTest::addColumn<bool>("link");
        QTest::addColumn<QString>("shows");
        QTest::addColumn<qint64>("minutes");
        constexpr qint64 min = 60'000;
        QTest::newRow("coming") << 60 * min << 30 * min << true << u"join"_s << qint64(30);
        QTest::newRow("starts now") << qint64(0) << 30 * min << true << u"live join"_s << qint64(30);
        QTest::newRow("ends now: not live, not yet past") << -30 * min << 30 * min << true << u"join"_s << qint64(30);
        QTest::newRow("ended a second ago") << -30 * min - 1'000 << 30 * min << true << u"past"_s << qint64(30);
        QTest::newRow("no link, 29 min 59.999 s") << 60 * min << 30 * min - 1 << false << QString() << qint64(29);
    }
    void timelineRow()
    {
        QFETCH(qint64, startsInMsecs);
        QFETCH(qint64, lengthMsecs);
        QFETCH(bool, link);
        const Booking b = booking(now.addMSecs(startsInMsecs), lengthMsecs, link);
        QStringList shows;
        if (Timeline::isPast(b, now))
            shows << u"past"_s;
        if (Timeline::isLive(b, now))
            shows << u"live"_s;
        if (Timeline::showsJoin(b, now))
            shows << u"join"_s;
        QTEST(shows.join(u' '), "shows");
        QTEST(Timeline::minutes(b), "minutes");
    }
};

QTEST_GUILESS_MAIN(TestTodayLogic)
#include "tst_today_logic.moc"
