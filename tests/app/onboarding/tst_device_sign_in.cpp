// Signing in with a code confirmed in the browser, against the sandbox on loopback and the
// session's keyring: success and the model taking over, the ways it fails, cancelling and
// trying again.
#include "ModelRig.h"
#include "onboarding/DeviceSignIn.h"
#include "support/ScriptedServer.h"

#include <QTest>
#include <QTimer>

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Phase = DeviceSignIn::Phase;

namespace {

const QString poll = u"auth/device/poll"_s;

// A sign-in on a model rig, whose keyring holds an earlier token. The sandbox approves a code
// at its first poll (autoApprove 0) or only when the test approves it (-1).
struct Flow {
    explicit Flow(int autoApprove = -1, DeviceSignIn::Timings timings = {20ms, 600s})
        : rig(autoApprove)
        , signIn(rig.transport, rig.secrets, rig.opener, rig.clock, timings)
    {
        started = rig.ready(&why);
        signIn.onSuccess = [this] { ++successes; };
    }
    ~Flow()
    {
        signIn.cancel();
        QTest::qWait(20); // an aborted reply finishes before its network manager goes
    }
    void begin() { signIn.start(QUrl(rig.server.base())); }
    [[nodiscard]] int polls() const { return rig.transport->count("POST", poll); }
    [[nodiscard]] bool untouched() const
    {
        return successes == 0 && rig.keychain.read(Keychain::apiAccount) == QLatin1StringView(ModelRig::token);
    }

    ModelRig rig;
    DeviceSignIn signIn;
    bool started = false;
    QString why;
    int successes = 0;
};

} // namespace

class DeviceSignInTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // The token is stored before the model is told, so the model's refresh signs in with it.
    void signsInAndTheModelTakesOver()
    {
        Flow flow;
        QVERIFY2(flow.started, qPrintable(flow.why));
        flow.rig.keychain.signOut();
        auto model = flow.rig.makeModel();
        QVERIFY(model->needsSignIn());
        flow.signIn.onSuccess = [&] { model->signedIn(); };
        flow.begin();
        QTRY_COMPARE(flow.signIn.phase(), Phase::waiting);
        const QString code = flow.signIn.code();
        QCOMPARE(flow.rig.opened, QList<QUrl>{QUrl(flow.rig.server.base() + u"/device?code="_s + code)});
        QTRY_VERIFY(flow.polls() >= 2); // "not yet" keeps it polling
        QVERIFY(flow.rig.server.sandbox().devices().approve(code));
        QTRY_COMPARE(flow.signIn.phase(), Phase::done);
        const std::optional<QString> token = flow.rig.keychain.read(Keychain::apiAccount);
        QVERIFY(token && flow.rig.server.sandbox().devices().isValid(*token));
        QVERIFY(!model->needsSignIn());
        QTRY_VERIFY(model->account().has_value());
    }

    // Both steps go out as this client's own requests, and the token already in the keyring
    // stays out of them.
    void requestsAreTheClientsOwnWithoutAToken()
    {
        Flow flow;
        QVERIFY2(flow.started, qPrintable(flow.why));
        ScriptedServer server;
        server.enqueue(
            {{200, R"({"device_code":"d","user_code":"U","verification_uri_complete":"https:\/\/h\/d"})"}, {500, {}}});
        flow.signIn.start(server.base());
        QTRY_COMPARE(flow.signIn.phase(), Phase::failed);
        QCOMPARE(server.requests().size(), 2);
        for (const ScriptedServer::Request &request : server.requests()) {
            QCOMPARE(request.header("user-agent"), "Quorvane-Linux/2.0"_ba);
            QCOMPARE(request.header("authorization"), QByteArray());
        }
    }

    void failures_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("status"); // 0: the connection is dropped
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("message"); // ending in "(": how it starts
        const QString start = u"auth/device/start"_s, unreadable = u"The server's answer couldn't be read."_s;
        const auto row = [](const char *name, const QString &path, int status, const QByteArray &body,
                            const QString &message) { QTest::newRow(name) << path << status << body << message; };
        row("poll: 500, not JSON", poll, 500, "<h1>oops</h1>", u"Sign-in failed (500)."_s);
        row("poll: 200, token a number", poll, 200, R"({"access_token":42})", u"Sign-in failed (200)."_s);
        row("poll: 200, token empty", poll, 200, R"({"access_token":""})", u"Sign-in failed (200)."_s);
        row("poll: token beside 201", poll, 201, R"({"access_token":"t"})", u"Sign-in failed (201)."_s);
        row("poll: dropped", poll, 0, {}, u"Couldn't reach the server ("_s);
        row("start: 503", start, 503, R"({"error":"busy"})", u"Couldn't start sign-in."_s);
        row("start: not JSON", start, 200, "<html>", unreadable);
        row("start: a code missing", start, 200, R"({"user_code":"U","verification_uri_complete":"https:\/\/h"})",
            unreadable);
        row("start: page not a URL", start, 200,
            "{\"device_code\":\"d\",\"user_code\":\"U\",\"verification_uri_complete\":\"http://[broken\"}", unreadable);
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
        Flow flow(0);
        QVERIFY2(flow.started, qPrintable(flow.why));
        // The network stack may send a dropped request again; drop that too.
        flow.rig.server.sandbox().faults().plant(path, {.status = status ? std::optional(status) : std::nullopt,
                                                        .body = body,
                                                        .drop = !status,
                                                        .count = status ? 1 : 5});
        flow.begin();
        QTRY_COMPARE(flow.signIn.phase(), Phase::failed);
        const QString said = flow.signIn.message();
        QVERIFY2(message.endsWith(u'(') ? said.startsWith(message) : said == message, qPrintable(said));
        QVERIFY(flow.signIn.code().isEmpty() && flow.signIn.url().isEmpty());
        QTest::qWait(100);
        QCOMPARE(flow.signIn.phase(), Phase::failed);
        QCOMPARE(flow.polls(), path == poll ? 1 : 0);
        QCOMPARE(flow.rig.opened.size(), flow.polls());
        QVERIFY(flow.untouched());
    }

    // A code that runs out leaves the earlier token; Try Again asks for a new code, which signs in.
    void expiresAndTriesAgain_data()
    {
        QTest::addColumn<bool>("onTheServer");
        QTest::addColumn<QString>("message");
        QTest::newRow("code expired on the server") << true << u"That code expired. Try again."_s;
        QTest::newRow("at the client's deadline") << false << u"Timed out waiting for approval."_s;
    }
    void expiresAndTriesAgain()
    {
        QFETCH(bool, onTheServer);
        QFETCH(QString, message);
        Flow flow;
        QVERIFY2(flow.started, qPrintable(flow.why));
        flow.begin();
        QTRY_COMPARE(flow.signIn.phase(), Phase::waiting);
        const QString first = flow.signIn.code();
        if (onTheServer)
            flow.rig.server.advance(600);
        else
            flow.rig.clock.advance(600s); // exactly the deadline: no longer before it
        QTRY_COMPARE(flow.signIn.phase(), Phase::failed);
        QCOMPARE(flow.signIn.message(), message);
        QVERIFY(flow.untouched());

        flow.begin();
        QTRY_COMPARE(flow.signIn.phase(), Phase::waiting);
        QVERIFY(flow.signIn.code() != first);
        QVERIFY(flow.rig.server.sandbox().devices().approve(flow.signIn.code()));
        QTRY_COMPARE(flow.signIn.phase(), Phase::done);
        QCOMPARE(flow.successes, 1);
    }

    void cancel_data()
    {
        QTest::addColumn<QString>("slowPath"); // answered after 300 ms
        QTest::addColumn<int>("interval");
        QTest::addColumn<int>("cancelAt"); // once this many requests went out; 0: once waiting
        QTest::newRow("asking for codes") << u"auth/device/start"_s << 20 << 1;
        QTest::newRow("waiting between polls") << QString() << 300 << 0;
        QTest::newRow("polling") << poll << 20 << 2;
    }
    // Cancelling goes back to the start, quietly. The server approves at once: a request that
    // slipped past the cancel would sign in.
    void cancel()
    {
        QFETCH(QString, slowPath);
        QFETCH(int, interval);
        QFETCH(int, cancelAt);
        Flow flow(0, {std::chrono::milliseconds(interval), 600s});
        QVERIFY2(flow.started, qPrintable(flow.why));
        if (!slowPath.isEmpty())
            flow.rig.server.sandbox().faults().plant(slowPath, {.delayMs = 300});
        const auto cancelSoon = [&] { QTimer::singleShot(cancelAt ? 50 : 0, &flow.signIn, &DeviceSignIn::cancel); };
        flow.rig.transport->onSend = [&](qsizetype sent) { sent == cancelAt ? cancelSoon() : void(); };
        connect(&flow.signIn, &DeviceSignIn::phaseChanged, this,
                [&] { cancelAt == 0 && flow.signIn.phase() == Phase::waiting ? cancelSoon() : void(); });

        flow.begin();
        QTRY_COMPARE(flow.signIn.phase(), Phase::idle);
        QCOMPARE(flow.rig.transport->sent.size(), std::max(cancelAt, 1));
        QTest::qWait(400);
        QVERIFY(flow.signIn.phase() == Phase::idle && flow.signIn.message().isEmpty() && flow.signIn.code().isEmpty());
        QCOMPARE(flow.rig.transport->sent.size(), std::max(cancelAt, 1));
        QVERIFY(flow.untouched());
    }
};

QTEST_GUILESS_MAIN(DeviceSignInTest)
#include "tst_device_sign_in.moc"
