// Quorvane on the session bus, as the desktop, a terminal and a status bar meet it: the app runs
// on an X server of the test's own against the sandbox; later launches and `gdbus` calls reach
// it and bring up its windows, and its status follows the sandbox's data and the connection.
#include "Keychain.h"
#include "linux/LibsecretStore.h"
#include "support/PrivateBus.h"
#include "support/XServer.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

namespace {

const QString binaries = qEnvironmentVariable("QUORVANE_BINARY_DIR");
const QString service = u"com.peldrachen.quorvane"_s;
const QString objectPath = u"/com/peldrachen/quorvane"_s;
const QString statusInterface = u"com.peldrachen.quorvane.Status"_s;
constexpr char token[] = "e2e-bus-token";
// How long a step may take on a busy machine; only a broken app takes this long.
constexpr int patience = 30'000;

// Every PropertiesChanged of the status, and the status they add up to.
class StatusLog : public QObject
{
    Q_OBJECT

public:
    QList<QVariantMap> changes;
    // Before the first announcement: nothing known yet.
    QVariantMap state{{u"NextId"_s, QString()},    {u"NextTitle"_s, QString()}, {u"NextGuest"_s, QString()},
                      {u"NextStart"_s, QString()}, {u"NextEnd"_s, QString()},   {u"NextJoinLink"_s, QString()},
                      {u"Countdown"_s, QString()}, {u"SignedIn"_s, false},      {u"Offline"_s, false},
                      {u"SavedAt"_s, QString()},   {u"TodayCount"_s, 0},        {u"UpcomingCount"_s, 0}};
    QStringList repeats; // values announced without having changed

public Q_SLOTS:
    void changed(const QString &interface, const QVariantMap &values, const QStringList &)
    {
        if (interface != statusInterface)
            return;
        changes.append(values);
        for (auto it = values.cbegin(); it != values.cend(); ++it) {
            if (state.value(it.key()) == it.value())
                repeats.append(it.key());
            state.insert(it.key(), it.value());
        }
    }
};

// gdbus as a script calls it; the exit code, then what it printed on stderr.
QString gdbus(const QStringList &method)
{
    QProcess call;
    call.start(u"gdbus"_s, QStringList{u"call"_s, u"--session"_s, u"--dest"_s, service, u"--object-path"_s, objectPath,
                                       u"--method"_s}
                               + method);
    if (!call.waitForFinished(patience))
        return u"did not finish"_s;
    return QString::number(call.exitCode()) + u' ' + QString::fromUtf8(call.readAllStandardError()).trimmed();
}

} // namespace

class TestE2EDBus : public QObject
{
    Q_OBJECT

    XServer x;
    QProcess sandbox;
    QProcess app;
    StatusLog status;

    // A later launch of the app, with these arguments; its exit code.
    int launch(const QStringList &arguments)
    {
        QProcess second;
        second.setProcessEnvironment(x.environment());
        second.start(binaries + u"/src/quorvane"_s, arguments);
        return second.waitForFinished(patience) && second.exitStatus() == QProcess::NormalExit ? second.exitCode() : -1;
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!x.missing().isEmpty())
            QSKIP(qPrintable(x.missing()));
        sandbox.start(binaries + u"/sandbox/quorvane-sandbox"_s,
                      {u"--demo"_s, u"--port"_s, u"0"_s, u"--print-port"_s, u"--token"_s, QString::fromLatin1(token)});
        QVERIFY(sandbox.waitForReadyRead(patience));
        const QString server = u"http://127.0.0.1:%1"_s.arg(sandbox.readLine().trimmed().toUInt());
        LibsecretStore secrets;
        QVERIFY2(Keychain(secrets).write(QString::fromLatin1(token)), "run inside tests/support/run-in-session");

