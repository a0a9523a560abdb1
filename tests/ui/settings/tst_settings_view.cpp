// The settings window on the fixture app: its switches, the sign-out confirmation, and the
// reminder choice that goes away with reminders.
#include "FixtureApp.h"
#include "ui/components/ItemLookup.h"

#include <QQuickStyle>
#include <QSignalSpy>

#include "QuorvaneQmlModules.h"

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

namespace {

// The settings view in its own window, on a fixture app that outlives it.
struct Rig : FixtureApp, View {
    explicit Rig(State state = State::withData)
        : FixtureApp(state)
        , View("import QtQuick\nimport Quorvane.Settings\n"
               "Window { width: 520; height: 400; visible: true; SettingsView { anchors.fill: parent } }")
    {}
    void showTab(int index) const { item(u"settingsTabs"_s)->setProperty("currentIndex", index); }
    [[nodiscard]] bool checked(const QString &name) const { return item(name)->property("checked").toBool(); }
    // A choice as the user makes it in a drop-down list.
    void choose(const QString &name, int index) const
    {
        QVERIFY(QMetaObject::invokeMethod(item(name), "activated", Q_ARG(int, index)));
    }
};

} // namespace

class TestSettingsView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QQuickStyle::setStyle(u"Fusion"_s);
        FixtureApp::registerQmlSingletons();
    }

    // Each switch does what it says and shows what holds afterwards.
    void switches()
    {
        Rig rig;
        QVERIFY_READY(rig);
        QVERIFY(!rig.checked(u"loginSwitch"_s));
        rig.click(u"loginSwitch"_s);
        QTRY_VERIFY(rig.loginItem.isEnabled());
        QVERIFY(rig.checked(u"loginSwitch"_s));
        QVERIFY(!rig.shows(u"loginError"_s));
        rig.click(u"trayNextSwitch"_s);
        QTRY_VERIFY(!rig.model().menuBarShowsNext());
        QCOMPARE(rig.text(u"paletteKeyValue"_s), u"Ctrl+K"_s);
        QCOMPARE(rig.text(u"sectionKeysValue"_s), u"Ctrl+1 \u2013 Ctrl+6"_s);

        rig.showTab(2); // Calendar: the shared calendar joins the conflict check, by its id
        QTRY_VERIFY(rig.shows(u"conflict.team@varga.studio"_s));
        QVERIFY(rig.checked(u"conflict.primary"_s));
        rig.click(u"conflict.team@varga.studio"_s);
        QTRY_COMPARE(rig.model().draftSettings()->busyCalendarIDs, (QStringList{u"primary"_s, u"team@varga.studio"_s}));
        rig.choose(u"bookingCalendar"_s, 1);
        QCOMPARE(rig.model().draftSettings()->bookingCalendarID, u"team@varga.studio"_s);
        QTRY_COMPARE(rig.item(u"bookingCalendar"_s)->property("currentIndex").toInt(), 1);

        rig.showTab(4); // Updates
        QTRY_VERIFY(rig.shows(u"checkButton"_s));
        rig.click(u"checkButton"_s);
        QCOMPARE(rig.updater.checks, 1);
        rig.updater.found(rig.clock.now().addSecs(-3600), u"Quorvane is up to date."_s, {}, {}, false, false);
        QTRY_COMPARE(rig.text(u"lastChecked"_s), u"Last checked 1 hour ago"_s);
        QVERIFY(!rig.item(u"checkButton"_s)->isEnabled());
        QVERIFY(!rig.shows(u"notesButton"_s));
        rig.click(u"automaticSwitch"_s);
        QTRY_VERIFY(!rig.updater.automatic());
    }

    // "Remind me" goes away with reminders and comes back with the same value.
    // Check for Updates turns an open settings window to its Updates pane.
    void turnsToTheAskedPane()
    {
        Rig rig;
        QVERIFY_READY(rig);
        QSignalSpy asked(&rig.shell(), &ShellController::settingsPaneRequested);
        QVERIFY(rig.commands().get(CommandId::CheckForUpdates)->enabled());
        rig.commands().get(CommandId::CheckForUpdates)->trigger();
        QCOMPARE(asked.size(), 1);
        QTRY_COMPARE(rig.item(u"settingsTabs"_s)->property("currentIndex").toInt(), 4);
        QVERIFY2(rig.warnings.isEmpty(), qPrintable(rig.warnings.join(u'\n')));
    }

    void remindMeFollowsReminders()
    {
        Rig rig;
        QVERIFY_READY(rig);
        rig.showTab(3);
        QTRY_VERIFY(rig.shows(u"remindMe"_s));
        rig.choose(u"remindMe"_s, 3);
        QCOMPARE(rig.model().reminderMinutes(), 10);
        rig.click(u"remindersSwitch"_s);
        QTRY_VERIFY(!rig.shows(u"remindMe"_s));
        QVERIFY(!rig.model().notifyReminders());
        QCOMPARE(rig.notifier.reminders, 0);
        rig.click(u"remindersSwitch"_s);
        QTRY_VERIFY(rig.shows(u"remindMe"_s));
        QCOMPARE(rig.item(u"remindMe"_s)->property("currentText").toString(), u"10 min before"_s);
        QVERIFY(rig.notifier.reminders > 0);
    }

    // Notifications off: the section with "Enable…"; a desktop that still says no gets the
    // explanation, one that says yes removes the section.
    void notificationsOff()
    {
        Rig rig;
        rig.notifier.authorizes = false;
        QVERIFY_READY(rig);
        rig.showTab(3);
        QTRY_VERIFY(rig.shows(u"notificationsOff"_s));
        QVERIFY(!rig.shows(u"notificationsHelp"_s));
        rig.click(u"enableButton"_s);
        QTRY_VERIFY(rig.shows(u"notificationsHelp"_s));
        rig.notifier.authorizes = true;
        rig.click(u"enableButton"_s);
        QTRY_VERIFY(!rig.shows(u"notificationsOff"_s));
    }

    // Sign Out asks first; Cancel keeps everything, the red button signs out and the sign-in
    // panel takes the account's place.
    void signOutAsksFirst()
    {
        Rig rig;
        QVERIFY_READY(rig);
        rig.showTab(1);
        QTRY_VERIFY(rig.shows(u"signOutButton"_s));
        QCOMPARE(rig.text(u"accountNameValue"_s), u"Ilse Varga"_s);
        rig.click(u"signOutButton"_s);
        QTRY_VERIFY(rig.shows(u"dismissAction"_s));
        rig.click(u"dismissAction"_s);
        QTRY_VERIFY(!rig.shows(u"dismissAction"_s));
        QVERIFY(rig.model().account().has_value());
        rig.click(u"signOutButton"_s);
        QTRY_VERIFY(rig.shows(u"confirmAction"_s));
        rig.click(u"confirmAction"_s);
        QTRY_VERIFY(!rig.model().account().has_value());
        QVERIFY(rig.model().needsSignIn());
        QTRY_VERIFY(rig.shows(u"signInButton"_s));
        QVERIFY(!rig.shows(u"signOutButton"_s));
    }
};

QTEST_MAIN(TestSettingsView)
#include "tst_settings_view.moc"
