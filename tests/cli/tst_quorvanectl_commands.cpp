// quorvanectl run as a script runs it. The running app is a fake of its D-Bus interface on a
// private bus; the saved data is a snapshot in the test's own data folder; the server is the
// sandbox, reached with the token in the session's keyring.
#include "support/PrivateBus.h"

#include "SandboxHarness.h"

#include "DataPaths.h"
#include "ISO.h"
#include "Keychain.h"
#include "SnapshotCache.h"
#include "linux/LibsecretStore.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

const QString ctl = qEnvironmentVariable("QUORVANE_BINARY_DIR") + u"/cli/quorvanectl"_s;
const QString path = u"/com/peldrachen/quorvane"_s;
const QString statusInterface = u"com.peldrachen.quorvane.Status"_s;

// The Status object and org.freedesktop.Application of the running app, as agreed.
class FakeApp : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.peldrachen.quorvane.Status")
    Q_PROPERTY(QString NextId MEMBER nextId)
    Q_PROPERTY(QString NextTitle MEMBER nextTitle)
    Q_PROPERTY(QString NextGuest MEMBER nextGuest)
    Q_PROPERTY(QString NextStart MEMBER nextStart)
    Q_PROPERTY(QString NextEnd MEMBER nextEnd)
    Q_PROPERTY(QString NextJoinLink MEMBER nextJoinLink)
    Q_PROPERTY(QString Countdown MEMBER countdown)
    Q_PROPERTY(bool SignedIn MEMBER signedIn)
    Q_PROPERTY(bool Offline MEMBER offline)
    Q_PROPERTY(QString SavedAt MEMBER savedAt)
    Q_PROPERTY(int TodayCount MEMBER todayCount)
    Q_PROPERTY(int UpcomingCount MEMBER upcomingCount)

public:
    QString nextId, nextTitle, nextGuest, nextStart, nextEnd, nextJoinLink, countdown, savedAt;
    bool signedIn = true;
    bool offline = false;
    int todayCount = 0;
    int upcomingCount = 0;
    QStringList actions; // "Activate" or the action's name, as they came

    // A meeting starting `minutes` from now, as the tray would count it.
    void meeting(const QString &guest, int minutes)
    {
        const QDateTime start = QDateTime::currentDateTimeUtc().addSecs(minutes * 60);
        nextId = u"b-"_s + guest;
        nextTitle = u"Intro Call"_s;
        nextGuest = guest;
        nextStart = ISO::secondsString(start);
        nextEnd = ISO::secondsString(start.addSecs(30 * 60));
        nextJoinLink = u"https://meet.example.com/abc"_s;
        countdown = minutes <= 0 ? u"now"_s : u"in %1m"_s.arg(minutes);
    }
    void announce(QDBusConnection bus, const QVariantMap &changed)
    {
        QDBusMessage signal =
            QDBusMessage::createSignal(path, u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s);
        signal << statusInterface << changed << QStringList();
        bus.send(signal);
    }
};

class FakeActions : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit FakeActions(FakeApp *app)
        : QDBusAbstractAdaptor(app)
        , m_app(app)
    {}

public Q_SLOTS:
    void Activate(const QVariantMap &) { m_app->actions.append(u"Activate"_s); }
    void Open(const QStringList &, const QVariantMap &) { m_app->actions.append(u"Open"_s); }
    void ActivateAction(const QString &name, const QVariantList &, const QVariantMap &) { m_app->actions.append(name); }

private:
    FakeApp *m_app;
};

struct Run {
    int code = -1;
    QString out;
    QString err;
    [[nodiscard]] QJsonObject json() const { return QJsonDocument::fromJson(out.toUtf8()).object(); }
};

Booking booking(const QString &id, const QDateTime &start, BookingStatus status = BookingStatus::confirmed)
{
    Booking b;
    b.id = id;
    b.type = u"intro"_s;
    b.start = start;
    b.end = start.addSecs(30 * 60);
    b.name = u"Guest "_s + id;
    b.status = status;
    return b;
}

} // namespace

class TestQuorvanectlCommands : public QObject
{
    Q_OBJECT

    QTemporaryDir home;
    std::unique_ptr<test::PrivateBus> bus;
    QDBusConnection appConnection{u"none"_s};
    std::unique_ptr<FakeApp> app;

    [[nodiscard]] QString dataDir() const { return home.filePath(u"data/Quorvane"_s); }

