#include "Formats.h"
#include "TimeFixtures.h"

#include <QTest>

using namespace quorvane;
using test::at;

class TestFormats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void skeletons_data();
    void skeletons();
    void zoneShortNames_data();
    void zoneShortNames();
    void daylightTime_data();
    void daylightTime();
    void relativeDays_data();
    void relativeDays();
    void weekdaySymbols_data();
    void weekdaySymbols();
};

void TestFormats::skeletons_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("zone");
    QTest::addColumn<Instant>("instant");
    QTest::addColumn<QString>("skeleton");
    QTest::addColumn<QString>("expected");

    const QString ny = QStringLiteral("America/New_York");
    const QString share = QStringLiteral("EEEMMMdjmm");
    const Instant winter = at("2026-01-06T14:30:00Z");
    // ICU puts a narrow no-break space before the day period.
    QTest::newRow("en_US winter") << "en_US" << ny << winter << share << QStringLiteral("Tue, Jan 6, 9:30\u202FAM");
    QTest::newRow("en_US summer offset") << "en_US" << ny << at("2026-07-07T13:30:00Z") << share
                                         << QStringLiteral("Tue, Jul 7, 9:30\u202FAM");
    QTest::newRow("en_US date follows the zone") << "en_US" << ny << at("2026-01-07T03:30:00Z") << share
                                                 << QStringLiteral("Tue, Jan 6, 10:30\u202FPM");
    QTest::newRow("en_GB 24 hours") << "en_GB" << ny << winter << share << QStringLiteral("Tue, 6 Jan, 09:30");
    QTest::newRow("BCP-47 tag") << "en-GB" << ny << winter << share << QStringLiteral("Tue, 6 Jan, 09:30");
    QTest::newRow("de_DE") << "de_DE" << QStringLiteral("Europe/Berlin") << winter << share
                           << QStringLiteral("Di., 6. Jan., 15:30");
    QTest::newRow("half-hour zone") << "en_GB" << QStringLiteral("Asia/Kolkata") << winter << QStringLiteral("jmm")
                                    << QStringLiteral("20:00");
    QTest::newRow("EEEEjmm") << "en_US" << ny << winter << QStringLiteral("EEEEjmm")
                             << QStringLiteral("Tuesday 9:30\u202FAM");
    QTest::newRow("jmm pm") << "en_US" << ny << at("2026-01-06T23:05:00Z") << QStringLiteral("jmm")
                            << QStringLiteral("6:05\u202FPM");
    QTest::newRow("MMMd de") << "de_DE" << ny << winter << QStringLiteral("MMMd") << QStringLiteral("6. Jan.");
}

void TestFormats::skeletons()
{
    QFETCH(QString, locale);
    QFETCH(QString, zone);
    QFETCH(Instant, instant);
    QFETCH(QString, skeleton);
    QFETCH(QString, expected);
    QCOMPARE(Formats::format(instant, skeleton, locale, zone), expected);
    // A second call goes through the formatter cache and must not mix up its keys.
    QCOMPARE(Formats::format(instant, skeleton, locale, zone), expected);
}

void TestFormats::zoneShortNames_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<bool>("daylight");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<std::optional<QString>>("expected");

    const QString ny = QStringLiteral("America/New_York");
    QTest::newRow("EST") << ny << false << "en_US" << std::optional(QStringLiteral("EST"));
    QTest::newRow("EDT") << ny << true << "en_US" << std::optional(QStringLiteral("EDT"));
    QTest::newRow("no abbreviation in en_GB") << ny << false << "en_GB" << std::optional(QStringLiteral("GMT-5"));
    QTest::newRow("BST") << QStringLiteral("Europe/London") << true << "en_GB" << std::optional(QStringLiteral("BST"));
    QTest::newRow("MEZ") << QStringLiteral("Europe/Berlin") << false << "de_DE" << std::optional(QStringLiteral("MEZ"));
    QTest::newRow("MESZ") << QStringLiteral("Europe/Berlin") << true << "de_DE"
                          << std::optional(QStringLiteral("MESZ"));
    QTest::newRow("unknown zone") << QStringLiteral("Mars/Olympus") << false << "en_US" << std::optional<QString>();
}

void TestFormats::zoneShortNames()
{
    QFETCH(QString, zone);
    QFETCH(bool, daylight);
    QFETCH(QString, locale);
    QFETCH(std::optional<QString>, expected);
    QCOMPARE(Formats::zoneShortName(zone, daylight, locale), expected);
    QCOMPARE(Formats::isKnownZone(zone), expected.has_value());
}

