#include "ShareFormatter.h"
#include "TimeFixtures.h"

#include <QTest>

using namespace quorvane;
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
        const QString ny = QStringLiteral("America/New_York");
        const QString intro = QStringLiteral("Intro Call");
        const Instant winter = at("2026-01-05T12:00:00Z");
        const Instant summer = at("2026-07-05T12:00:00Z");
        const QString head = QStringLiteral("Here are a few times that work for a 30-minute ");

        QTest::newRow("no slots") << QStringList{} << intro << ny << "en_US" << winter
                                  << head + QStringLiteral("intro call (EST):\n\n");
        // The zone's name is the one of today's season, whatever the slots' seasons.
        QTest::newRow("unsorted") << QStringList{QStringLiteral("2026-07-07T13:30:00Z"), QStringLiteral("2026-01-06T14:30:00Z")}
                                  << intro << ny << "en_US" << winter
                                  << head + QStringLiteral("intro call (EST):\n\n• Tue, Jan 6, 9:30\u202FAM\n"
                                                           "• Tue, Jul 7, 9:30\u202FAM\n");
        QTest::newRow("summer") << QStringList{QStringLiteral("2026-07-07T13:30:00Z")} << intro << ny << "en_US" << summer
                                << head + QStringLiteral("intro call (EDT):\n\n• Tue, Jul 7, 9:30\u202FAM\n");
        QTest::newRow("en_GB") << QStringList{QStringLiteral("2026-07-07T13:30:00Z")} << intro
                               << QStringLiteral("Europe/London") << "en_GB" << summer
                               << head + QStringLiteral("intro call (BST):\n\n• Tue, 7 Jul, 14:30\n");
        QTest::newRow("de_DE") << QStringList{QStringLiteral("2026-01-06T14:30:00Z")} << intro
                               << QStringLiteral("Europe/Berlin") << "de_DE" << winter
                               << head + QStringLiteral("intro call (MEZ):\n\n• Di., 6. Jan., 15:30\n");
        // Placeholders in a title are the user's text, not ours to fill in.
        QTest::newRow("title kept literally") << QStringList{} << QStringLiteral("100% Sync %3") << ny << "en_US"
                                              << winter << head + QStringLiteral("100% sync %3 (EST):\n\n");
        QTest::newRow("unknown zone") << QStringList{} << intro << QStringLiteral("Mars/Olympus") << "en_US" << winter
                                      << head + QStringLiteral("intro call (Mars/Olympus):\n\n");
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
        const QString link = QStringLiteral("https://q.example/ann/intro");
        QCOMPARE(ShareFormatter::text(slots, title, 30, link, zone, locale, now),
                 expected + QStringLiteral("\nGrab one (or see more options) here: ") + link);
    }
};

QTEST_APPLESS_MAIN(TestShareFormatter)
#include "tst_shareformatter.moc"