        QDBusConnection bus = QDBusConnection::sessionBus();
        QVERIFY(bus.connect(QString(), objectPath, u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s,
                            &status, SLOT(changed(QString, QVariantMap, QStringList))));
        app.setProcessEnvironment(x.environment());
        app.start(binaries + u"/src/quorvane"_s, {u"--hidden"_s, u"--server"_s, server});
        QTRY_VERIFY_WITH_TIMEOUT(bus.interface()->isServiceRegistered(service), patience);
    }

    void cleanupTestCase()
    {
        for (QProcess *process : {&app, &sandbox}) {
            process->terminate();
            if (!process->waitForFinished(5000))
                process->kill();
        }
    }

    // Started in the tray, the app shows each window it is asked for, whoever asks; a name it
    // doesn't know is the caller's mistake. Every later launch ends at once.
    void launchesAndCallsReachTheRunningApp()
    {
        QVERIFY(!x.shows(u"Today"_s));
        QCOMPARE(launch({}), 0);
        QTRY_VERIFY_WITH_TIMEOUT(x.shows(u"Today"_s), patience);

        QVERIFY(!x.shows(u"Share Times"_s));
        QCOMPARE(gdbus({u"org.freedesktop.Application.ActivateAction"_s, u"share"_s, u"@av []"_s, u"@a{sv} {}"_s}),
                 u"0 "_s);
        QTRY_VERIFY_WITH_TIMEOUT(x.shows(u"Share Times"_s), patience);

        QCOMPARE(launch({u"--open"_s, u"settings"_s}), 0);
        QTRY_VERIFY_WITH_TIMEOUT(x.shows(u"Settings"_s), patience);

        const QString refused =
            gdbus({u"org.freedesktop.Application.ActivateAction"_s, u"lunch"_s, u"@av []"_s, u"@a{sv} {}"_s});
        QVERIFY2(refused.startsWith(u"1 "_s) && refused.contains(u"org.freedesktop.DBus.Error.InvalidArgs"_s),
                 qPrintable(refused));
        QCOMPARE(gdbus({u"org.freedesktop.Application.Activate"_s, u"@a{sv} {}"_s}), u"0 "_s);
        QCOMPARE(app.state(), QProcess::Running);
    }

    // The next meeting appears once the data is in, each change announced once with only what
    // changed; the announcements add up to what the object reports. Without the server, a
    // refresh asked for over the bus leaves the saved meeting and turns the offline flag on.
    void statusFollowsTheModel()
    {
        QTRY_VERIFY_WITH_TIMEOUT(!status.state.value(u"NextId"_s).toString().isEmpty(), patience);
        QCOMPARE(status.state.value(u"SignedIn"_s), QVariant(true));
        QCOMPARE(status.state.value(u"Offline"_s), QVariant(false));
        QVERIFY(!status.state.value(u"SavedAt"_s).toString().isEmpty());
        QVERIFY(QDateTime::fromString(status.state.value(u"NextStart"_s).toString(), Qt::ISODate).isValid());
        QVERIFY(!status.state.value(u"NextGuest"_s).toString().isEmpty());
        const QString countdown = status.state.value(u"Countdown"_s).toString();
        QVERIFY2(countdown == "now"_L1 || countdown.startsWith(u"in "_s), qPrintable(countdown));

        QDBusMessage getAll =
            QDBusMessage::createMethodCall(service, objectPath, u"org.freedesktop.DBus.Properties"_s, u"GetAll"_s);
        getAll << statusInterface;
        const QDBusMessage all = QDBusConnection::sessionBus().call(getAll);
        QCOMPARE(all.type(), QDBusMessage::ReplyMessage);
        QTRY_COMPARE(status.state, qdbus_cast<QVariantMap>(all.arguments().value(0)));

        const QString next = status.state.value(u"NextId"_s).toString();
        sandbox.terminate();
        QVERIFY(sandbox.waitForFinished(patience));
        const qsizetype before = status.changes.size();
        QCOMPARE(gdbus({u"org.freedesktop.Application.ActivateAction"_s, u"refresh"_s, u"@av []"_s, u"@a{sv} {}"_s}),
                 u"0 "_s);
        QTRY_VERIFY_WITH_TIMEOUT(status.state.value(u"Offline"_s).toBool(), patience);
        // Besides the flag, at most the minute's countdown.
        for (const QVariantMap &change : status.changes.mid(before)) {
            QStringList others = change.keys();
            others.removeAll(u"Offline"_s);
            others.removeAll(u"Countdown"_s);
            QVERIFY2(others.isEmpty(), qPrintable(others.join(u", "_s)));
        }
        QCOMPARE(status.state.value(u"NextId"_s).toString(), next);
        QVERIFY2(status.repeats.isEmpty(), qPrintable(status.repeats.join(u", "_s)));
    }

    // Not running yet, the app is started by the bus for the desktop's "Share Times" action, as
    // its entry's service file says: in the tray, with only that window shown.
    void theBusStartsTheAppForAnAction()
    {
        app.terminate();
        QVERIFY(app.waitForFinished(patience));
        QTRY_VERIFY_WITH_TIMEOUT(!x.shows(u"Share Times"_s) && !x.shows(u"Today"_s), patience);
        QTemporaryDir services;
        QFile file(services.filePath(service + u".service"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(u"[D-BUS Service]\nName=%1\nExec=%2/src/quorvane --hidden\n"_s.arg(service, binaries).toUtf8());
        file.close();
        // What the bus starts inherits its environment.
        const QProcessEnvironment display = x.environment();
        for (const QString &name : {u"DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
            qputenv(name.toLatin1().constData(), display.value(name).toUtf8());
        PrivateBus desktop(services.path());
        QVERIFY2(desktop.isRunning(), qPrintable(desktop.error()));

        QProcess call;
        call.start(u"gdbus"_s, {u"call"_s, u"--address"_s, desktop.address(), u"--dest"_s, service, u"--object-path"_s,
                                objectPath, u"--method"_s, u"org.freedesktop.Application.ActivateAction"_s, u"share"_s,
                                u"@av []"_s, u"@a{sv} {}"_s});
        QVERIFY(call.waitForFinished(patience));
        QCOMPARE(call.exitCode(), 0);
        QTRY_VERIFY_WITH_TIMEOUT(x.shows(u"Share Times"_s), patience);
        QVERIFY(!x.shows(u"Today"_s));

        const QDBusMessage pid =
            desktop.connect(u"reaper"_s)
                .call(QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                                     u"org.freedesktop.DBus"_s, u"GetConnectionUnixProcessID"_s)
                      << service);
        QVERIFY(pid.arguments().value(0).toUInt() > 0);
        ::kill(pid_t(pid.arguments().value(0).toUInt()), SIGTERM);
    }
};

QTEST_GUILESS_MAIN(TestE2EDBus)
#include "tst_e2e_dbus.moc"
