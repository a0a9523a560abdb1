// Signing in with a code confirmed in the browser, against the sandbox on loopback and the
// session's keyring: success, every way it fails, cancelling, restarting, and the
// name the computer gives itself.
#include "DeviceSignIn.h"
#include "FixedClock.h"
#include "Keychain.h"
#include "NetworkTransport.h"
#include "Sandbox.h"
#include "UrlOpener.h"
#include "linux/LibsecretStore.h"

#include <QJsonDocument>
#include <QNetworkAccessManager>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace quorvane;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Phase = DeviceSignIn::Phase;

namespace {

const Instant moment = QDateTime(QDate(2025, 3, 3), QTime(8, 0), Qt::UTC);
const QString earlier = u"earlier-token"_s;
const QString pollPath = u"/auth/device/poll"_s;

// The real transport, keeping every request it was given.
struct RecordingTransport : HTTPTransport {
    explicit RecordingTransport(QNetworkAccessManager &manager) : inner(manager) {}
    QCoro::Task<HTTPResponse> send(HTTPRequest request, Cancellation cancellation) override
    {
        sent.append(request);
        if (onSend)
            onSend(sent.size());
        co_return co_await inner.send(std::move(request), std::move(cancellation));
    }
    [[nodiscard]] qsizetype count(const QString &path) const
    {
        return std::count_if(sent.cbegin(), sent.cend(), [&](const auto &r) { return r.request.url().path() == path; });
    }
    NetworkTransport inner;
    QList<HTTPRequest> sent;
    std::function<void(qsizetype)> onSend;
};

// The session's keyring; `locked` makes it refuse every change, as a locked collection does.
struct Keyring : LibsecretStore {
    void remove(const QString &service, const QString &account) override
    {
        if (!locked)
            LibsecretStore::remove(service, account);
    }
    bool add(const QString &service, const QString &account, const QString &label, const QByteArray &secret) override
    {
        return !locked && LibsecretStore::add(service, account, label, secret);
    }
    bool locked = false;
};

// One sign-in against a sandbox on loopback that approves a code at its first poll, or only
// when the test approves it. The client's clock moves when told; opened pages are noted.
struct Rig {
    explicit Rig(int autoApproveSeconds = -1, DeviceSignIn::Timings timings = {20ms, 600s})
        : server({.port = 0, .autoApproveSeconds = autoApproveSeconds, .logRequests = false}, [now = serverNow] { return *now; }),
          transport(std::make_shared<RecordingTransport>(network)), signIn(transport, keyring, opener, clock, timings)
    {
        keychain.write(earlier);
        signIn.onSuccess = [this] { ++successes, tokenAtSuccess = keychain.read(Keychain::apiAccount); };
        QObject::connect(&signIn, &DeviceSignIn::phaseChanged, [this] {
            phases.append(signIn.phase());
            if (signIn.phase() == Phase::waiting)
                shownCode = signIn.code();
        });
        QString error;
        started = server.start(&error);
    }
    ~Rig()
    {
        signIn.cancel();
        QTest::qWait(20); // an aborted reply finishes before its network manager goes
    }
    void begin(const QString &suffix = {}) { signIn.start(QUrl(server.baseUrl() + suffix)); }
    void plant(const QString &path, const sandbox::Fault &fault) { server.faults().plant(path, fault); }
    [[nodiscard]] bool holds(const QString &token) const { return keychain.read(Keychain::apiAccount) == token; }

    std::shared_ptr<Instant> serverNow = std::make_shared<Instant>(moment);
    sandbox::Sandbox server;
    bool started = false;
    QNetworkAccessManager network;
    std::shared_ptr<RecordingTransport> transport;
    Keyring keyring;
    Keychain keychain{keyring};
    QList<QUrl> opened;
    UrlOpener opener{[this](const QUrl &url) { return opened.append(url), true; }};
    FixedClock clock{moment};
    DeviceSignIn signIn;
    int successes = 0;
    std::optional<QString> tokenAtSuccess;
    QList<Phase> phases;
    QString shownCode;
};

} // namespace

class DeviceSignInTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void signsIn_data()
    {
        QTest::addColumn<int>("autoApprove"); // -1: the test approves the code
        QTest::addColumn<int>("pending");     // planted "not yet" answers
        QTest::addColumn<QString>("baseSuffix");
        QTest::newRow("approved in the browser") << -1 << 0 << QString();
        QTest::newRow("approved by the first poll") << 0 << 0 << u"/"_s;
        QTest::newRow("not yet, twice") << 0 << 2 << QString();
    }
    void signsIn()
    {
        QFETCH(int, autoApprove);
        QFETCH(int, pending);
        QFETCH(QString, baseSuffix);
        Rig rig(autoApprove);
        QVERIFY(rig.started);
        if (pending > 0)
            rig.plant(u"auth/device/poll"_s, {.status = 428, .body = "{}", .count = pending});
        QSignalSpy succeeded(&rig.signIn, &DeviceSignIn::succeeded);
        QSignalSpy activated(&rig.signIn, &DeviceSignIn::activateRequested);

        rig.begin(baseSuffix);
        if (autoApprove < 0) {
            QTRY_COMPARE(rig.signIn.phase(), Phase::waiting);
            QVERIFY(rig.server.devices().approve(rig.signIn.code()));
        }
        QTRY_COMPARE(rig.signIn.phase(), Phase::done);
        QCOMPARE(rig.phases, (QList<Phase>{Phase::starting, Phase::waiting, Phase::done}));
        QCOMPARE(rig.opened, QList<QUrl>{QUrl(rig.server.baseUrl() + u"/device?code="_s + rig.shownCode)});
        QVERIFY(rig.successes == 1 && succeeded.count() == 1 && activated.count() == 1);
        const std::optional<QString> token = rig.keychain.read(Keychain::apiAccount);
        QVERIFY(token && rig.server.devices().isValid(*token) && rig.tokenAtSuccess == token); // never printed
        if (autoApprove >= 0)
            QCOMPARE(rig.transport->count(pollPath), pending + 1);
        for (const HTTPRequest &sent : std::as_const(rig.transport->sent)) {
            QVERIFY(sent.method == "POST" && !sent.request.hasRawHeader("Authorization"));
            QCOMPARE(sent.request.header(QNetworkRequest::ContentTypeHeader).toString(), u"application/json"_s);
        }
        const QJsonObject first = QJsonDocument::fromJson(*rig.transport->sent.first().body).object();
        QCOMPARE(first.value("label"_L1).toString(), DeviceSignIn::computerLabel());
    }

    void failures_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("status"); // 0: the connection is dropped
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("message"); // ending in "(": how it starts
        const QString poll = u"auth/device/poll"_s, start = u"auth/device/start"_s;
        const QString unreadable = u"The server's answer couldn't be read."_s;
        const QByteArray codes = R"({"device_code":"d","user_code":"U","verification_uri_complete":)";
        const auto row = [](const char *name, const QString &path, int status, const QByteArray &body, const QString &message) {
            QTest::newRow(name) << path << status << body << message;
        };
        row("poll: 500, not JSON", poll, 500, "<h1>oops</h1>", u"Sign-in failed (500)."_s);
        row("poll: 200, token a number", poll, 200, R"({"access_token":42})", u"Sign-in failed (200)."_s);
        row("poll: 200, token empty", poll, 200, R"({"access_token":""})", u"Sign-in failed (200)."_s);
        row("poll: token beside 201", poll, 201, R"({"access_token":"t"})", u"Sign-in failed (201)."_s);
        row("poll: code expired", poll, 400, R"({"error":"expired_token"})", u"That code expired. Try again."_s);
        row("poll: denied", poll, 403, R"({"error":"access_denied"})", u"Sign-in failed (403)."_s);
        row("poll: dropped", poll, 0, {}, u"Couldn't reach the server ("_s);
        row("start: 503", start, 503, R"({"error":"busy"})", u"Couldn't start sign-in."_s);
        row("start: not JSON", start, 200, "<html>", unreadable);
        row("start: a code missing", start, 200, R"({"user_code":"U","verification_uri_complete":"https:\/\/h"})", unreadable);
        row("start: page not a URL", start, 200, codes + "\"http://[broken\"}", unreadable);
        row("start: dropped", start, 0, {}, u"Couldn't reach the server ("_s);
    }
    // Every failure ends the flow at once and leaves the stored token alone. The server
    // approves at the first real poll, so a flow that went on polling would sign in.
    void failures()
    {
        QFETCH(QString, path);
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(QString, message);
        Rig rig(0);
        QVERIFY(rig.started);
        // The network stack may send a dropped request again; drop that too.
        rig.plant(path, {.status = status ? std::optional(status) : std::nullopt, .body = body, .drop = !status,
                         .count = status ? 1 : 5});
        rig.begin();
        QTRY_COMPARE(rig.signIn.phase(), Phase::failed);
        QVERIFY2(message.endsWith(u'(') ? rig.signIn.message().startsWith(message) : rig.signIn.message() == message,
                 qPrintable(rig.signIn.message()));
        QVERIFY(rig.signIn.code().isEmpty() && rig.signIn.url().isEmpty());
        QTest::qWait(100);
        QCOMPARE(rig.signIn.phase(), Phase::failed);
        const int polls = path == u"auth/device/poll"_s ? 1 : 0;
        QCOMPARE(rig.transport->count(pollPath), polls);
        QCOMPARE(rig.opened.size(), polls);
        QVERIFY(rig.successes == 0 && rig.holds(earlier));
    }

    // A flow that got its codes and still ends without a token leaves the earlier one.
    void endsWithoutAToken_data()
    {
        QTest::addColumn<QString>("how");
        QTest::addColumn<QString>("message");
        QTest::newRow("code expired on the server") << u"server"_s << u"That code expired. Try again."_s;
        QTest::newRow("at the client's deadline") << u"deadline"_s << u"Timed out waiting for approval."_s;
        QTest::newRow("keyring locked") << u"locked"_s << u"Couldn't save to the system keyring."_s;
    }
    void endsWithoutAToken()
    {
        QFETCH(QString, how);
        QFETCH(QString, message);
        const bool locked = how == u"locked"_s;
        Rig rig(locked ? 0 : -1);
        QVERIFY(rig.started);
        rig.keyring.locked = locked;
        rig.begin();
        if (!locked) {
            QTRY_COMPARE(rig.signIn.phase(), Phase::waiting);
            if (how == u"server"_s)
                *rig.serverNow = moment.addSecs(600);
            else
                rig.clock.advance(600s); // exactly the deadline: no longer before it
        }
        QTRY_COMPARE(rig.signIn.phase(), Phase::failed);
        QCOMPARE(rig.signIn.message(), message);
        rig.keyring.locked = false;
        QVERIFY(rig.successes == 0 && rig.holds(earlier));
    }

    void cancel_data()
    {
        QTest::addColumn<QString>("slowPath"); // answered after 300 ms
        QTest::addColumn<int>("interval");
        QTest::addColumn<int>("cancelAt"); // once this many requests went out; 0: once waiting
        QTest::newRow("asking for codes") << u"auth/device/start"_s << 20 << 1;
        QTest::newRow("between polls") << QString() << 300 << 0;
        QTest::newRow("polling") << u"auth/device/poll"_s << 20 << 2;
    }
    // The server approves at once: a request that slipped past the cancel would sign in.
    void cancel()
    {
        QFETCH(QString, slowPath);
        QFETCH(int, interval);
        QFETCH(int, cancelAt);
        Rig rig(0, {std::chrono::milliseconds(interval), 600s});
        QVERIFY(rig.started);
        if (!slowPath.isEmpty())
            rig.plant(slowPath, {.delayMs = 300});
        const auto cancelSoon = [&] { QTimer::singleShot(cancelAt ? 50 : 0, &rig.signIn, &DeviceSignIn::cancel); };
        rig.transport->onSend = [&](qsizetype sent) { sent == cancelAt ? cancelSoon() : void(); };
        connect(&rig.signIn, &DeviceSignIn::phaseChanged, this,
                [&] { cancelAt == 0 && rig.signIn.phase() == Phase::waiting ? cancelSoon() : void(); });

        rig.begin();
        QTRY_COMPARE(rig.signIn.phase(), Phase::idle);
        QCOMPARE(rig.transport->sent.size(), std::max(cancelAt, 1));
        QTest::qWait(400);
        QVERIFY(rig.signIn.phase() == Phase::idle && rig.signIn.message().isEmpty() && !rig.phases.contains(Phase::failed));
        QCOMPARE(rig.transport->sent.size(), std::max(cancelAt, 1));
        QVERIFY(rig.successes == 0 && rig.holds(earlier));
    }

    void newStartReplacesTheRunningFlow_data()
    {
        QTest::addColumn<bool>("whileStarting");
        QTest::newRow("while asking for codes") << true;
        QTest::newRow("while waiting") << false;
    }
    void newStartReplacesTheRunningFlow()
    {
        QFETCH(bool, whileStarting);
        Rig rig;
        QVERIFY(rig.started);
        rig.begin();
        if (!whileStarting)
            QTRY_COMPARE(rig.signIn.phase(), Phase::waiting);
        const QString abandoned = rig.signIn.code();
        rig.begin();
        QTRY_COMPARE(rig.signIn.phase(), Phase::waiting);
        const QString current = rig.signIn.code();
        // Approving the abandoned code signs nothing in: its flow no longer polls.
        QVERIFY(current != abandoned && (whileStarting || rig.server.devices().approve(abandoned)));
        QTest::qWait(100);
        QCOMPARE(rig.signIn.code(), current);
        QVERIFY(rig.server.devices().approve(current));
        QTRY_COMPARE(rig.signIn.phase(), Phase::done);
        QCOMPARE(rig.successes, 1);
        QCOMPARE(rig.transport->count(u"/auth/device/start"_s), 2);
        QCOMPARE(rig.opened.size(), whileStarting ? 1 : 2);
    }

    void computerLabel_data()
    {
        QTest::addColumn<QByteArray>("machineInfo");
        QTest::addColumn<QString>("hostName");
        QTest::addColumn<QString>("label");
        const QString host = u"mira-x1"_s;
        QTest::newRow("quoted, escapes") << QByteArray(R"(PRETTY_HOSTNAME="The \"Lab\" PC")") << host << u"The \"Lab\" PC"_s;
        QTest::newRow("single quotes") << QByteArray("PRETTY_HOSTNAME='B\xc3\xbcro 2'\n") << host << u"B\u00fcro 2"_s;
        QTest::newRow("among others") << QByteArray("# hostnamectl\nCHASSIS=laptop\nPRETTY_HOSTNAME=Work\nX=1\n") << host
                                      << u"Work"_s;
        QTest::newRow("commented out") << QByteArray("#PRETTY_HOSTNAME=Old\n") << host << host;
        QTest::newRow("blank") << QByteArray("PRETTY_HOSTNAME=\"  \"\n") << host << host;
        QTest::newRow("no names") << QByteArray() << u" "_s << u"Linux"_s;
    }
    void computerLabel()
    {
        QFETCH(QByteArray, machineInfo);
        QFETCH(QString, hostName);
        QFETCH(QString, label);
        QCOMPARE(DeviceSignIn::labelFrom(machineInfo, hostName), label);
    }
};

QTEST_GUILESS_MAIN(DeviceSignInTest)
#include "tst_device_sign_in.moc"
