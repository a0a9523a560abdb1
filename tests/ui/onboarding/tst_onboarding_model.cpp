// The first-run guide's notification switch against a notification server on a private bus,
// and what the guide reads again each time its window shows.
#include "FixedClock.h"
#include "OnboardingModel.h"
#include "Preferences.h"
#include "linux/AutostartLoginItem.h"
#include "linux/FreedesktopNotifier.h"
#include "support/FakeNotificationServer.h"
#include "support/PrivateBus.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

namespace {

// A guide over throwaway settings and autostart folder, on a desktop with or without a
// notification server.
struct Rig {
    explicit Rig(bool notificationServer)
    {
        if (notificationServer) {
            server = std::make_unique<FakeNotificationServer>(bus.connect(u"desktop"_s));
            serving = server->start();
        }
        notifier = std::make_unique<FreedesktopNotifier>(bus.connect(u"app"_s), clock, u"en_US"_s, u"UTC"_s);
        guide = std::make_unique<OnboardingModel>(preferences, *notifier, loginItem);
    }
    [[nodiscard]] bool ready(bool notificationServer) const { return bus.isRunning() && serving == notificationServer; }

    QTemporaryDir folder;
    QSettings settings{folder.filePath(u"Quorvane.conf"_s), QSettings::IniFormat};
    Preferences preferences{settings};
    AutostartLoginItem loginItem{folder.filePath(u"config"_s), u"/usr/bin/quorvane"_s};
    FixedClock clock{QDateTime(QDate(2026, 3, 10), QTime(13, 40), Qt::UTC)};
    PrivateBus bus;
    std::unique_ptr<FakeNotificationServer> server;
    bool serving = false;
    std::unique_ptr<FreedesktopNotifier> notifier;
    std::unique_ptr<OnboardingModel> guide;
};

} // namespace

class OnboardingModelTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void notificationSwitch_data()
    {
        QTest::addColumn<bool>("server");
        QTest::addColumn<bool>("choice");
        QTest::addColumn<QList<bool>>("seen"); // the switch, from the window's appearance on
        QTest::newRow("allowed") << true << true << QList<bool>{true, true, true};
        QTest::newRow("no notification server: back to off") << false << true << QList<bool>{false, true, false};
        QTest::newRow("turned off: no question asked") << true << false << QList<bool>{true, false};
    }
    void notificationSwitch()
    {
        QFETCH(bool, server);
        QFETCH(bool, choice);
        QFETCH(QList<bool>, seen);
        Rig rig(server);
        QVERIFY2(rig.ready(server), qPrintable(rig.bus.error()));
        OnboardingModel &guide = *rig.guide;
        QVERIFY(!guide.notif());
        QList<bool> shown;
        connect(&guide, &OnboardingModel::notifChanged, this, [&] { shown.append(guide.notif()); });
        guide.appear();
        QTRY_COMPARE(shown.size(), 1);
        guide.setNotif(choice);
        QTRY_COMPARE(shown, seen);
        QTest::qWait(50);
        QCOMPARE(shown, seen);
    }

    // Switched off while the desktop still answers the questions before: a late "allowed" must
    // not switch it on again. A guide gone mid-question takes nothing down with it.
    void aLaterChoiceOutlivesAnEarlierAnswer()
    {
        Rig rig(true);
        QVERIFY2(rig.ready(true), qPrintable(rig.bus.error()));
        rig.guide->appear();
        rig.guide->setNotif(true);
        rig.guide->setNotif(false);
        QTest::qWait(200);
        QVERIFY(!rig.guide->notif());
        rig.guide->setNotif(true);
        rig.guide.reset();
        QTest::qWait(100);
    }

    // Settings may change the login item while the guide's window is closed.
    void comingBackReadsTheSystemAgain()
    {
        Rig rig(true);
        OnboardingModel &guide = *rig.guide;
        guide.advance();
        guide.advance();
        QVERIFY(rig.loginItem.set(true));
        QVERIFY(!guide.login());
        guide.appear();
        QCOMPARE(guide.step(), 0);
        QVERIFY(guide.login());
        QVERIFY(!rig.preferences.onboarded());
    }
};

QTEST_GUILESS_MAIN(OnboardingModelTest)
#include "tst_onboarding_model.moc"
