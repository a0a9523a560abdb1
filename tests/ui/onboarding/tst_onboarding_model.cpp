// The first-run guide's state: its steps, and switches that end up showing what the desktop
// really did, against a real autostart folder and a notification server on a private bus.
#include "FixedClock.h"
#include "OnboardingModel.h"
#include "Preferences.h"
#include "linux/AutostartLoginItem.h"
#include "linux/FreedesktopNotifier.h"
#include "support/FakeNotificationServer.h"
#include "support/PrivateBus.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

namespace {

enum class Action { advance, back };

// A guide over throwaway settings and autostart folder, and a desktop that may or may not
// have a notification server.
struct Rig {
    explicit Rig(bool notificationServer = true)
        : settings(folder.filePath(u"Quorvane.conf"_s), QSettings::IniFormat), preferences(settings),
          loginItem(folder.filePath(u"config"_s), u"/usr/bin/quorvane"_s)
    {
        if (notificationServer) {
            server = std::make_unique<FakeNotificationServer>(bus.connect(u"desktop"_s));
            serving = server->start();
        }
        notifier = std::make_unique<FreedesktopNotifier>(bus.connect(u"app"_s), clock, u"en_US"_s, u"UTC"_s);
    }
    [[nodiscard]] bool ready(bool notificationServer = true) const
    {
        return bus.isRunning() && serving == notificationServer;
    }
    [[nodiscard]] std::unique_ptr<OnboardingModel> guide()
    {
        return std::make_unique<OnboardingModel>(preferences, *notifier, loginItem);
    }

    QTemporaryDir folder;
    QSettings settings;
    Preferences preferences;
    AutostartLoginItem loginItem;
    FixedClock clock{QDateTime(QDate(2026, 3, 10), QTime(13, 40), Qt::UTC)};
    PrivateBus bus;
    std::unique_ptr<FakeNotificationServer> server;
    bool serving = false;
    std::unique_ptr<FreedesktopNotifier> notifier;
};

} // namespace

Q_DECLARE_METATYPE(QList<Action>)

class OnboardingModelTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void navigation_data();
    void navigation();
    void leavingEarlyAndComingBack();
    void loginSwitch_data();
    void loginSwitch();
    void notificationSwitch_data();
    void notificationSwitch();
    void aLaterChoiceOutlivesAnEarlierAnswer();
};

void OnboardingModelTest::navigation_data()
{
    QTest::addColumn<QList<Action>>("actions");
    QTest::addColumn<int>("step");
    QTest::addColumn<bool>("canGoBack");
    QTest::addColumn<QString>("primary");
    QTest::addColumn<bool>("finished");
    using enum Action;
    QTest::newRow("fresh") << QList<Action>{} << 0 << false << u"Continue"_s << false;
    QTest::newRow("back on the first step stays") << QList<Action>{back, back} << 0 << false << u"Continue"_s << false;
    QTest::newRow("one on") << QList<Action>{advance} << 1 << true << u"Continue"_s << false;
    QTest::newRow("to the last step") << QList<Action>{advance, advance, advance} << 3 << true << u"Get Started"_s
                                      << false;
    QTest::newRow("last, then back") << QList<Action>{advance, advance, advance, back} << 2 << true << u"Continue"_s
                                     << false;
    QTest::newRow("get started") << QList<Action>{advance, advance, advance, advance} << 3 << true
                                 << u"Get Started"_s << true;
}

void OnboardingModelTest::navigation()
{
    QFETCH(QList<Action>, actions);
    QFETCH(int, step);
    QFETCH(bool, canGoBack);
    QFETCH(QString, primary);
    QFETCH(bool, finished);
    Rig rig;
    const auto guide = rig.guide();
    QSignalSpy finishedSpy(guide.get(), &OnboardingModel::finished);
    QSignalSpy steps(guide.get(), &OnboardingModel::stepChanged);
    int expectedChanges = 0;
    for (const Action action : std::as_const(actions)) {
        const int before = guide->step();
        action == Action::advance ? guide->advance() : guide->back();
        expectedChanges += guide->step() != before;
    }
    QCOMPARE(guide->step(), step);
    QCOMPARE(guide->canGoBack(), canGoBack);
    QCOMPARE(guide->primaryLabel(), primary);
    QCOMPARE(guide->stepLabel(), u"Step %1 of 4"_s.arg(step + 1));
    QCOMPARE(steps.count(), expectedChanges);
    QCOMPARE(finishedSpy.count(), finished ? 1 : 0);
    QCOMPARE(rig.preferences.onboarded(), finished);
    // Stored, not just remembered by this object.
    QCOMPARE(QSettings(rig.settings.fileName(), QSettings::IniFormat).value("onboarded.v2"_L1, false).toBool(),
             finished);
}

