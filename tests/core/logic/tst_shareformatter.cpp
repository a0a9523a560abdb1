#include "ShareFormatter.h"
#include "TimeFixtures.h"

#include <QTest>

using namespace quorvane;
using test::at;

namespace {

Slot slotAt(const char *iso)
{
    const Instant start = at(iso);
    return Slot{start, start.addSecs(1800), 0};
}

} // namespace

class TestShareFormatter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_data();
    void text();
};

void TestShareFormatter::text_data()
{
    QTest::addColumn<QList<Slot>>("slots");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<Instant>("now");
    QTest::addColumn<QString>("expected");

    const QString ny = QStringLiteral("America/New_York");
    const QString intro = QStringLiteral("Intro Call");
    const Instant winter = at("2026-01-05T12:00:00Z");
    const Instant summer = at("2026-07-05T12:00:00Z");
    const QString tail = QStringLiteral("\n\nGrab one (or see more options) here: https://q.example/ann/intro");

    QTest::newRow("no slots") << QList<Slot>{} << intro << ny << "en_US" << winter
                              << QStringLiteral("Here are a few times that work for a 30-minute intro call (EST):\n")
            + tail;
    QTest::newRow("unsorted, zone name from today")
        << QList<Slot>{slotAt("2026-07-07T13:30:00Z"), slotAt("2026-01-06T14:30:00Z")} << intro << ny << "en_US"
        << winter
        << QStringLiteral("Here are a few times that work for a 30-minute intro call (EST):\n\n"
                          "• Tue, Jan 6, 9:30\u202FAM\n• Tue, Jul 7, 9:30\u202FAM")
            + tail;
    QTest::newRow("summer") << QList<Slot>{slotAt("2026-07-07T13:30:00Z")} << intro << ny << "en_US" << summer
                            << QStringLiteral("Here are a few times that work for a 30-minute intro call (EDT):\n\n"
                                              "• Tue, Jul 7, 9:30\u202FAM")
            + tail;
    QTest::newRow("en_GB London summer")
        << QList<Slot>{slotAt("2026-07-07T13:30:00Z")} << intro << QStringLiteral("Europe/London") << "en_GB" << summer
        << QStringLiteral("Here are a few times that work for a 30-minute intro call (BST):\n\n• Tue, 7 Jul, 14:30") + tail;
    QTest::newRow("de_DE Berlin winter")
        << QList<Slot>{slotAt("2026-01-06T14:30:00Z")} << intro << QStringLiteral("Europe/Berlin") << "de_DE" << winter
        << QStringLiteral("Here are a few times that work for a 30-minute intro call (MEZ):\n\n• Di., 6. Jan., 15:30")
            + tail;
    // Placeholders in a title are the user's text, not ours to fill in.
    QTest::newRow("title kept literally") << QList<Slot>{} << QStringLiteral("100% Sync %3") << ny << "en_US" << winter
                                          << QStringLiteral("Here are a few times that work for a 30-minute 100% sync "
                                                            "%3 (EST):\n")
            + tail;
    QTest::newRow("unknown zone shows its id")
        << QList<Slot>{} << intro << QStringLiteral("Mars/Olympus") << "en_US" << winter
        << QStringLiteral("Here are a few times that work for a 30-minute intro call (Mars/Olympus):\n") + tail;
}

void TestShareFormatter::text()
{
    QFETCH(QList<Slot>, slots);
    QFETCH(QString, title);
    QFETCH(QString, zone);
    QFETCH(QString, locale);
    QFETCH(Instant, now);
    QFETCH(QString, expected);
    const QString link = QStringLiteral("https://q.example/ann/intro");
    QCOMPARE(ShareFormatter::text(slots, title, 30, link, zone, locale, now), expected);
}

QTEST_APPLESS_MAIN(TestShareFormatter)
#include "tst_shareformatter.moc"
