// The real app against the sandbox while the server fails in every way a network and a server
// can: each failure shows the user its words, keeps the saved data on screen and on disk, and
// mends once the server answers again; no booking is announced twice, not even across a
// restart; and the token, a canary here, is found nowhere but in the keyring.
//
// The app runs as a user's would (offscreen, in this test's private session with its keyring
// and a fake notification server) and is watched through its --state-file. Retry comes from a
// wake from sleep, the refresh the app makes by itself, sent as logind would on a bus the app
// takes for the system's.
#include "Formats.h"
#include "ISO.h"
#include "JSON.h"
#include "Keychain.h"
#include "Sandbox.h"
#include "Snapshot.h"
#include "linux/LibsecretStore.h"
#include "support/FakeNotificationServer.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>
#include <QUuid>

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

namespace {

const QString appBinary = qEnvironmentVariable("QUORVANE_BINARY_DIR") + u"/src/quorvane"_s;
constexpr int patience = 20'000;
constexpr int forever = 1'000'000; // a fault's count: until it is cleared

// The peak resident memory of a process, in bytes.
qint64 peakMemory(qint64 pid)
{
    QFile status(u"/proc/%1/status"_s.arg(pid));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').value(0).toLongLong() * 1024;
    }
    return 0;
}

QString dataFile(const QString &name)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Quorvane/"_s + name;
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestE2EFaults : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_token;
    quint16 m_port = 0;
    std::unique_ptr<sandbox::Sandbox> m_server;
    QNetworkAccessManager m_network;
    std::unique_ptr<FakeNotificationServer> m_notifications;
    QProcess m_app;
    QByteArray m_output;              // everything the app printed
    QJsonObject m_state;              // as last read
    QHash<QString, QString> m_guests; // booking id to guest name
    int m_faultsSurvived = 0;
    qint64 m_peakGrowth = 0; // the most the app's peak memory grew in one fault

    // The app's state as last read.
    [[nodiscard]] const QJsonObject &seen() const { return m_state; }
    [[nodiscard]] QString base() const { return u"http://127.0.0.1:%1"_s.arg(m_port); }
    [[nodiscard]] QString statePath() const { return m_dir.filePath(u"state.json"_s); }

    bool startServer()
    {
        sandbox::SandboxConfig config;
        config.port = m_port;
        config.database = m_dir.filePath(u"server.db"_s);
        config.demo = true;
        config.seed = 42;
        config.tokens = {m_token};
        config.testControls = true;
        config.logRequests = false;
        m_server = std::make_unique<sandbox::Sandbox>(config, sandbox::systemClock());
        QString error;
        if (!m_server->start(&error)) {
            qWarning("sandbox: %s", qPrintable(error));
            return false;
        }
        m_port = m_server->port();
        return true;
    }

    // One request to the sandbox's test controls; the status of its answer.
    std::pair<int, QJsonObject> control(const QByteArray &method, const QString &path, const QJsonObject &body = {})
    {
        QNetworkRequest request(QUrl(base() + path));
        request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/json"_s);
        QNetworkReply *reply = m_network.sendCustomRequest(request, method, QJsonDocument(body).toJson());
        QSignalSpy finished(reply, &QNetworkReply::finished);
        if (!reply->isFinished())
            finished.wait(patience);
        reply->deleteLater();
        return {reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(),
                QJsonDocument::fromJson(reply->readAll()).object()};
    }

    // A guest books the first type some days ahead, as through the booking page.
    QString guestBooks()
    {
        const QString name = u"Guest %1"_s.arg(m_guests.size() + 1);
        const QDateTime start = QDateTime::currentDateTimeUtc().addDays(3).addSecs(3600 * m_guests.size());
        const auto [status, booking] = control("POST", u"/sandbox/bookings"_s,
                                               {{u"type"_s, u"intro"_s},
                                                {u"start"_s, ISO::string(start)},
                                                {u"name"_s, name},
                                                {u"email"_s, u"guest@example.com"_s},
                                                {u"tz"_s, u"Europe/Berlin"_s}});
        const QString id = booking.value(u"id"_s).toString();
        if (status == 200)
            m_guests.insert(id, name);
        return id;
    }

    // What logind says when the computer wakes up.
    static void wake()
    {
        QDBusMessage woke = QDBusMessage::createSignal(u"/org/freedesktop/login1"_s,
                                                       u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s);
        woke << false;
        QDBusConnection::sessionBus().send(woke);
    }

    void launch(const QString &timings)
    {
        m_app.setProgram(appBinary);
        m_app.setArguments({u"--server"_s, base(), u"--state-file"_s, statePath(), u"--test-timings"_s, timings});
        m_app.start();
    }

    void quitApp()
    {
        m_app.terminate();
        if (!m_app.waitForFinished(10'000))
            m_app.kill();
        m_app.waitForFinished(5'000);
        m_output += m_app.readAll();
    }

    // Waits until the app's state satisfies `holds`; false, with the last state shown, if it never did.
    template <class Predicate>
    bool waitState(Predicate holds, const char *what)
    {
        const bool held = QTest::qWaitFor(
            [&] {
                const QJsonObject read = QJsonDocument::fromJson(readAll(statePath())).object();
                if (!read.isEmpty())
                    m_state = read;
                return !read.isEmpty() && holds(read);
            },
            patience);
        if (!held)
            qWarning("never %s; the state: %s", what, QJsonDocument(m_state).toJson().constData());
        return held;
    }

    static bool live(const QJsonObject &s)
    {
        return s[u"signedIn"_s].toBool() && !s[u"offline"_s].toBool() && s[u"banner"_s].isNull()
               && !s[u"loading"_s].toBool() && !s[u"lastSync"_s].isNull();
    }

    // Every booking announced at most once, by the app's count and by the notification server's.
    [[nodiscard]] QString announcedTwice() const
    {
        QStringList twice;
        const QJsonObject counts = seen()[u"announced"_s].toObject();
        for (auto it = counts.constBegin(); it != counts.constEnd(); ++it) {
            if (it.value().toInt() != 1)
                twice.append(it.key());
        }
        QHash<QString, int> shown;
        for (const FakeNotificationServer::Call &call : m_notifications->calls()) {
            if (call.summary.startsWith(u"New booking: "_s) && ++shown[call.summary] > 1)
                twice.append(call.summary);
        }
        return twice.join(u", "_s);
    }

    // A guest books, and the app announces it once.
    bool newGuestAnnounced()
    {
        const QString id = guestBooks();
        return !id.isEmpty()
               && waitState(
                   [&](const QJsonObject &s) { return s[u"announced"_s][id + u" booked"_s].toInt() == 1 && live(s); },
                   "announced the guest");
    }

    [[nodiscard]] QString offlineText(const QString &savedAt) const
    {
        const QString zone = QString::fromUtf8(QTimeZone::systemTimeZoneId());
        return u"You're offline. Showing saved data from %1."_s.arg(
            Formats::format(ISO::parse(savedAt).value(), u"jmm"_s, QLocale::system().name(), zone));
    }

private Q_SLOTS:
    void initTestCase()
    {
        // Writes a token into the keyring and reads every file of its home: only in a session of its own.
        if (qEnvironmentVariableIsEmpty("QUORVANE_TEST_KEYRING_PASSWORD"))
            QSKIP("runs inside tests/support/run-in-session only");
        QVERIFY(m_dir.isValid());
        QVERIFY(QDir(m_dir.path()).mkpath(u"tmp"_s));
        m_token = u"canary-"_s + QUuid::createUuid().toString(QUuid::Id128);
        QVERIFY(startServer());

        LibsecretStore store;
        QVERIFY(Keychain(store).write(m_token));
        QSettings settings(QSettings::IniFormat, QSettings::UserScope, u"Quorvane"_s, u"Quorvane"_s);
        settings.setValue(u"onboarded.v2"_s, true); // no welcome guide over the window
        settings.sync();

        m_notifications = std::make_unique<FakeNotificationServer>(QDBusConnection::sessionBus());
        QVERIFY(m_notifications->start());
        QVERIFY(QDBusConnection::sessionBus().registerService(u"org.freedesktop.login1"_s));

        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DBUS_SYSTEM_BUS_ADDRESS"_s, environment.value(u"DBUS_SESSION_BUS_ADDRESS"_s));
        environment.insert(u"TMPDIR"_s, m_dir.filePath(u"tmp"_s));
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        m_app.setProcessEnvironment(environment);
        m_app.setProcessChannelMode(QProcess::MergedChannels);
        connect(&m_app, &QProcess::readyRead, this, [this] { m_output += m_app.readAll(); });

        // Polls each second, so that announcements come quickly; never refreshes by itself
        // during the test, so that only the retry mends a failure.
        launch(u"tick=1000,stale=3600000,timeout=1500"_s);
        QVERIFY(waitState(live, "came up live"));
        const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        QCOMPARE(QFile::permissions(statePath()) & others, QFile::Permissions());
        QVERIFY(seen()[u"bookings"_s].toInt() > 100);
        QVERIFY(QTest::qWaitFor([] { return QFile::exists(dataFile(u"changes-v2.json"_s)); }, patience));
    }

    // Each fault: the banner the user sees, with Retry where a retry may mend it; the saved
    // data stay on screen and on disk, untouched; once the server answers again, a retry
    // brings the app back to live.
    void faults_data()
    {
        QTest::addColumn<QJsonArray>("plant");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<bool>("retry");
        QTest::addColumn<QString>("text"); // the banner's words; "offline": with the saved data's time
        const auto everywhere = [](QJsonObject fault) {
            fault.insert(u"path"_s, u"sync/*"_s);
            fault.insert(u"count"_s, forever);
            return QJsonArray{fault};
        };
        const QString unexpected = u"Unexpected response: "_s;
        QTest::newRow("401") << everywhere({{u"status"_s, 401}}) << u"error"_s << false
                             << u"Your session has expired. Sign in again."_s;
        QTest::newRow("429") << everywhere({{u"status"_s, 429}}) << u"error"_s << true
                             << u"Too many requests. Quorvane will retry shortly."_s;
        QTest::newRow("500") << everywhere({{u"status"_s, 500}, {u"body"_s, u"{}"_s}}) << u"error"_s << true
                             << u"Server error (500)"_s;
        QTest::newRow("503 with its words")
            << everywhere({{u"status"_s, 503}, {u"body"_s, QJsonObject{{u"error"_s, u"Down for upkeep"_s}}}})
            << u"error"_s << true << u"Down for upkeep"_s;
        QTest::newRow("dropped connection") << everywhere({{u"drop"_s, true}}) << u"offline"_s << true << u"offline"_s;
        QTest::newRow("slower than the time-out")
            << everywhere({{u"delayMs"_s, 6000}}) << u"offline"_s << true << u"offline"_s;
        QTest::newRow("not JSON") << everywhere({{u"body"_s, u"<html>Bad gateway"_s}}) << u"error"_s << false
                                  << unexpected;
        QTest::newRow("JSON of the wrong shape")
            << everywhere({{u"body"_s, QJsonObject{{u"bookings"_s, 5}, {u"id"_s, u"x"_s}}}}) << u"error"_s << false
            << unexpected;
        QTest::newRow("50 MB answer") << QJsonArray{QJsonObject{{u"path"_s, u"sync/me"_s},
                                                                {u"bodyBytes"_s, 50'000'000},
                                                                {u"count"_s, forever}}}
                                      << u"error"_s << false << unexpected + u"the answer is over 32 MB"_s;
    }
    void faults()
    {
        QFETCH(QJsonArray, plant);
        QFETCH(QString, kind);
        QFETCH(bool, retry);
        QFETCH(QString, text);

        QVERIFY(newGuestAnnounced());
        const QJsonObject before = m_state;
        const QByteArray savedCache = readAll(dataFile(u"cache-v2.json"_s));
        const qint64 peakBefore = peakMemory(m_app.processId());
        QVERIFY(peakBefore > 0);

        for (const QJsonValue &fault : plant)
            QCOMPARE(control("POST", u"/sandbox/faults"_s, fault.toObject()).first, 200);
        wake();
        QVERIFY(waitState(
            [&](const QJsonObject &s) { return s[u"banner"_s][u"kind"_s] == kind && !s[u"loading"_s].toBool(); },
            "showed the banner"));
        const QJsonObject banner = seen()[u"banner"_s].toObject();
        if (text == "offline"_L1) {
            QCOMPARE(banner[u"text"_s].toString(), offlineText(before[u"savedAt"_s].toString()));
            QVERIFY(seen()[u"offline"_s].toBool());
        } else {
            QVERIFY2(banner[u"text"_s].toString().startsWith(text), qPrintable(banner[u"text"_s].toString()));
        }
        QCOMPARE(banner[u"retry"_s].toBool(), retry);
        // Signed out by a 401 alone, the token left for the next try as it was.
        QCOMPARE(seen()[u"signedIn"_s].toBool(), plant.first()[u"status"_s].toInt() != 401);
        // The saved data stay on screen, in place of any sign-in, and on disk as they were.
        QCOMPARE(seen()[u"bookings"_s].toInt(), before[u"bookings"_s].toInt());
        QCOMPARE(seen()[u"savedAt"_s].toString(), before[u"savedAt"_s].toString());
        QVERIFY(!seen()[u"signInShown"_s].toBool());
        QCOMPARE(readAll(dataFile(u"cache-v2.json"_s)), savedCache);
        QCOMPARE(m_app.state(), QProcess::Running);
        const qint64 grown = peakMemory(m_app.processId()) - peakBefore;
        QVERIFY2(grown < 30'000'000, qPrintable(u"the peak grew by %1 bytes"_s.arg(grown)));
        m_peakGrowth = std::max(m_peakGrowth, grown);

        QCOMPARE(control("DELETE", u"/sandbox/faults"_s).first, 200);
        wake();
        QVERIFY(waitState(
            [&](const QJsonObject &s) {
                return live(s) && s[u"lastSync"_s].toString() > before[u"lastSync"_s].toString();
            },
            "came back live"));
        // The cache holds what the app now shows, whole.
        const Result<Snapshot> saved = JSON::decode<Snapshot>(readAll(dataFile(u"cache-v2.json"_s)));
        QVERIFY(saved);
        QCOMPARE(saved.value().savedAt.toSecsSinceEpoch(),
                 ISO::parse(seen()[u"savedAt"_s].toString())->toSecsSinceEpoch());
        QCOMPARE(announcedTwice(), QString());
        ++m_faultsSurvived;
    }

    // The server goes away altogether: the app goes offline with its saved data, and is live
    // again at its next tick once the server is back, with nothing from before the restart
    // of the app announced again.
    void serverGoneAndBack()
    {
        quitApp();
        launch(u"tick=500,stale=2000,timeout=1500"_s);
        QVERIFY(waitState([](const QJsonObject &s) { return live(s) && s[u"announced"_s].toObject().isEmpty(); },
                          "restarted"));
        QTest::qWait(2000); // several polls of the restarted app
        QCOMPARE(announcedTwice(), QString());

        const QJsonObject before = m_state;
        const QByteArray savedCache = readAll(dataFile(u"cache-v2.json"_s));
        m_server.reset();
        QVERIFY(waitState([](const QJsonObject &s) { return s[u"offline"_s].toBool(); }, "went offline"));
        QCOMPARE(seen()[u"banner"_s][u"text"_s].toString(), offlineText(seen()[u"savedAt"_s].toString()));
        QCOMPARE(seen()[u"bookings"_s].toInt(), before[u"bookings"_s].toInt());
        QCOMPARE(readAll(dataFile(u"cache-v2.json"_s)), savedCache);

        QVERIFY(startServer());
        QVERIFY(waitState(
            [&](const QJsonObject &s) {
                return live(s) && s[u"lastSync"_s].toString() > before[u"lastSync"_s].toString();
            },
            "came back by itself"));
        QVERIFY(newGuestAnnounced());
        QCOMPARE(announcedTwice(), QString());
        QCOMPARE(m_app.state(), QProcess::Running);
        ++m_faultsSurvived;
    }

    // The token, after all of the above, is in the keyring and nowhere else: not in a file of
    // the session's home and folders or of the app's temporary folder, not in what it printed.
    void canaryNowhere()
    {
        quitApp();
        QStringList hits;
        int searched = 1;
        if (m_output.contains(m_token.toUtf8()))
            hits.append(u"the app's output"_s);
        const QString session = QDir(QDir::homePath() + u"/.."_s).canonicalPath();
        for (const QString &root : {session, m_dir.path()}) {
            QDirIterator files(root, QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDirIterator::Subdirectories);
            while (files.hasNext()) {
                const QString path = files.next();
                if (path.contains(u"/keyrings/"_s)) // the keyring's own storage
                    continue;
                ++searched;
                if (readAll(path).contains(m_token.toUtf8()))
                    hits.append(path);
            }
        }
        qInfo("faults survived: %d (peak memory grew by %lld kB at most); announcements: %lld, none twice; "
              "canary hits: %lld in %d files and the app's output",
              m_faultsSurvived, m_peakGrowth / 1024, qlonglong(m_guests.size()), qlonglong(hits.size()), searched - 1);
        QCOMPARE(hits, QStringList());
    }

    void cleanupTestCase()
    {
        if (m_app.state() != QProcess::NotRunning)
            quitApp();
    }
};

QTEST_GUILESS_MAIN(TestE2EFaults)
#include "tst_e2e_faults.moc"