// Closing the window part-way finishes nothing; it is kept, and when it shows again the
// guide starts over and reads the switches afresh (Settings may have changed one meanwhile).
void OnboardingModelTest::leavingEarlyAndComingBack()
{
    Rig rig;
    const auto guide = rig.guide();
    guide->advance();
    guide->advance();
    QVERIFY(!guide->login());
    QVERIFY(rig.loginItem.set(true));
    QVERIFY(!guide->login());

    guide->appear();
    QCOMPARE(guide->step(), 0);
    QVERIFY(!guide->canGoBack());
    QVERIFY(guide->login());
    QVERIFY(!rig.preferences.onboarded());
}

void OnboardingModelTest::loginSwitch_data()
{
    QTest::addColumn<bool>("enabledBefore");
    QTest::addColumn<bool>("blocked"); // a file where the autostart folder should be
    QTest::addColumn<bool>("choice");
    QTest::addColumn<bool>("shown");
    QTest::newRow("turned on") << false << false << true << true;
    QTest::newRow("turned off") << true << false << false << false;
    QTest::newRow("turning on fails: the switch goes back") << false << true << true << false;
    QTest::newRow("on again while on") << true << false << true << true;
}

void OnboardingModelTest::loginSwitch()
{
    QFETCH(bool, enabledBefore);
    QFETCH(bool, blocked);
    QFETCH(bool, choice);
    QFETCH(bool, shown);
    Rig rig;
    QVERIFY(!enabledBefore || rig.loginItem.set(true));
    if (blocked) {
        QVERIFY(QDir().mkpath(rig.folder.filePath(u"config"_s)));
        QFile file(rig.folder.filePath(u"config/autostart"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("x") == 1);
    }
    const auto guide = rig.guide();
    QCOMPARE(guide->login(), enabledBefore);
    QSignalSpy changed(guide.get(), &OnboardingModel::loginChanged);

    guide->setLogin(choice);
    QCOMPARE(guide->login(), shown);
    QCOMPARE(rig.loginItem.isEnabled(), shown);
    QCOMPARE(QFile::exists(rig.loginItem.entryPath()), shown);
    // Even when nothing changed, the switch that was flipped must be told to show the truth.
    QCOMPARE(changed.count(), 1);
}

void OnboardingModelTest::notificationSwitch_data()
{
    QTest::addColumn<bool>("server");
    QTest::addColumn<bool>("choice");
    QTest::addColumn<bool>("atAppearance"); // what the switch shows once the window appeared
    QTest::addColumn<bool>("shown");
    QTest::newRow("allowed") << true << true << true << true;
    QTest::newRow("no notification server: back to off") << false << true << false << false;
    QTest::newRow("turned off: no question asked") << true << false << true << false;
}

void OnboardingModelTest::notificationSwitch()
{
    QFETCH(bool, server);
    QFETCH(bool, choice);
    QFETCH(bool, atAppearance);
    QFETCH(bool, shown);
    Rig rig(server);
    QVERIFY2(rig.ready(server), qPrintable(rig.bus.error()));
    const auto guide = rig.guide();
    QVERIFY(!guide->notif());
    QSignalSpy changed(guide.get(), &OnboardingModel::notifChanged);

    guide->appear();
    if (atAppearance)
        QTRY_VERIFY(guide->notif());
    else
        QTRY_COMPARE(changed.count(), 1);
    QCOMPARE(guide->notif(), atAppearance);

    QList<bool> seen;
    connect(guide.get(), &OnboardingModel::notifChanged, this, [&] { seen.append(guide->notif()); });
    guide->setNotif(choice);
    // First the user's choice, then the desktop's answer, when there was a question.
    const QList<bool> expected = choice ? QList<bool>{true, shown} : QList<bool>{false};
    QTRY_COMPARE(seen, expected);
    QTest::qWait(50);
    QCOMPARE(guide->notif(), shown);
}

// The user switches off while the desktop is still answering the first question: the late
// "allowed" must not switch it on again.
void OnboardingModelTest::aLaterChoiceOutlivesAnEarlierAnswer()
{
    Rig rig;
    QVERIFY2(rig.ready(), qPrintable(rig.bus.error()));
    const auto guide = rig.guide();
    guide->appear();
    guide->setNotif(true);
    guide->setNotif(false);
    QTest::qWait(200);
    QVERIFY(!guide->notif());

    // And a window closed mid-question takes nothing down with it.
    auto closing = rig.guide();
    closing->setNotif(true);
    closing.reset();
    QTest::qWait(100);
}

QTEST_GUILESS_MAIN(OnboardingModelTest)
#include "tst_onboarding_model.moc"
