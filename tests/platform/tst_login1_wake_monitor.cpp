#include "linux/Login1WakeMonitor.h"
#include "support/PrivateBus.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QSignalSpy>
#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;
using namespace quorvane::test;

namespace {

// What logind sends around a suspend: true before, false after.
void prepareForSleep(QDBusConnection &from, bool sleeping)
{
    QDBusMessage signal = QDBusMessage::createSignal(u"/org/freedesktop/login1"_s, u"org.freedesktop.login1.Manager"_s,
                                                     u"PrepareForSleep"_s);
    signal << sleeping;
    from.send(signal);
    // A call back to the bus returns only after the daemon has routed what this client sent before it.
    from.interface()->isServiceRegistered(u"org.freedesktop.DBus"_s);
}

} // namespace

class Login1WakeMonitorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wokeAfterSleepOnly()
    {
        PrivateBus bus;
        QVERIFY2(bus.isRunning(), qPrintable(bus.error()));
        QDBusConnection logind = bus.connect(u"logind"_s);
        QVERIFY(logind.registerService(u"org.freedesktop.login1"_s));
        QDBusConnection impostor = bus.connect(u"impostor"_s);

        Login1WakeMonitor monitor(bus.connect(u"app"_s));
        QSignalSpy woke(&monitor, &WakeMonitor::woke);

        // Anyone may send the signal; only the owner of logind's name is believed.
        prepareForSleep(impostor, false);
        prepareForSleep(logind, true);
        QTest::qWait(200);
        QCOMPARE(woke.size(), 0);

        prepareForSleep(logind, false);
        QTRY_COMPARE(woke.size(), 1);
        QTest::qWait(200);
        QCOMPARE(woke.size(), 1);
    }
};

QTEST_GUILESS_MAIN(Login1WakeMonitorTest)
#include "tst_login1_wake_monitor.moc"
