// The text that offers a few times to a guest, in the host's zone and language.
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
    // The text between the fixed opening and the link: the title, the zone and the times.
    void text()
    {
        const auto text = [](QStringList starts, const QString &title, const QString &zone, const QString &locale,
                             const char *now) {
            QList<Slot> slots;
            for (const QString &start : starts) {
                const Instant instant = at(start.toLatin1().constData());
                slots.append(Slot{instant, instant.addSecs(1800), 0});
            }
            const QString head = u"Here are a few times that work for a 30-minute "_s;
            const QString tail = u"\nGrab one (or see more options) here: https://q.example/ann/intro"_s;
            const QString t =
                ShareFormatter::text(slots, title, 30, u"https://q.example/ann/intro"_s, zone, locale, at(now));
            return t.startsWith(head) && t.endsWith(tail) ? t.mid(head.size()).chopped(tail.size()) : t;
        };
        const QString ny = u"America/New_York"_s;
        const QString intro = u"Intro Call"_s;
        const char *winter = "2026-01-05T12:00:00Z";
        QCOMPARE(text({}, intro, ny, u"en_US"_s, winter), u"intro call (EST):\n\n"_s);
        // The zone's name is the one of today's season, whatever the slots' seasons (here and below).
        QCOMPARE(text({u"2026-07-07T13:30:00Z"_s, u"2026-01-06T14:30:00Z"_s}, intro, ny, u"en_US"_s, winter),
                 u"intro call (EST):\n\n• Tue, Jan 6, 9:30\u202FAM\n• Tue, Jul 7, 9:30\u202FAM\n"_s);
        QCOMPARE(text({u"2026-01-06T14:30:00Z"_s}, intro, u"Europe/London"_s, u"en_GB"_s, "2026-07-05T12:00:00Z"),
                 u"intro call (BST):\n\n• Tue, 6 Jan, 14:30\n"_s);
        QCOMPARE(text({u"2026-01-06T14:30:00Z"_s}, intro, u"Europe/Berlin"_s, u"de_DE"_s, winter),
                 u"intro call (MEZ):\n\n• Di., 6. Jan., 15:30\n"_s);
        // Placeholders in a title are the user's text, not ours to fill in.
        QCOMPARE(text({}, u"100% Sync %3"_s, ny, u"en_US"_s, winter), u"100% sync %3 (EST):\n\n"_s);
        QCOMPARE(text({}, intro, u"Mars/Olympus"_s, u"en_US"_s, winter), u"intro call (Mars/Olympus):\n\n"_s);
    }
};

QTEST_APPLESS_MAIN(TestShareFormatter)
#include "tst_shareformatter.moc"
