// The settings window's two switches that ask the system: start at login, through a real
// autostart folder, and notifications, through a notification server on a private bus.
#include "FixedClock.h"
#include "linux/AutostartLoginItem.h"
#include "linux/FreedesktopNotifier.h"
#include "settings/LoginSwitch.h"
#include "settings/NotificationAccess.h"
#include "support/FakeNotificationServer.h"
#include "support/PrivateBus.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

class TestSettingsServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // On writes the entry and off removes it, with no error; a switch made later reads what
    // the folder holds.
    void loginSwitch()
    {
        QTemporaryDir config;
        AutostartLoginItem item(config.path(), u"/usr/bin/quorvane"_s);
        LoginSwitch login(item);
        QVERIFY(!login.login());
        login.setLogin(true);
        QVERIFY(login.login());
        QVERIFY(login.error().isEmpty());
        QVERIFY(QFile::exists(item.entryPath()));
        QVERIFY(LoginSwitch(item).login());
        login.setLogin(false);
        QVERIFY(!login.login());
        QVERIFY(!QFile::exists(item.entryPath()));
    }

    // A folder that can't be written: the switch goes back to the truth and says why; the next
    // change that works clears the message.
    void loginSwitchFails()
    {
        QTemporaryDir config;
        AutostartLoginItem item(config.path(), u"/usr/bin/quorvane"_s);
        QFile blocker(config.filePath(u"autostart"_s)); // a file where the folder should be
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        LoginSwitch login(item);
        QSignalSpy changed(&login, &LoginSwitch::changed);
        login.setLogin(true);
        QCOMPARE(changed.count(), 1); // the switch flipped by the user flips back
        QVERIFY(!login.login());
        QCOMPARE(login.error(), LoginSwitch::failureText(true));

        QVERIFY(QFile::remove(blocker.fileName()));
        login.setLogin(true);
        QVERIFY(login.login());
        QVERIFY(login.error().isEmpty());
    }

    // No notification server: off, and "Enable…" still off says so; with a server started,
    // "Enable…" turns the section away.
    void notificationsOffAndOn()
    {
        PrivateBus bus;
        QVERIFY2(bus.isRunning(), qPrintable(bus.error()));
        FixedClock clock(QDateTime(QDate(2026, 3, 10), QTime(13, 40), Qt::UTC));
        FreedesktopNotifier notifier(bus.connect(u"app"_s), clock, u"en_US"_s, u"America/New_York"_s);
        NotificationAccess access(notifier);
        QVERIFY(access.authorized()); // until the desktop answers
        access.appear();
        QTRY_VERIFY(!access.authorized());
        QVERIFY(!access.refused());
        access.enable();
        QTRY_VERIFY(access.refused());
        QVERIFY(!access.authorized());

        FakeNotificationServer server(bus.connect(u"server"_s));
        QVERIFY(server.start());
        access.enable();
        QTRY_VERIFY(access.authorized());
        QVERIFY(!access.refused());
    }
};

QTEST_GUILESS_MAIN(TestSettingsServices)
#include "tst_settings_services.moc"