    // Runs quorvanectl with the test's folders, UTC, and the private bus as its session bus
    // unless `sessionBus` asks for the real one (where the keyring is).
    Run run(const QStringList &arguments, bool sessionBus = false)
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(u"XDG_DATA_HOME"_s, home.filePath(u"data"_s));
        env.insert(u"XDG_CONFIG_HOME"_s, home.filePath(u"config"_s));
        env.insert(u"TZ"_s, u"UTC"_s);
        env.insert(u"LANG"_s, u"en_US.UTF-8"_s);
        env.remove(u"DISPLAY"_s);
        env.remove(u"WAYLAND_DISPLAY"_s);
        if (!sessionBus)
            env.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus->address());
        QProcess process;
        process.setProcessEnvironment(env);
        process.start(ctl, arguments);
        // The fake app and the sandbox answer from this thread's event loop meanwhile.
        const bool ended = QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 30'000);
        if (!ended)
            process.kill();
        return {ended ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()).trimmed(),
                QString::fromUtf8(process.readAllStandardError()).trimmed()};
    }

    void startApp()
    {
        app = std::make_unique<FakeApp>();
        new FakeActions(app.get());
        appConnection = bus->connect(u"app"_s);
        QVERIFY(appConnection.registerObject(path, app.get(),
                                             QDBusConnection::ExportAllProperties | QDBusConnection::ExportAdaptors));
        QVERIFY(appConnection.registerService(u"com.peldrachen.quorvane"_s));
    }

    void stopApp()
    {
        if (app)
            bus->disconnect(appConnection);
        // The connection closes with its last copy.
        appConnection = QDBusConnection(u"none"_s);
        app.reset();
    }

    void save(const QList<Booking> &upcoming)
    {
        Snapshot s;
        HostSettings settings;
        EventType intro;
        intro.slug = u"intro"_s;
        intro.title = u"Intro Call"_s;
        settings.eventTypes = {intro};
        s.settings = settings;
        s.upcoming = upcoming;
        s.savedAt = QDateTime::currentDateTimeUtc().addSecs(-600);
        QVERIFY(QDir().mkpath(dataDir()));
        QVERIFY(SnapshotCache(DataPaths::cacheIn(dataDir())).save(s));
    }

