#include "ShareFormatter.h"
#include "TimeFixtures.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;
using test::at;

class TestShareFormatter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_data()
    {
        QTest::addColumn<QStringList>("starts");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("zone");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<Instant>("now");
        QTest::addColumn<QString>("expected");
        const QString ny = u"America/New_York"_s;
        const QString intro = u"Intro Call"_s;
        const Instant winter = at("2026-01-05T12:00:00Z");
        const Instant summer = at("2026-07-05T12:00:00Z");
        const QString head = u"Here are a few times that work for a 30-minute "_s;

        QTest::newRow("no slots") << QStringList{} << intro << ny << "en_US" << winter
                                  << head + u"intro call (EST):\n\n"_s;
        // The zone's name is the one of today's season, whatever the slots' seasons.
        QTest::newRow("unsorted") << QStringList{u"2026-07-07T13:30:00Z"_s, u"2026-01-06T14:30:00Z"_s}
                                  << intro << ny << "en_US" << winter
                                  << head + QStringLiteral("intro call (EST):\n\n• Tue, Jan 6, 9:30\u202FAM\n"
                                                           "• Tue, Jul 7, 9:30\u202FAM\n");
        QTest::newRow("summer") << QStringList{u"2026-07-07T13:30:00Z"_s} << intro << ny << "en_US" << summer
                                << head + u"intro call (EDT):\n\n• Tue, Jul 7, 9:30\u202FAM\n"_s;
        QTest::newRow("en_GB") << QStringList{u"2026-07-07T13:30:00Z"_s} << intro
                               << u"Europe/London"_s << "en_GB" << summer
                               << head + u"intro call (BST):\n\n• Tue, 7 Jul, 14:30\n"_s;
        QTest::newRow("de_DE") << QStringList{u"2026-01-06T14:30:00Z"_s} << intro
                               << u"Europe/Berlin"_s << "de_DE" << winter
                               << head + u"intro call (MEZ):\n\n• Di., 6. Jan., 15:30\n"_s;
        // Placeholders in a title are the user's text, not ours to fill in.
        QTest::newRow("title kept literally") << QStringList{} << u"100% Sync %3"_s << ny << "en_US"
                                              << winter << head + u"100% sync %3 (EST):\n\n"_s;
        QTest::newRow("unknown zone") << QStringList{} << intro << u"Mars/Olympus"_s << "en_US" << winter
                                      << head + u"intro call (Mars/Olympus):\n\n"_s;
    }

    void text()
    {
        QFETCH(QStringList, starts);
        QFETCH(QString, title);
        QFETCH(QString, zone);
        QFETCH(QString, locale);
        QFETCH(Instant, now);
        QFETCH(QString, expected);
        QList<Slot> slots;
        for (const QString &start : starts) {
            const Instant instant = at(start.toLatin1().constData());
            slots.append(Slot{instant, instant.addSecs(1800), 0});
        }
        const QString link = u"https://q.example/ann/intro"_s;
        QCOMPARE(ShareFormatter::text(slots, title, 30, link, zone, locale, now),
                 expected + u"\nGrab one (or see more options) here: "_s + link);
    }
};

QTEST_APPLESS_MAIN(TestShareFormatter)
#include "tst_shareformatter.moc"
