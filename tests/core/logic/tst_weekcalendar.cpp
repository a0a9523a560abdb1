#include "TimeFixtures.h"
#include "WeekCalendar.h"

#include <QTest>

using namespace quorvane;
using test::at;

class TestWeekCalendar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstWeekday_data();
    void firstWeekday();
    void startOfWeek_data();
    void startOfWeek();
    void addingWeeks_data();
    void addingWeeks();
    void weekdayAndHour_data();
    void weekdayAndHour();
    void invalidInstant();
};

void TestWeekCalendar::firstWeekday_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<int>("expected");
    QTest::newRow("en_US") << "en_US" << 1;
    QTest::newRow("en_GB") << "en_GB" << 2;
    QTest::newRow("de_DE") << "de_DE" << 2;
    QTest::newRow("BCP-47 de-DE") << "de-DE" << 2;
    QTest::newRow("ar_EG") << "ar_EG" << 7;
}

void TestWeekCalendar::firstWeekday()
{
    QFETCH(QString, locale);
    QFETCH(int, expected);
    QCOMPARE(WeekCalendar(locale, QStringLiteral("UTC")).firstWeekday(), expected);
}

void TestWeekCalendar::startOfWeek_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("zone");
    QTest::addColumn<Instant>("instant");
    QTest::addColumn<Instant>("expected");

    const QString ny = QStringLiteral("America/New_York");
    // Wednesday 7 January 2026, 10:00 in New York.
    QTest::newRow("Sunday-first") << "en_US" << ny << at("2026-01-07T15:00:00Z") << at("2026-01-04T05:00:00Z");
    QTest::newRow("Monday-first") << "de_DE" << ny << at("2026-01-07T15:00:00Z") << at("2026-01-05T05:00:00Z");
    QTest::newRow("Sunday in a Monday-first week")
        << "de_DE" << ny << at("2026-01-11T20:00:00Z") << at("2026-01-05T05:00:00Z");
    QTest::newRow("exactly at the start") << "en_US" << ny << at("2026-01-04T05:00:00Z") << at("2026-01-04T05:00:00Z");
    // Saturday evening in New York is already Sunday in UTC.
    QTest::newRow("local day, not UTC day") << "en_US" << ny << at("2026-01-11T02:00:00Z") << at("2026-01-04T05:00:00Z");
    // The week of the spring-forward starts at midnight EST; the next one at midnight EDT.
    QTest::newRow("DST week") << "en_US" << ny << at("2026-03-10T15:00:00Z") << at("2026-03-08T05:00:00Z");
    QTest::newRow("week after DST") << "en_US" << ny << at("2026-03-17T15:00:00Z") << at("2026-03-15T04:00:00Z");
    // São Paulo skipped midnight on 4 November 2018: the day began at 01:00 (-02).
    QTest::newRow("midnight skipped") << "en_US" << QStringLiteral("America/Sao_Paulo") << at("2018-11-06T15:00:00Z")
                                      << at("2018-11-04T03:00:00Z");
    QTest::newRow("before 1970") << "en_GB" << QStringLiteral("UTC") << at("1969-12-31T23:30:00Z")
                                 << at("1969-12-29T00:00:00Z");
}

void TestWeekCalendar::startOfWeek()
{
    QFETCH(QString, locale);
    QFETCH(QString, zone);
    QFETCH(Instant, instant);
    QFETCH(Instant, expected);
    QCOMPARE(WeekCalendar(locale, zone).startOfWeek(instant), std::optional(expected));
}

void TestWeekCalendar::addingWeeks_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<Instant>("instant");
    QTest::addColumn<int>("weeks");
    QTest::addColumn<Instant>("expected");

    const QString ny = QStringLiteral("America/New_York");
    // Wall-clock midnight is kept, so the UTC distance is not a multiple of 7 × 24 hours.
    QTest::newRow("back across spring-forward") << ny << at("2026-03-15T04:00:00Z") << -1 << at("2026-03-08T05:00:00Z");
    QTest::newRow("forward across spring-forward") << ny << at("2026-03-08T05:00:00Z") << 1 << at("2026-03-15T04:00:00Z");
    QTest::newRow("back across fall-back") << ny << at("2026-11-08T05:00:00Z") << -1 << at("2026-11-01T04:00:00Z");
    QTest::newRow("twelve weeks") << ny << at("2026-01-04T05:00:00Z") << -12 << at("2025-10-12T04:00:00Z");
    QTest::newRow("zero") << ny << at("2026-01-04T05:00:00Z") << 0 << at("2026-01-04T05:00:00Z");
}

void TestWeekCalendar::addingWeeks()
{
    QFETCH(QString, zone);
    QFETCH(Instant, instant);
    QFETCH(int, weeks);
    QFETCH(Instant, expected);
    QCOMPARE(WeekCalendar(QStringLiteral("en_US"), zone).addingWeeks(instant, weeks), std::optional(expected));
}

void TestWeekCalendar::weekdayAndHour_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<Instant>("instant");
    QTest::addColumn<int>("weekday");
    QTest::addColumn<int>("hour");
    QTest::addColumn<qint64>("dayNumber");

    QTest::newRow("NY evening is the day before in UTC")
        << QStringLiteral("America/New_York") << at("2026-01-07T03:30:00Z") << 3 << 22 << qint64(20459);
    QTest::newRow("NY summer") << QStringLiteral("America/New_York") << at("2026-07-04T16:00:00Z") << 7 << 12
                               << qint64(20638);
    QTest::newRow("half-hour zone past midnight") << QStringLiteral("Asia/Kolkata") << at("2026-01-06T18:45:00Z") << 4
                                                  << 0 << qint64(20460);
    QTest::newRow("epoch") << QStringLiteral("UTC") << at("1970-01-01T00:00:00Z") << 5 << 0 << qint64(0);
    QTest::newRow("before 1970") << QStringLiteral("UTC") << at("1969-12-31T23:30:00Z") << 4 << 23 << qint64(-1);
}

void TestWeekCalendar::weekdayAndHour()
{
    QFETCH(QString, zone);
    QFETCH(Instant, instant);
    QFETCH(int, weekday);
    QFETCH(int, hour);
    QFETCH(qint64, dayNumber);
    const WeekCalendar calendar(QStringLiteral("en_US"), zone);
    QCOMPARE(calendar.weekday(instant), weekday);
    QCOMPARE(calendar.hour(instant), hour);
    QCOMPARE(calendar.dayNumber(instant), dayNumber);
}

void TestWeekCalendar::invalidInstant()
{
    const WeekCalendar calendar(QStringLiteral("en_US"), QStringLiteral("UTC"));
    QCOMPARE(calendar.startOfWeek(Instant()), std::nullopt);
    QCOMPARE(calendar.addingWeeks(Instant(), 1), std::nullopt);
}

QTEST_APPLESS_MAIN(TestWeekCalendar)
#include "tst_weekcalendar.moc"
