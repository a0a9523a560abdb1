#include "TimeFixtures.h"
#include "WeekCalendar.h"

#include <QTest>

using namespace quorvane;
using test::at;

class TestWeekCalendar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstWeekday()
    {
        const QString utc = QStringLiteral("UTC");
        QCOMPARE(WeekCalendar(QStringLiteral("en_US"), utc).firstWeekday(), 1);
        QCOMPARE(WeekCalendar(QStringLiteral("de-DE"), utc).firstWeekday(), 2);
        QCOMPARE(WeekCalendar(QStringLiteral("ar_EG"), utc).firstWeekday(), 7);
    }

    void startOfWeek_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("zone");
        QTest::addColumn<Instant>("instant");
        QTest::addColumn<Instant>("expected");
        const QString ny = QStringLiteral("America/New_York");
        // Wednesday 7 January 2026, 10:00 in New York.
        QTest::newRow("Sunday-first") << "en_US" << ny << at("2026-01-07T15:00:00Z") << at("2026-01-04T05:00:00Z");
        QTest::newRow("Monday-first") << "de_DE" << ny << at("2026-01-07T15:00:00Z") << at("2026-01-05T05:00:00Z");
        // Saturday evening in New York is already Sunday in UTC.
        QTest::newRow("local day") << "en_US" << ny << at("2026-01-11T02:00:00Z") << at("2026-01-04T05:00:00Z");
        // The week of the spring-forward starts at midnight EST.
        QTest::newRow("DST week") << "en_US" << ny << at("2026-03-10T15:00:00Z") << at("2026-03-08T05:00:00Z");
        // São Paulo skipped midnight on 4 November 2018: the day began at 01:00 (-02).
        QTest::newRow("midnight skipped") << "en_US" << QStringLiteral("America/Sao_Paulo")
                                          << at("2018-11-06T15:00:00Z") << at("2018-11-04T03:00:00Z");
        QTest::newRow("before 1970") << "en_GB" << QStringLiteral("UTC") << at("1969-12-31T23:30:00Z")
                                     << at("1969-12-29T00:00:00Z");
    }

    void startOfWeek()
    {
        QFETCH(QString, locale);
        QFETCH(QString, zone);
        QFETCH(Instant, instant);
        QFETCH(Instant, expected);
        QCOMPARE(WeekCalendar(locale, zone).startOfWeek(instant), expected);
    }

    void addingWeeksKeepsWallTime()
    {
        const WeekCalendar ny(QStringLiteral("en_US"), QStringLiteral("America/New_York"));
        QCOMPARE(ny.addingWeeks(at("2026-03-15T04:00:00Z"), -1), at("2026-03-08T05:00:00Z"));
        QCOMPARE(ny.addingWeeks(at("2026-11-08T05:00:00Z"), -1), at("2026-11-01T04:00:00Z"));
        QCOMPARE(ny.addingWeeks(at("2026-01-04T05:00:00Z"), -12), at("2025-10-12T04:00:00Z"));
        QCOMPARE(ny.addingWeeks(Instant(), 1), std::nullopt);
    }

    void placesInstants()
    {
        const WeekCalendar kolkata(QStringLiteral("en_US"), QStringLiteral("Asia/Kolkata"));
        const WeekCalendar::Position p = kolkata.position(at("2026-01-06T18:45:00Z")); // Wed 00:15
        QCOMPARE((std::tuple{p.day, p.weekday, p.hour, p.weekStartDay}), (std::tuple{qint64(20460), 4, 0, qint64(20457)}));
        const WeekCalendar utc(QStringLiteral("en_US"), QStringLiteral("UTC"));
        const WeekCalendar::Position before = utc.position(at("1969-12-31T23:30:00Z")); // Wed 23:30
        QCOMPARE((std::tuple{before.day, before.weekday, before.hour}), (std::tuple{qint64(-1), 4, 23}));
    }

    void agreesWithSystemZoneAtTransitions_data()
    {
        QTest::addColumn<QString>("zone");
        QTest::newRow("New York") << QStringLiteral("America/New_York");
        QTest::newRow("Sydney") << QStringLiteral("Australia/Sydney");
        QTest::newRow("Lord Howe, half-hour DST") << QStringLiteral("Australia/Lord_Howe");
        QTest::newRow("Sao Paulo, midnight changes") << QStringLiteral("America/Sao_Paulo");
    }

    // Qt reads the system's zone database, an independent source: both must agree on the local
    // hour and weekday just before, at and after every change between 1965 and 2035.
    void agreesWithSystemZoneAtTransitions()
    {
        QFETCH(QString, zone);
        const QTimeZone system(zone.toUtf8());
        const WeekCalendar calendar(QStringLiteral("en_US"), zone);
        const auto transitions = system.transitions(at("1965-01-01T00:00:00Z"), at("2035-01-01T00:00:00Z"));
        QVERIFY(transitions.size() > 20);
        for (const QTimeZone::OffsetData &transition : transitions) {
            for (const qint64 ms : {-1, 0, 1800 * 1000}) {
                const QDateTime local = transition.atUtc.addMSecs(ms).toTimeZone(system);
                QCOMPARE(calendar.hour(local), local.time().hour());
                QCOMPARE(calendar.weekday(local), local.date().dayOfWeek() % 7 + 1);
            }
        }
    }
};

QTEST_APPLESS_MAIN(TestWeekCalendar)
#include "tst_weekcalendar.moc"
