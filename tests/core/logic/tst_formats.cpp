// The locale facility over ICU: patterns, zone names, relative days, weekdays and week rules.
#include "Formats.h"
#include "TimeFixtures.h"
#include "WeekCalendar.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;
using test::at;

namespace {
const QString ny = u"America/New_York"_s;
const QString berlin = u"Europe/Berlin"_s;
} // namespace

class TestFormats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void skeletons()
    {
        const auto format = [](const char *iso, const QString &skeleton, const QString &locale, const QString &zone) {
            const QString first = Formats::format(at(iso), skeleton, locale, zone);
            // The second call comes from the formatter cache, which must not mix up its keys.
            return Formats::format(at(iso), skeleton, locale, zone) == first ? first : u"cache mixed up"_s;
        };
        const QString share = u"EEEMMMdjmm"_s;
        const char *winter = "2026-01-06T14:30:00Z";
        // ICU puts a narrow no-break space before the day period.
        QCOMPARE(format(winter, share, u"en_US"_s, berlin), u"Tue, Jan 6, 3:30\u202FPM"_s);
        QCOMPARE(format("2026-01-07T03:30:00Z", share, u"en_US"_s, ny), u"Tue, Jan 6, 10:30\u202FPM"_s);
        QCOMPARE(format(winter, share, u"en-GB"_s, ny), u"Tue, 6 Jan, 09:30"_s); // a BCP-47 tag
        QCOMPARE(format(winter, u"EEEEjmm"_s, u"en_US"_s, ny), u"Tuesday 9:30\u202FAM"_s);
        QCOMPARE(format(winter, u"MMMd"_s, u"de_DE"_s, ny), u"6. Jan."_s);
    }

    void zones()
    {
        QCOMPARE(Formats::zoneShortName(ny, false, u"en_GB"_s), u"GMT-5"_s);
        QCOMPARE(Formats::zoneShortName(berlin, true, u"de_DE"_s), u"MESZ"_s);
        QCOMPARE(Formats::zoneShortName(u"Mars/Olympus"_s, false, u"en_US"_s), std::nullopt);
        QVERIFY(!Formats::isKnownZone(u"Mars/Olympus"_s) && Formats::isKnownZone(ny));
        // Clocks go forward at 02:00 EST, 07:00 UTC, on 8 March 2026.
        QVERIFY(!Formats::isDaylightTime(ny, at("2026-03-08T06:59:59Z")));
        QVERIFY(Formats::isDaylightTime(ny, at("2026-03-08T07:00:00Z")));
    }

    void words()
    {
        QCOMPARE(Formats::relativeDay(0, u"en_US"_s), u"today"_s);
        QCOMPARE(Formats::relativeDay(3, u"en_US"_s), u"in 3 days"_s);
        QCOMPARE(Formats::relativeDay(2, u"de_DE"_s, Formats::Capitalization::startOfSentence), u"Übermorgen"_s);
        // The largest unit that isn't zero, named where the language has a name for it.
        const Instant now = at("2026-03-10T14:40:00Z");
        const auto ago = [&](qint64 seconds) { return Formats::relativeTime(now.addSecs(-seconds), now, u"en_US"_s); };
        QCOMPARE(ago(0), u"now"_s);
        QCOMPARE(ago(10 * 3600), u"10 hours ago"_s);
        QCOMPARE(ago(30 * 3600), u"yesterday"_s);
        QCOMPARE(ago(4 * 86400), u"4 days ago"_s);
        QCOMPARE(ago(8 * 86400), u"last week"_s);
        QCOMPARE(ago(70 * 86400), u"2 months ago"_s);
        QCOMPARE(ago(-3 * 3600), u"in 3 hours"_s);
        QCOMPARE(Formats::mediumDateShortTime(now, u"en_US"_s, u"Europe/Berlin"_s), u"Mar 10, 2026, 3:40\u202FPM"_s);
        using W = Formats::WeekdayWidth;
        QCOMPARE(Formats::weekdaySymbols(u"en_US"_s, W::abbreviated, false).join(u' '),
                 u"Sun Mon Tue Wed Thu Fri Sat"_s);
        // Finnish inflects weekdays inside dates, so the two contexts really differ.
        QCOMPARE(Formats::weekdaySymbols(u"fi_FI"_s, W::wide, false).first(), u"sunnuntaina"_s);
        QCOMPARE(Formats::weekdaySymbols(u"fi_FI"_s, W::wide, true).first(), u"sunnuntai"_s);
    }

    void startOfWeek()
    {
        const auto start = [](const char *locale, const QString &zone, const char *iso) {
            return WeekCalendar(QString::fromLatin1(locale), zone).startOfWeek(at(iso)).value_or(Instant());
        };
        // Wednesday 7 January 2026, 10:00 in New York, in a Sunday-first and a Monday-first locale.
        QCOMPARE(start("en_US", ny, "2026-01-07T15:00:00Z"), at("2026-01-04T05:00:00Z"));
        QCOMPARE(start("de-DE", ny, "2026-01-07T15:00:00Z"), at("2026-01-05T05:00:00Z"));
        // Saturday evening in New York is already Sunday in UTC.
        QCOMPARE(start("en_US", ny, "2026-01-11T02:00:00Z"), at("2026-01-04T05:00:00Z"));
        // The week of the spring-forward starts at midnight EST.
        QCOMPARE(start("en_US", ny, "2026-03-10T15:00:00Z"), at("2026-03-08T05:00:00Z"));
        // São Paulo skipped midnight on 4 November 2018: the day began at 01:00 (-02).
        QCOMPARE(start("en_US", u"America/Sao_Paulo"_s, "2018-11-06T15:00:00Z"), at("2018-11-04T03:00:00Z"));
        QCOMPARE(start("en_GB", u"UTC"_s, "1969-12-31T23:30:00Z"), at("1969-12-29T00:00:00Z"));
    }

    void addingWeeksKeepsWallTime()
    {
        const WeekCalendar newYork(u"en_US"_s, ny);
        QCOMPARE(newYork.addingWeeks(at("2026-03-15T04:00:00Z"), -1), at("2026-03-08T05:00:00Z"));
        QCOMPARE(newYork.addingWeeks(at("2026-11-08T05:00:00Z"), -1), at("2026-11-01T04:00:00Z"));
        QCOMPARE(newYork.addingWeeks(at("2026-01-04T05:00:00Z"), -12), at("2025-10-12T04:00:00Z"));
        QCOMPARE(newYork.addingWeeks(Instant(), 1), std::nullopt);
    }

    void placesInstants()
    {
        const WeekCalendar kolkata(u"en_US"_s, u"Asia/Kolkata"_s);
        const WeekCalendar::Position p = kolkata.position(at("2026-01-06T18:45:00Z")); // Wed 00:15
        QCOMPARE((std::tuple{p.day, p.weekday, p.hour, p.weekStartDay}),
                 (std::tuple{qint64(20460), 4, 0, qint64(20457)}));
        const WeekCalendar utc(u"en_US"_s, u"UTC"_s);
        const WeekCalendar::Position before = utc.position(at("1969-12-31T23:30:00Z")); // Wed 23:30
        QCOMPARE((std::tuple{before.day, before.weekday, before.hour}), (std::tuple{qint64(-1), 4, 23}));
    }

    // Qt reads the system's zone database, an independent source: both must agree on the local
    // hour and weekday just before, at and after every change between 1965 and 2035.
    // (Lord Howe moves by half an hour, São Paulo changed at midnight.)
    void agreesWithSystemZoneAtTransitions()
    {
        for (const char *zone : {"Australia/Lord_Howe", "America/Sao_Paulo"}) {
            const QTimeZone system(zone);
            const WeekCalendar calendar(u"en_US"_s, QString::fromLatin1(zone));
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
    }
};

QTEST_APPLESS_MAIN(TestFormats)
#include "tst_formats.moc"
