#include "Formats.h"
#include "TimeFixtures.h"

#include <QTest>

using namespace quorvane;
using test::at;

namespace {
const QString ny = QStringLiteral("America/New_York");
const QString berlin = QStringLiteral("Europe/Berlin");
} // namespace

class TestFormats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void skeletons_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("zone");
        QTest::addColumn<Instant>("instant");
        QTest::addColumn<QString>("skeleton");
        QTest::addColumn<QString>("expected");
        const QString share = QStringLiteral("EEEMMMdjmm");
        const Instant winter = at("2026-01-06T14:30:00Z");
        // ICU puts a narrow no-break space before the day period.
        QTest::newRow("en_US") << "en_US" << ny << winter << share << QStringLiteral("Tue, Jan 6, 9:30\u202FAM");
        QTest::newRow("another zone") << "en_US" << berlin << winter << share << QStringLiteral("Tue, Jan 6, 3:30\u202FPM");
        QTest::newRow("date follows the zone") << "en_US" << ny << at("2026-01-07T03:30:00Z") << share
                                               << QStringLiteral("Tue, Jan 6, 10:30\u202FPM");
        QTest::newRow("BCP-47 tag") << "en-GB" << ny << winter << share << QStringLiteral("Tue, 6 Jan, 09:30");
        QTest::newRow("EEEEjmm") << "en_US" << ny << winter << QStringLiteral("EEEEjmm")
                                 << QStringLiteral("Tuesday 9:30\u202FAM");
        QTest::newRow("MMMd") << "de_DE" << ny << winter << QStringLiteral("MMMd") << QStringLiteral("6. Jan.");
    }

    void skeletons()
    {
        QFETCH(QString, locale);
        QFETCH(QString, zone);
        QFETCH(Instant, instant);
        QFETCH(QString, skeleton);
        QFETCH(QString, expected);
        QCOMPARE(Formats::format(instant, skeleton, locale, zone), expected);
        // The second call comes from the formatter cache, which must not mix up its keys.
        QCOMPARE(Formats::format(instant, skeleton, locale, zone), expected);
    }

    void zoneNames()
    {
        QCOMPARE(Formats::zoneShortName(ny, false, QStringLiteral("en_US")), QStringLiteral("EST"));
        QCOMPARE(Formats::zoneShortName(ny, true, QStringLiteral("en_US")), QStringLiteral("EDT"));
        QCOMPARE(Formats::zoneShortName(ny, false, QStringLiteral("en_GB")), QStringLiteral("GMT-5"));
        QCOMPARE(Formats::zoneShortName(berlin, true, QStringLiteral("de_DE")), QStringLiteral("MESZ"));
        QCOMPARE(Formats::zoneShortName(QStringLiteral("Mars/Olympus"), false, QStringLiteral("en_US")), std::nullopt);
        QVERIFY(!Formats::isKnownZone(QStringLiteral("Mars/Olympus")));
        QVERIFY(Formats::isKnownZone(ny));
    }

    void daylightTime()
    {
        // Clocks go forward at 02:00 EST, 07:00 UTC, on 8 March 2026.
        QVERIFY(!Formats::isDaylightTime(ny, at("2026-03-08T06:59:59Z")));
        QVERIFY(Formats::isDaylightTime(ny, at("2026-03-08T07:00:00Z")));
        QVERIFY(Formats::isDaylightTime(QStringLiteral("Australia/Sydney"), at("2026-01-06T00:00:00Z")));
    }

    void relativeDays()
    {
        const QString en = QStringLiteral("en_US");
        QCOMPARE(Formats::relativeDay(0, en), QStringLiteral("today"));
        QCOMPARE(Formats::relativeDay(0, en, Formats::Capitalization::startOfSentence), QStringLiteral("Today"));
        QCOMPARE(Formats::relativeDay(3, en), QStringLiteral("in 3 days"));
        QCOMPARE(Formats::relativeDay(2, QStringLiteral("de_DE"), Formats::Capitalization::startOfSentence),
                 QStringLiteral("Übermorgen"));
    }

    void weekdaySymbols()
    {
        const auto names = [](const char *text) { return QString::fromUtf8(text).split(u' '); };
        using W = Formats::WeekdayWidth;
        QCOMPARE(Formats::weekdaySymbols(QStringLiteral("en_US"), W::abbreviated, false),
                 names("Sun Mon Tue Wed Thu Fri Sat"));
        // Finnish inflects weekdays inside dates, so the two contexts really differ.
        QCOMPARE(Formats::weekdaySymbols(QStringLiteral("fi_FI"), W::wide, false).first(), QStringLiteral("sunnuntaina"));
        QCOMPARE(Formats::weekdaySymbols(QStringLiteral("fi_FI"), W::wide, true).first(), QStringLiteral("sunnuntai"));
    }
};

QTEST_APPLESS_MAIN(TestFormats)
#include "tst_formats.moc"
