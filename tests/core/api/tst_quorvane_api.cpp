// The request routine over real HTTP: statuses, retries and pauses, transport failures,
// the exact request on the wire, and cancellation.
#include "ApiHarness.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTest>
#include <QTimer>
#include <QUrlQuery>

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;
using Reply = ScriptedServer::Answer;

namespace {

Reply answer(int status, const char *body = "") { return Reply{status, QByteArray(body)}; }
Reply cutOff() { return Reply{0, {}, 0, true}; }

QStringList g_messages;
QtMessageHandler g_previousHandler = nullptr;

void recordMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    g_messages.append(message);
    if (g_previousHandler)
        g_previousHandler(type, context, message);
}

// A port that refuses connections: bound once, then released.
quint16 closedPort()
{
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost, 0);
    const quint16 port = probe.serverPort();
    probe.close();
    return port;
}

} // namespace

class TestQuorvaneAPI : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { g_previousHandler = qInstallMessageHandler(recordMessage); }

    // Statuses, network failures, retries and the `error` text, for GET and for writes.
    void statuses_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<int>("attempts");
        QTest::addColumn<QList<Reply>>("answers");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<int>("tries");

        using L = QList<Reply>;
        QTest::newRow("200 empty body") << "GET"_ba << 2 << L{answer(200)} << u"ok "_s << 1;
        QTest::newRow("299 counts as success") << "POST"_ba << 1 << L{answer(299, "x")} << u"ok x"_s << 1;
        QTest::newRow("401 GET, no retry") << "GET"_ba << 2 << L{answer(401)} << u"unauthorized"_s << 1;
        QTest::newRow("401 POST") << "POST"_ba << 1 << L{answer(401)} << u"unauthorized"_s << 1;
        QTest::newRow("429 then 200 GET") << "GET"_ba << 2 << L{answer(429), answer(200, "[]")} << u"ok []"_s << 2;
        QTest::newRow("429 on every try") << "GET"_ba << 2 << L{answer(429), answer(429)} << u"rateLimited"_s << 2;
        QTest::newRow("429 retried whatever the method") << "POST"_ba << 2 << L{answer(429), answer(204)} << u"ok "_s << 2;
        QTest::newRow("429 POST once") << "POST"_ba << 1 << L{answer(429)} << u"rateLimited"_s << 1;
        QTest::newRow("500 then 200 GET") << "GET"_ba << 2 << L{answer(500), answer(200, "{}")} << u"ok {}"_s << 2;
        QTest::newRow("5xx GET: last try decides")
            << "GET"_ba << 2 << L{answer(502, R"({"error":"first"})"), answer(503, R"({"error":"second"})")}
            << u"server(503, second)"_s << 2;
        QTest::newRow("500 POST, no retry") << "POST"_ba << 2 << L{answer(500)} << u"server(500, )"_s << 1;
        QTest::newRow("503 PUT, no retry") << "PUT"_ba << 2 << L{answer(503)} << u"server(503, )"_s << 1;
        QTest::newRow("503 DELETE, no retry") << "DELETE"_ba << 2 << L{answer(503)} << u"server(503, )"_s << 1;
        QTest::newRow("404 with text")
            << "GET"_ba << 2 << L{answer(404, R"({"error":"No such booking"})")} << u"server(404, No such booking)"_s << 1;
        QTest::newRow("404 empty") << "GET"_ba << 2 << L{answer(404)} << u"server(404, )"_s << 1;
        QTest::newRow("409 POST with text")
            << "POST"_ba << 1 << L{answer(409, R"({"error":"Slot taken","code":9})")} << u"server(409, Slot taken)"_s << 1;
        QTest::newRow("numeric error")
            << "GET"_ba << 2 << L{answer(500, R"({"error":42})"), answer(500, R"({"error":42})")} << u"server(500, )"_s << 2;
        QTest::newRow("error inside an array")
            << "GET"_ba << 2 << L{answer(400, R"([{"error":"x"}])")} << u"server(400, )"_s << 1;
        QTest::newRow("not JSON") << "POST"_ba << 1 << L{answer(502, "<html>Bad gateway</html>")} << u"server(502, )"_s << 1;
        QTest::newRow("attempts 0 still tries once") << "GET"_ba << 0 << L{answer(500)} << u"server(500, )"_s << 1;
        QTest::newRow("negative attempts") << "GET"_ba << -3 << L{answer(429)} << u"rateLimited"_s << 1;
        // No HTTP answer at all: a GET tries again, a write gives up at once.
        QTest::newRow("network fails on every GET") << "GET"_ba << 2 << L{cutOff(), cutOff()} << u"offline"_s << 2;
        QTest::newRow("GET recovers") << "GET"_ba << 2 << L{cutOff(), answer(200, "1")} << u"ok 1"_s << 2;
        QTest::newRow("network then 503") << "GET"_ba << 2 << L{cutOff(), answer(503)} << u"server(503, )"_s << 2;
        QTest::newRow("503 then network") << "GET"_ba << 2 << L{answer(503), cutOff()} << u"offline"_s << 2;
        QTest::newRow("network, POST once") << "POST"_ba << 2 << L{cutOff()} << u"offline"_s << 1;
        QTest::newRow("network, PUT once") << "PUT"_ba << 2 << L{cutOff()} << u"offline"_s << 1;
    }
    void statuses()
    {
        QFETCH(QByteArray, method);
        QFETCH(int, attempts);
        QFETCH(QList<Reply>, answers);
        QFETCH(QString, expected);
        QFETCH(int, tries);

        ApiHarness h;
        h.server.enqueue(answers);
        const std::optional<QByteArray> body = method == "GET" ? std::nullopt : std::optional("{}"_ba);
        QCOMPARE(run(bodyOf(h.api().request(u"sync/x"_s, method, {}, body, attempts))), expected);
        QCOMPARE(h.server.requests().size(), tries);
        QCOMPARE(h.tokenReads, 1); // once per request, not per try
    }

    void errorDescriptions_data()
    {
        QTest::addColumn<Reply>("reply");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<bool>("retryable");
        QTest::newRow("server text") << answer(404, R"({"error":"No such booking"})") << u"No such booking"_s << false;
        QTest::newRow("no text") << answer(404) << u"Server error (404)"_s << false;
        QTest::newRow("empty text") << answer(503, R"({"error":""})") << u"Server error (503)"_s << true;
        QTest::newRow("rate limit") << answer(429) << u"Too many requests. Quorvane will retry shortly."_s << true;
        QTest::newRow("expired") << answer(401) << u"Your session has expired. Sign in again."_s << false;
    }
    void errorDescriptions()
    {
        QFETCH(Reply, reply);
        QFETCH(QString, expected);
        QFETCH(bool, retryable);
        ApiHarness h;
        h.server.enqueue(reply);
        std::optional<APIError> caught;
        QCoro::waitFor([](QuorvaneAPI api, std::optional<APIError> &out) -> QCoro::Task<void> {
            try {
                co_await api.request(u"sync/x"_s, "POST"_ba, {}, "{}"_ba, 1);
            } catch (const APIError &error) {
                out = error;
            }
        }(h.api(), caught));
        QVERIFY(caught);
        QCOMPARE(caught->errorDescription(), expected);
        QCOMPARE(caught->isRetryable(), retryable);
    }

    void refusedConnectionIsOffline()
    {
        ApiHarness h;
        const QUrl nowhere(u"http://127.0.0.1:%1"_s.arg(closedPort()));
        QCOMPARE(run(bodyOf(h.api(canaryToken, nowhere).request(u"sync/me"_s, "GET"_ba, {}, {}, 2))), u"offline"_s);
        QCOMPARE(run(bodyOf(h.api(canaryToken, nowhere).request(u"sync/cancel"_s, "POST"_ba, {}, "{}"_ba, 1))),
                 u"offline"_s);
    }

    // The token goes to the server's own origin only.
    void redirects()
    {
        ApiHarness h;
        ScriptedServer elsewhere;
        Reply toElsewhere = answer(302);
        toElsewhere.location = elsewhere.base().resolved(QUrl(u"/collect"_s)).toEncoded();
        Reply toSameOrigin = answer(302);
        toSameOrigin.location = h.server.base().resolved(QUrl(u"/moved"_s)).toEncoded();
        h.server.enqueue({toSameOrigin, answer(200, "here"), toElsewhere});

        QCOMPARE(run(bodyOf(h.api().request(u"sync/me"_s, "GET"_ba, {}, {}, 1))), u"ok here"_s);
        QCOMPARE(h.server.requests().value(1).url.path(), u"/moved"_s);
        QVERIFY(h.server.requests().value(1).header("authorization") == "Bearer " + canaryToken.toUtf8());

        QCOMPARE(run(bodyOf(h.api().request(u"sync/me"_s, "GET"_ba, {}, {}, 1))), u"offline"_s);
        QVERIFY(elsewhere.requests().isEmpty());
    }

    // The pause before try n is n × 0.6 s. Only lower bounds: timers may run late, never early.
    void pauses_data()
    {
        QTest::addColumn<int>("attempts");
        QTest::addColumn<QList<qint64>>("minimumGaps");
        QTest::newRow("GET") << 2 << QList<qint64>{590};
        QTest::newRow("three tries") << 3 << QList<qint64>{590, 1190};
    }
    void pauses()
    {
        QFETCH(int, attempts);
        QFETCH(QList<qint64>, minimumGaps);
        ApiHarness h;
        for (int i = 1; i < attempts; ++i)
            h.server.enqueue(answer(429));
        h.server.enqueue(answer(200, "done"));
        QCOMPARE(run(bodyOf(h.api().request(u"sync/x"_s, "GET"_ba, {}, {}, attempts))), u"ok done"_s);
        const auto &requests = h.server.requests();
        QCOMPARE(requests.size(), attempts);
        for (qsizetype i = 0; i < minimumGaps.size(); ++i) {
            const qint64 gap = requests[i + 1].atMs - requests[i].atMs;
            QVERIFY2(gap >= minimumGaps[i], qPrintable(u"pause %1 was %2 ms"_s.arg(i + 1).arg(gap)));
        }
    }

    void notSignedIn_data()
    {
        QTest::addColumn<std::optional<QString>>("token");
        QTest::newRow("no token") << std::optional<QString>();
        QTest::newRow("empty token") << std::optional<QString>(u""_s);
    }
    void notSignedIn()
    {
        QFETCH(std::optional<QString>, token);
        ApiHarness h;
        QCOMPARE(run(bodyOf(h.api(token).request(u"sync/me"_s, "GET"_ba, {}, {}, 2))), u"notSignedIn"_s);
        QuorvaneAPI withoutProvider{h.server.base(), {}, h.transport};
        QCOMPARE(run(bodyOf(withoutProvider.request(u"sync/me"_s, "GET"_ba, {}, {}, 2))), u"notSignedIn"_s);
        QTest::qWait(50);
        QVERIFY(h.server.requests().isEmpty());
    }

    // What goes out: the names are the complete set, so anything added shows up here.
    void headers_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<std::optional<QByteArray>>("body");
        QTest::addColumn<QList<QByteArray>>("names");
        const QList<QByteArray> common{"accept-encoding", "accept-language", "authorization", "connection", "host",
                                       "user-agent"};
        QTest::newRow("GET") << "GET"_ba << std::optional<QByteArray>() << common;
        QList<QByteArray> withBody = common + QList<QByteArray>{"content-length", "content-type"};
        std::sort(withBody.begin(), withBody.end());
        QTest::newRow("POST") << "POST"_ba << std::optional(R"({"id":"b1"})"_ba) << withBody;
        QTest::newRow("PUT") << "PUT"_ba << std::optional(R"({})"_ba) << withBody;
    }
    void headers()
    {
        QFETCH(QByteArray, method);
        QFETCH(std::optional<QByteArray>, body);
        QFETCH(QList<QByteArray>, names);
        ApiHarness h;
        QVERIFY(run(bodyOf(h.api().request(u"sync/x"_s, method, {}, body, 1))).startsWith(u"ok"_s));
        const ScriptedServer::Request &sent = h.server.requests().value(0);
        QCOMPARE(sent.method, method);
        QCOMPARE(sent.headerNames(), names);
        QVERIFY(sent.header("authorization") == "Bearer " + canaryToken.toUtf8());
        QCOMPARE(sent.header("user-agent"), "Quorvane-Linux/2.0"_ba);
        QCOMPARE(sent.header("content-type"), body ? "application/json"_ba : QByteArray());
        QCOMPARE(sent.body, body.value_or(QByteArray()));
    }

    // Paths go below the base's own path; the query goes out sorted by key.
    void urls_data()
    {
        QTest::addColumn<QString>("basePath");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QuorvaneAPI::Query>("query");
        QTest::addColumn<QString>("expectedPath");
        QTest::addColumn<QString>("expectedQuery"); // null: no question mark at all
        QTest::newRow("root") << u""_s << u"sync/me"_s << QuorvaneAPI::Query{} << u"/sync/me"_s << QString();
        QTest::newRow("below a path") << u"/api"_s << u"sync/polls/delete"_s << QuorvaneAPI::Query{}
                                      << u"/api/sync/polls/delete"_s << QString();
        QTest::newRow("trailing slash") << u"/api/"_s << u"sync/me"_s << QuorvaneAPI::Query{} << u"/api/sync/me"_s
                                        << QString();
        QTest::newRow("sorted by key")
            << u""_s << u"sync/slots"_s
            << QuorvaneAPI::Query{{u"type"_s, u"intro"_s}, {u"tz"_s, u"Europe/Berlin"_s}, {u"days"_s, u"14"_s}}
            << u"/sync/slots"_s << u"days=14&type=intro&tz=Europe/Berlin"_s;
        QTest::newRow("values are encoded") << u""_s << u"sync/slots"_s
                                            << QuorvaneAPI::Query{{u"type"_s, u"a&b=c d"_s}} << u"/sync/slots"_s
                                            << u"type=a%26b%3Dc%20d"_s;
    }
    void urls()
    {
        QFETCH(QString, basePath);
        QFETCH(QString, path);
        QFETCH(QuorvaneAPI::Query, query);
        QFETCH(QString, expectedPath);
        QFETCH(QString, expectedQuery);
        ApiHarness h;
        QUrl base = h.server.base();
        base.setPath(basePath);
        QVERIFY(run(bodyOf(h.api(canaryToken, base).request(path, "GET"_ba, query, {}, 1))).startsWith(u"ok"_s));
        const QUrl sent = h.server.requests().value(0).url;
        QCOMPARE(sent.path(), expectedPath);
        QCOMPARE(sent.hasQuery(), !expectedQuery.isNull());
        if (!expectedQuery.isNull()) {
            // Compared item by item, in order, each side decoded by the same rules.
            const auto items = QUrlQuery(sent).queryItems(QUrl::FullyDecoded);
            const auto expectedItems = QUrlQuery(expectedQuery).queryItems(QUrl::FullyDecoded);
            QCOMPARE(items, expectedItems);
        }
    }

    // Cancellation ends the call as a cancellation, not as a failure, at any stage.
    void cancellation_data()
    {
        QTest::addColumn<Reply>("first");
        QTest::addColumn<int>("cancelAfterMs"); // after the first request arrived; -1: before sending
        QTest::newRow("before sending") << answer(200) << -1;
        QTest::newRow("while the answer is awaited") << Reply{200, "late", 15'000} << 0;
        QTest::newRow("during the pause") << answer(503) << 150;
        QTest::newRow("during the pause after a network failure") << cutOff() << 150;
    }
    void cancellation()
    {
        QFETCH(Reply, first);
        QFETCH(int, cancelAfterMs);
        ApiHarness h;
        h.server.enqueue(first);
        QuorvaneAPI api = h.api();
        if (cancelAfterMs < 0)
            api.cancellation.cancel();
        connect(&h.server, &ScriptedServer::received, this, [&](int) {
            QTimer::singleShot(cancelAfterMs, this, [c = api.cancellation] { c.cancel(); });
        });
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(run(bodyOf(api.request(u"sync/x"_s, "GET"_ba, {}, {}, 3))), u"cancelled"_s);
        QCOMPARE(h.server.requests().size(), cancelAfterMs < 0 ? 0 : 1);
        QVERIFY2(clock.elapsed() < 10'000, "the late answer or a full pause was waited for");
    }

    void sleepWakesOnCancel()
    {
        Cancellation cancellation;
        QTimer::singleShot(20, this, [cancellation] { cancellation.cancel(); });
        QElapsedTimer clock;
        clock.start();
        const QString outcome = run([](Cancellation c) -> QCoro::Task<QString> {
            co_await Cancellation::sleep(std::chrono::seconds(60), c);
            co_return u"slept"_s;
        }(cancellation));
        QCOMPARE(outcome, u"cancelled"_s);
        QVERIFY(clock.elapsed() < 30'000);
    }

    // An operation's own failure and a cancellation must not name the token anywhere.
    void cleanupTestCase()
    {
        qInstallMessageHandler(g_previousHandler);
        for (const QString &message : std::as_const(g_messages))
            QVERIFY2(!message.contains(canaryToken), "a message printed the token");
    }
};

QTEST_GUILESS_MAIN(TestQuorvaneAPI)
#include "tst_quorvane_api.moc"
