// The settings window's rules: calendars by key, the conflict switches, "Add to", and the
// panes' texts.
#include "settings/Settings.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

// The account's own calendar, whose real id is its address; a shared one; a read-only one.
const CalendarItem mine{u"ilse@varga.studio"_s, u"Ilse Varga"_s, true, true, std::nullopt};
const CalendarItem team{u"team@group.calendar"_s, u"Studio"_s, false, true, std::nullopt};
const CalendarItem holidays{u"en.usa#holiday"_s, std::nullopt, false, false, std::nullopt};

const CalendarItem &calendarNamed(const QString &name)
{
    return name == "mine"_L1 ? mine : name == "team"_L1 ? team : holidays;
}

} // namespace

class TestSettingsLogic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A switch reads on under the key or the real id; setting it clears both forms and, when
    // on, stores the key once, keeping the other calendars where they were.
    void conflictSwitch_data()
    {
        QTest::addColumn<QStringList>("busy");
        QTest::addColumn<QString>("calendar");
        QTest::addColumn<bool>("wasOn");
        QTest::addColumn<bool>("on");
        QTest::addColumn<QStringList>("after");
        const QString real = mine.id;
        QTest::newRow("primary by real id, off")
            << QStringList{team.id, real} << "mine" << true << false << QStringList{team.id};
        QTest::newRow("primary by real id, on again")
            << QStringList{real, team.id} << "mine" << true << true << QStringList{team.id, u"primary"_s};
        QTest::newRow("primary twice, on")
            << QStringList{u"primary"_s, real} << "mine" << true << true << QStringList{u"primary"_s};
        QTest::newRow("primary off") << QStringList{} << "mine" << false << true << QStringList{u"primary"_s};
        QTest::newRow("other on") << QStringList{u"primary"_s} << "team" << false << true
                                  << QStringList{u"primary"_s, team.id};
        QTest::newRow("other off") << QStringList{team.id, u"primary"_s} << "team" << true << false
                                   << QStringList{u"primary"_s};
        QTest::newRow("read-only on") << QStringList{} << "holidays" << false << true << QStringList{holidays.id};
        // "primary" in the list says nothing of a calendar that isn't the primary one.
        QTest::newRow("key is not an id")
            << QStringList{u"primary"_s} << "holidays" << false << false << QStringList{u"primary"_s};
    }
    void conflictSwitch()
    {
        QFETCH(QStringList, busy);
        QFETCH(QString, calendar);
        QFETCH(bool, wasOn);
        QFETCH(bool, on);
        QFETCH(QStringList, after);
        HostSettings s;
        s.busyCalendarIDs = busy;
        const CalendarItem &c = calendarNamed(calendar);
        QCOMPARE(Settings::checksConflicts(s, c), wasOn);
        Settings::setChecksConflicts(s, c, on);
        QCOMPARE(s.busyCalendarIDs, after);
        QCOMPARE(Settings::checksConflicts(s, c), on);
    }

    // Only writable calendars are offered; the stored key picks one of them or none.
    void addTo_data()
    {
        QTest::addColumn<QString>("bookingCalendarID");
        QTest::addColumn<int>("choice");
        QTest::newRow("primary") << u"primary"_s << 0;
        QTest::newRow("shared") << team.id << 1;
        QTest::newRow("read-only one") << holidays.id << -1;
        QTest::newRow("gone from the server") << u"old@group.calendar"_s << -1;
        QTest::newRow("primary by its real id") << mine.id << -1;
        QTest::newRow("empty") << QString() << -1;
    }
    void addTo()
    {
        QFETCH(QString, bookingCalendarID);
        QFETCH(int, choice);
        const QList<CalendarItem> choices = Settings::writable({holidays, mine, team});
        QCOMPARE(choices, (QList<CalendarItem>{mine, team}));
        QCOMPARE(Settings::bookingChoice(choices, bookingCalendarID), choice);
    }

    void texts()
    {
        QCOMPARE(Settings::calendarLabel(team), u"Studio"_s);
        QCOMPARE(Settings::calendarLabel(holidays), holidays.id);

        Account a;
        a.email = u"ilse@varga.studio"_s;
        QCOMPARE(Settings::nameText(a), u"\u2014"_s);
        a.name = QString();
        QCOMPARE(Settings::nameText(a), u"\u2014"_s);
        a.name = u"Ilse Varga"_s;
        QCOMPARE(Settings::nameText(a), u"Ilse Varga"_s);

        GoogleStatus g;
        g.connected = true;
        QCOMPARE(Settings::connectionText(true, std::nullopt), u"Connected"_s);
        QCOMPARE(Settings::connectionText(true, g), u"Connected"_s);
        g.email = u"ilse.varga@gmail.com"_s;
        QCOMPARE(Settings::connectionText(true, g), u"Connected as ilse.varga@gmail.com"_s);
        QCOMPARE(Settings::connectionText(false, g), u"Not connected"_s);

        QCOMPARE(Settings::calendarError(g), QString());
        g.error = u"Calendar access was revoked."_s;
        QCOMPARE(Settings::calendarError(g), u"Calendar access was revoked."_s);
        g.lastError = u"Token expired."_s;
        QCOMPARE(Settings::calendarError(g), u"Token expired."_s);

        QStringList reminders;
        for (const int minutes : Settings::reminderChoices())
            reminders << Settings::reminderText(minutes);
        QCOMPARE(reminders, (QStringList{u"1 min before"_s, u"2 min before"_s, u"5 min before"_s, u"10 min before"_s,
                                         u"15 min before"_s}));

        QCOMPARE(Settings::versionText(u"2.0"_s, u"200"_s), u"2.0 (200)"_s);
        QCOMPARE(Settings::versionText(QString(), QString()), u"? (?)"_s);

        const QDateTime now(QDate(2026, 3, 10), QTime(13, 40), Qt::UTC);
        QCOMPARE(Settings::lastCheckedText(QDateTime(), now, u"en_US"_s), QString());
        QCOMPARE(Settings::lastCheckedText(now.addSecs(-3 * 3600), now, u"en_US"_s), u"Last checked 3 hours ago"_s);
    }
};

QTEST_GUILESS_MAIN(TestSettingsLogic)
#include "tst_settings_logic.moc"