private Q_SLOTS:
    void init()
    {
        bus = std::make_unique<test::PrivateBus>();
        QVERIFY2(bus->isRunning(), qPrintable(bus->error()));
    }

    void cleanup()
    {
        stopApp();
        bus.reset();
        QFile::remove(DataPaths::cacheIn(dataDir()));
    }

    void exitCodes_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("world"); // nothing, saved, app
        QTest::addColumn<int>("code");
        QTest::newRow("unknown command") << QStringList{u"bogus"_s} << u"nothing"_s << 2;
        QTest::newRow("unknown option") << QStringList{u"next"_s, u"--bogus"_s} << u"nothing"_s << 2;
        QTest::newRow("days out of range") << QStringList{u"agenda"_s, u"--days"_s, u"0"_s} << u"saved"_s << 2;
        QTest::newRow("best out of range") << QStringList{u"share"_s, u"--best"_s, u"4"_s} << u"nothing"_s << 2;
        QTest::newRow("unknown zone") << QStringList{u"share"_s, u"--zone"_s, u"Mars/Base"_s} << u"nothing"_s << 2;
        QTest::newRow("unknown window") << QStringList{u"open"_s, u"garden"_s} << u"app"_s << 2;
        QTest::newRow("nothing saved, no app") << QStringList{u"next"_s} << u"nothing"_s << 3;
        QTest::newRow("agenda, nothing saved") << QStringList{u"agenda"_s} << u"nothing"_s << 3;
        QTest::newRow("saved data shown") << QStringList{u"next"_s} << u"saved"_s << 4;
        QTest::newRow("agenda of saved data") << QStringList{u"agenda"_s} << u"saved"_s << 4;
        QTest::newRow("from the app") << QStringList{u"next"_s} << u"app"_s << 0;
        QTest::newRow("help") << QStringList{u"share"_s, u"--help"_s} << u"nothing"_s << 0;
    }

    void exitCodes()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, world);
        QFETCH(int, code);
        if (world != "nothing"_L1)
            save({booking(u"1"_s, QDateTime::currentDateTimeUtc().addSecs(3600))});
        if (world == "app"_L1) {
            startApp();
            app->meeting(u"Ann"_s, 25);
        }
        const Run result = run(arguments);
        QVERIFY2(result.code == code, qPrintable(u"%1: %2 %3"_s.arg(result.code).arg(result.out, result.err)));
        // A mistake says what went wrong; an answer goes to standard output.
        QCOMPARE(result.err.isEmpty(), code == 0 || code == 4);
    }

    void waybarFromApp_data()
    {
        QTest::addColumn<int>("minutes"); // until the meeting; none without one
        QTest::addColumn<bool>("offline");
        QTest::addColumn<QString>("cls");
        QTest::addColumn<QString>("text");
        QTest::newRow("under way") << -5 << false << u"now"_s << u"Now: Ann"_s;
        QTest::newRow("soon") << 10 << false << u"soon"_s << u"Ann in 10m"_s;
        QTest::newRow("later") << 120 << false << u"later"_s << u"Ann in 120m"_s;
        QTest::newRow("offline") << 10 << true << u"offline"_s << u"Ann in 10m"_s;
        QTest::newRow("none") << 0 << false << u"none"_s << QString();
    }

    void waybarFromApp()
    {
        QFETCH(int, minutes);
        QFETCH(bool, offline);
        QFETCH(QString, cls);
        QFETCH(QString, text);
        startApp();
        if (!text.isEmpty())
            app->meeting(u"Ann"_s, minutes);
        app->offline = offline;
        const Run result = run({u"next"_s, u"--waybar"_s});
        QCOMPARE(result.code, offline ? 4 : 0);
        const QJsonObject bar = result.json();
        QCOMPARE(bar.value(u"class"_s).toString(), cls);
        QCOMPARE(bar.value(u"alt"_s).toString(), cls);
        QCOMPARE(bar.value(u"text"_s).toString(), text);
        if (!text.isEmpty())
            QVERIFY(bar.value(u"tooltip"_s).toString().contains(u"Intro Call with Ann"_s));
        QCOMPARE(bar.value(u"tooltip"_s).toString().contains(u"Saved data"_s), offline);
    }

    // What a status bar shows with Quorvane closed: the saved next meeting, marked as saved.
    void savedDataAlone()
    {
        const QDateTime now = QDateTime::currentDateTimeUtc();
        save({booking(u"ended"_s, now.addSecs(-7200)), booking(u"gone"_s, now.addSecs(600), BookingStatus::cancelled),
              booking(u"later"_s, now.addSecs(5 * 3600)), booking(u"next"_s, now.addSecs(3 * 3600))});
        const Run bar = run({u"next"_s, u"--waybar"_s});
        QCOMPARE(bar.code, 4);
        QCOMPARE(bar.json().value(u"class"_s).toString(), u"offline"_s);
        QVERIFY2(bar.json().value(u"text"_s).toString().startsWith(u"Guest next in "_s), qPrintable(bar.out));
        QVERIFY(bar.json().value(u"tooltip"_s).toString().contains(u"Saved data from"_s));
        const Run json = run({u"next"_s, u"--json"_s});
        QCOMPARE(json.json().value(u"next"_s).toObject().value(u"id"_s).toString(), u"next"_s);
        QCOMPARE(json.json().value(u"saved"_s).toBool(), true);
        QCOMPARE(json.json().value(u"upcoming"_s).toInt(), 2);
        QVERIFY(run({u"next"_s}).out.contains(u"(saved data from"_s));
    }

    // The agenda covers whole calendar days, ended meetings of today included.
    void agenda()
    {
        const QDate today = QDateTime::currentDateTimeUtc().date();
        const auto at = [](const QDate &day, int hour) { return QDateTime(day, QTime(hour, 0), Qt::UTC); };
        save({booking(u"yesterday"_s, at(today.addDays(-1), 9)), booking(u"early"_s, at(today, 0)),
              booking(u"late"_s, at(today, 23)), booking(u"off"_s, at(today, 12), BookingStatus::cancelled),
              booking(u"tomorrow"_s, at(today.addDays(1), 9)), booking(u"far"_s, at(today.addDays(3), 9))});
        const auto ids = [](const Run &result) {
            QStringList out;
            for (const QJsonValue &row : result.json().value(u"bookings"_s).toArray())
                out.append(row[u"id"_s].toString());
            return out;
        };
        const Run saved = run({u"agenda"_s, u"--json"_s});
        QCOMPARE(saved.code, 4);
        QCOMPARE(saved.json().value(u"saved"_s).toBool(), true);
        QCOMPARE(ids(saved), (QStringList{u"early"_s, u"late"_s}));
        QVERIFY(run({u"agenda"_s}).out.startsWith(u"Saved data from"_s));

        startApp();
        const Run fresh = run({u"agenda"_s, u"--json"_s, u"--days"_s, u"2"_s});
        QCOMPARE(fresh.code, 0);
        QCOMPARE(fresh.json().value(u"saved"_s).toBool(), false);
        QCOMPARE(ids(fresh), (QStringList{u"early"_s, u"late"_s, u"tomorrow"_s}));
    }

    // A line for every change the app announces, and for the app going away.
    void follow()
    {
        save({booking(u"1"_s, QDateTime::currentDateTimeUtc().addSecs(3 * 3600))});
        startApp();
        app->meeting(u"Ann"_s, 25);
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(u"XDG_DATA_HOME"_s, home.filePath(u"data"_s));
        env.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus->address());
        QProcess process;
        process.setProcessEnvironment(env);
        process.start(ctl, {u"next"_s, u"--waybar"_s, u"--follow"_s});
        QStringList lines;
        const auto line = [&] {
            if (!QTest::qWaitFor([&] { return process.canReadLine(); }, 15'000))
                return QJsonObject();
            return QJsonDocument::fromJson(process.readLine()).object();
        };
        QCOMPARE(line().value(u"text"_s).toString(), u"Ann in 25m"_s);
        app->meeting(u"Ben"_s, 5);
        app->announce(appConnection, {{u"NextGuest"_s, u"Ben"_s}, {u"Countdown"_s, u"in 5m"_s}});
        const QJsonObject changed = line();
        QCOMPARE(changed.value(u"text"_s).toString(), u"Ben in 5m"_s);
        QCOMPARE(changed.value(u"class"_s).toString(), u"soon"_s);
        // A guest books a later day: only the count changes, and that is a line too.
        app->upcomingCount = 4;
        app->announce(appConnection, {{u"UpcomingCount"_s, 4}});
        QVERIFY(line().value(u"tooltip"_s).toString().contains(u"4 upcoming"_s));
        stopApp();
        QCOMPARE(line().value(u"class"_s).toString(), u"offline"_s);
        process.kill();
        process.waitForFinished();
    }

    void openAndJoin()
    {
        startApp();
        app->meeting(u"Ann"_s, 5);
        QCOMPARE(run({u"open"_s, u"share"_s}).code, 0);
        QCOMPARE(run({u"open"_s, u"main"_s}).code, 0);
        QCOMPARE(run({u"join"_s}).code, 0);
        QCOMPARE(app->actions, (QStringList{u"share"_s, u"Activate"_s, u"join-next"_s}));
        app->nextJoinLink.clear();
        QCOMPARE(run({u"join"_s}).code, 1);
        app->signedIn = false;
        QCOMPARE(run({u"join"_s}).code, 3);
        QCOMPARE(app->actions.size(), 3);
    }

    void share()
    {
        sandbox::SandboxHarness server;
        QVERIFY(server.start());
        QSettings settings(home.filePath(u"config/Quorvane/Quorvane.ini"_s), QSettings::IniFormat);
        settings.setValue(u"serverURL"_s, server.base());
        settings.sync();
        LibsecretStore secrets;
        const Keychain keychain(secrets);
        keychain.signOut();
        QCOMPARE(run({u"share"_s}, true).code, 3);

        QVERIFY(keychain.write(QString::fromLatin1(sandbox::SandboxHarness::token)));
        const QString zone = u"America/New_York"_s;
        const Run result = run({u"share"_s, u"--best"_s, u"3"_s, u"--json"_s, u"--zone"_s, zone}, true);
        QVERIFY2(result.code == 0, qPrintable(result.err));
        const QJsonObject offer = result.json();
        const QString link = offer.value(u"link"_s).toString();
        QVERIFY2(link.startsWith(server.base() + u'/'), qPrintable(link));
        QVERIFY(offer.value(u"message"_s).toString().contains(link));
        QSet<QDate> days;
        for (const QJsonValue &slot : offer.value(u"slots"_s).toArray()) {
            const std::optional<QDateTime> start = ISO::parse(slot[u"start"_s].toString());
            QVERIFY(start && ISO::parse(slot[u"end"_s].toString()) > start);
            days.insert(start->toTimeZone(QTimeZone(zone.toUtf8())).date());
        }
        QCOMPARE(days.size(), 3);
        const Run plain = run({u"share"_s, u"--best"_s, u"1"_s}, true);
        QCOMPARE(plain.code, 0);
        QVERIFY(plain.out.contains(link));
        QVERIFY(!(result.out + result.err + plain.out + plain.err).contains(u"test-token"_s));

        settings.setValue(u"serverURL"_s, u"http://127.0.0.1:9"_s);
        settings.sync();
        QCOMPARE(run({u"share"_s}, true).code, 1);
        keychain.signOut();
    }
};

QTEST_GUILESS_MAIN(TestQuorvanectlCommands)
#include "tst_quorvanectl_commands.moc"