void TestFormats::daylightTime_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<Instant>("instant");
    QTest::addColumn<bool>("expected");

    const QString ny = QStringLiteral("America/New_York");
    QTest::newRow("NY winter") << ny << at("2026-01-06T14:30:00Z") << false;
    QTest::newRow("NY summer") << ny << at("2026-07-06T14:30:00Z") << true;
    // Clocks go forward at 02:00 EST, 07:00 UTC, on 8 March 2026.
    QTest::newRow("NY last standard second") << ny << at("2026-03-08T06:59:59Z") << false;
    QTest::newRow("NY first daylight second") << ny << at("2026-03-08T07:00:00Z") << true;
    QTest::newRow("Sydney in January") << QStringLiteral("Australia/Sydney") << at("2026-01-06T00:00:00Z") << true;
    QTest::newRow("UTC") << QStringLiteral("UTC") << at("2026-07-06T00:00:00Z") << false;
}

void TestFormats::daylightTime()
{
    QFETCH(QString, zone);
    QFETCH(Instant, instant);
    QFETCH(bool, expected);
    QCOMPARE(Formats::isDaylightTime(zone, instant), expected);
}

void TestFormats::relativeDays_data()
{
    QTest::addColumn<int>("days");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<Formats::Capitalization>("capitalization");
    QTest::addColumn<QString>("expected");

    const auto mid = Formats::Capitalization::middleOfSentence;
    const auto start = Formats::Capitalization::startOfSentence;
    QTest::newRow("yesterday") << -1 << "en_US" << mid << QStringLiteral("yesterday");
    QTest::newRow("today") << 0 << "en_US" << mid << QStringLiteral("today");
    QTest::newRow("Today") << 0 << "en_US" << start << QStringLiteral("Today");
    QTest::newRow("tomorrow") << 1 << "en_US" << mid << QStringLiteral("tomorrow");
    QTest::newRow("in 3 days") << 3 << "en_US" << mid << QStringLiteral("in 3 days");
    QTest::newRow("2 days ago") << -2 << "en_GB" << mid << QStringLiteral("2 days ago");
    QTest::newRow("morgen") << 1 << "de_DE" << mid << QStringLiteral("morgen");
    QTest::newRow("Übermorgen") << 2 << "de_DE" << start << QStringLiteral("Übermorgen");
}

void TestFormats::relativeDays()
{
    QFETCH(int, days);
    QFETCH(QString, locale);
    QFETCH(Formats::Capitalization, capitalization);
    QFETCH(QString, expected);
    QCOMPARE(Formats::relativeDay(days, locale, capitalization), expected);
}

void TestFormats::weekdaySymbols_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<Formats::WeekdayWidth>("width");
    QTest::addColumn<bool>("standalone");
    QTest::addColumn<QStringList>("expected");

    const auto split = [](const char *names) { return QString::fromUtf8(names).split(u' '); };
    QTest::newRow("en abbreviated") << "en_US" << Formats::WeekdayWidth::abbreviated << false
                                    << split("Sun Mon Tue Wed Thu Fri Sat");
    QTest::newRow("en narrow") << "en_US" << Formats::WeekdayWidth::narrow << true << split("S M T W T F S");
    QTest::newRow("de abbreviated") << "de_DE" << Formats::WeekdayWidth::abbreviated << false
                                    << split("So. Mo. Di. Mi. Do. Fr. Sa.");
    // Finnish inflects weekdays inside dates, so the two contexts really differ.
    QTest::newRow("fi wide in a date") << "fi_FI" << Formats::WeekdayWidth::wide << false
                                       << split("sunnuntaina maanantaina tiistaina keskiviikkona torstaina "
                                                "perjantaina lauantaina");
    QTest::newRow("fi wide standalone") << "fi_FI" << Formats::WeekdayWidth::wide << true
                                        << split("sunnuntai maanantai tiistai keskiviikko torstai perjantai "
                                                 "lauantai");
}

void TestFormats::weekdaySymbols()
{
    QFETCH(QString, locale);
    QFETCH(Formats::WeekdayWidth, width);
    QFETCH(bool, standalone);
    QFETCH(QStringList, expected);
    QCOMPARE(Formats::weekdaySymbols(locale, width, standalone), expected);
}

QTEST_APPLESS_MAIN(TestFormats)
#include "tst_formats.moc"
