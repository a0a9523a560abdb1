// The fifteen operations on the wire: method, path, query, body, and what they make of
// the answer, including answers that do not decode.
#include "ApiHarness.h"
#include "ISO.h"
#include "JSON.h"

#include <QJsonDocument>
#include <QTest>
#include <QUrlQuery>

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

namespace {

using Call = std::function<QCoro::Task<QString>(QuorvaneAPI)>;

const Instant from = ISO::parse(u"2026-03-10T14:00:00.250Z"_s).value();

const QByteArray bookingB1 = R"({"id":"b1","type":"intro","start":"2026-03-10T14:00:00Z",)"
                             R"("end":"2026-03-10T14:30:00.5+01:00","name":"Ada","email":"ada@example.com",)"
                             R"("tz":"Europe/Berlin","status":"confirmed"})";
const QByteArray pollP1 = R"({"id":"p1","title":"Offsite","minutes":30,"booked":false,"voters":[],"options":[]})";

QString ids(const QList<Booking> &bookings)
{
    QStringList out;
    for (const Booking &b : bookings)
        out.append(b.id);
    return out.join(u',');
}

HostSettings sampleSettings()
{
    HostSettings settings;
    settings.owner = u"Ada"_s;
    settings.handle = u"ada"_s;
    settings.timezone = u"Europe/Berlin"_s;
    settings.availability = {DayAvailability{2, {TimeRange{540, 1020}}}};
    return settings;
}

QString optionalText(const std::optional<QString> &text)
{
    return text ? *text : u"none"_s;
}

// The JSON bodies compare as values: key order is free on the wire.
QJsonValue jsonOf(const QByteArray &bytes)
{
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    return document.isObject() ? QJsonValue(document.object()) : QJsonValue(document.array());
}

} // namespace

Q_DECLARE_METATYPE(Call)

class TestApiOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operations_data()
    {
        QTest::addColumn<Call>("call");
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("query");     // decoded, in the order sent
        QTest::addColumn<QByteArray>("sent");   // JSON body; empty: none
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QString>("expected");

        auto row = [](const char *name, Call call, const char *method, const char *path, QString query,
                      QByteArray sent, QByteArray answer, QString expected) {
            QTest::newRow(name) << call << QByteArray(method) << QString::fromLatin1(path) << query << sent
                                << answer << expected;
        };
        row("me", [](QuorvaneAPI api) -> QCoro::Task<QString> {
            const Account account = co_await api.me();
            co_return u"%1 %2"_s.arg(account.id).arg(account.email);
        }, "GET", "/sync/me", {}, {}, R"({"id":7,"email":"ada@example.com"})", u"7 ada@example.com"_s);
        row("settings", [](QuorvaneAPI api) -> QCoro::Task<QString> {
            const HostSettings settings = co_await api.settings();
            co_return u"%1 %2"_s.arg(settings.handle).arg(settings.maxMeetingsPerDay);
        }, "GET", "/sync/settings", {}, {}, R"({"handle":"ada","maxMeetingsPerDay":"3"})", u"ada 5"_s);
        row("saveSettings", [](QuorvaneAPI api) -> QCoro::Task<QString> {
            co_return (co_await api.saveSettings(sampleSettings())).handle;
        }, "PUT", "/sync/settings", {}, JSON::encode(sampleSettings()), R"({"handle":"as-stored"})", u"as-stored"_s);
        row("upcoming", [](QuorvaneAPI api) -> QCoro::Task<QString> {
            co_return ids(co_await api.upcoming());
        }, "GET", "/sync/bookings", {}, {}, R"({"bookings":[)" + bookingB1 + "]}", u"b1"_s);
        row("history", [](QuorvaneAPI api) -> QCoro::Task<QString> {
            co_return ids(co_await api.history(from));
        }, "GET", "/sync/history", u"from=2026-03-10T14:00:00.250Z"_s, {}, R"({"bookings":[]})", u""_s);
        row("changes", [](QuorvaneAPI api) -> QCoro::Task<QString> {
            const BookingChanges changes = co_await api.changes(from);
            co_return ids(changes.changes) + u" at "_s + (changes.serverTime ? ISO::string(*changes.serverTime) : u"none"_s);
        }, "GET", "/sync/changes", u"since=2026-03-10T14:00:00.250Z"_s, {},
            R"({"changes":[)" + bookingB1 + R"(],"serverTime":"2026-03-10T16:00:00+01:00"})",
            u"b1 at 2026-03-10T15:00:00.000Z"_s);
        row("google", [](QuorvaneAPI api) -> QCoro::Task<QString> {
            const GoogleStatus status = co_await api.google();
            co_return u"%1 %2"_s.arg(status.connected).arg(status.email.value_or(u"-"_s));
        }, "GET", "/sync/google", {}, {}, R"({"connected":true,"email":"ada@example.com"})", u"1 ada@example.com"_s);
        row("polls", [](QuorvaneAPI api) -> QCoro::Task<QString> {
            const QList<Poll> polls = co_await api.polls();
            co_return polls.isEmpty() ? u"none"_s : polls.first().id;
        }, "GET", "/sync/polls", {}, {}, R"({"polls":[)" + pollP1 + "]}", u"p1"_s);
        row("slots", [](QuorvaneAPI api) -> QCoro::Task<QString> {
            const SlotList list = co_await api.slots(u"intro"_s, 14, u"America/New_York"_s);
            co_return u"%1 %2 %3"_s.arg(list.type, list.mode).arg(list.slots.size());
        }, "GET", "/sync/slots", u"days=14&type=intro&tz=America/New_York"_s, {},
            R"({"type":"intro","mode":"best","slots":[{"start":"2026-03-11T09:00:00Z","end":"2026-03-11T09:30:00Z","score":3}]})",
            u"intro best 1"_s);
        row("cancel", [](QuorvaneAPI api) -> QCoro::Task<QString> {
            co_await api.cancel(u"b1"_s);
            co_return u"done"_s;
        }, "POST", "/sync/cancel", {}, R"({"id":"b1"})", "not even JSON", u"done"_s);
        row("setNoShow", [](QuorvaneAPI api) -> QCoro::Task<QString> {
            co_await api.setNoShow(u"b1"_s, true);
            co_return u"done"_s;
        }, "POST", "/sync/noshow", {}, R"({"id":"b1","value":true})", "", u"done"_s);
        row("createPoll", [](QuorvaneAPI api) -> QCoro::Task<QString> {
            co_return optionalText(co_await api.createPoll(u"Offsite"_s, u"intro"_s));
        }, "POST", "/sync/polls", {}, R"({"title":"Offsite","type":"intro"})",
            "{\"url\":\"https://quorvane.example/poll/p9\"}", u"https://quorvane.example/poll/p9"_s);
        row("deletePoll", [](QuorvaneAPI api) -> QCoro::Task<QString> {
            co_await api.deletePoll(u"p1"_s);
            co_return u"done"_s;
        }, "POST", "/sync/polls/delete", {}, R"({"id":"p1"})", "{}", u"done"_s);
        row("connectLink", [](QuorvaneAPI api) -> QCoro::Task<QString> {
            const std::optional<QUrl> url = co_await api.connectLink();
            co_return url ? url->toString() : u"none"_s;
        }, "POST", "/sync/connect-link", {}, "{}", "{\"url\":\"https://accounts.example/o/auth?state=x\"}",
            u"https://accounts.example/o/auth?state=x"_s);
        row("disconnectGoogle", [](QuorvaneAPI api) -> QCoro::Task<QString> {
            co_await api.disconnectGoogle();
            co_return u"done"_s;
        }, "POST", "/sync/disconnect", {}, "{}", "{}", u"done"_s);
    }
    void operations()
    {
        QFETCH(Call, call);
        QFETCH(QByteArray, method);
        QFETCH(QString, path);
        QFETCH(QString, query);
        QFETCH(QByteArray, sent);
        QFETCH(QByteArray, answer);
        QFETCH(QString, expected);

        ApiHarness h;
        h.server.enqueue(ScriptedServer::Answer{200, answer});
        QCOMPARE(run(call(h.api())), expected);
        QCOMPARE(h.server.requests().size(), 1);
        const ScriptedServer::Request &request = h.server.requests().first();
        QCOMPARE(request.method, method);
        QCOMPARE(request.url.path(), path);
        QCOMPARE(QUrlQuery(request.url).toString(QUrl::FullyDecoded), query);
        QCOMPARE(request.header("content-type").isEmpty(), sent.isEmpty());
        if (sent.isEmpty())
            QVERIFY(request.body.isEmpty());
        else
            QCOMPARE(jsonOf(request.body), jsonOf(sent));
    }

    // Reads retry, writes do not: a failing write may already have taken effect.
    void attempts_data()
    {
        QTest::addColumn<Call>("call");
        QTest::addColumn<int>("tries");
        QTest::newRow("GET") << Call([](QuorvaneAPI api) -> QCoro::Task<QString> {
            co_await api.google();
            co_return u"done"_s;
        }) << 2;
        QTest::newRow("POST") << Call([](QuorvaneAPI api) -> QCoro::Task<QString> {
            co_await api.cancel(u"b1"_s);
            co_return u"done"_s;
        }) << 1;
        QTest::newRow("PUT") << Call([](QuorvaneAPI api) -> QCoro::Task<QString> {
            co_await api.saveSettings(sampleSettings());
            co_return u"done"_s;
        }) << 1;
    }
    void attempts()
    {
        QFETCH(Call, call);
        QFETCH(int, tries);
        ApiHarness h;
        h.server.enqueue({ScriptedServer::Answer{500, R"({"error":"down"})"}, ScriptedServer::Answer{500, R"({"error":"down"})"}});
        QCOMPARE(run(call(h.api())), u"server(500, down)"_s);
        QCOMPARE(h.server.requests().size(), tries);
    }

    // Answers that are no JSON, not an object, or lack a text `url` give no value, not a failure.
    void optionalLinks_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QString>("poll");
        QTest::addColumn<QString>("link");
        QTest::newRow("a link") << "{\"url\":\"https://q.example/x\"}"_ba << u"https://q.example/x"_s << u"https://q.example/x"_s;
        QTest::newRow("empty body") << ""_ba << u"none"_s << u"none"_s;
        QTest::newRow("not JSON") << "<html>"_ba << u"none"_s << u"none"_s;
        QTest::newRow("an array") << "[\"https://q.example/x\"]"_ba << u"none"_s << u"none"_s;
        QTest::newRow("no url key") << "{\"link\":\"https://q.example/x\"}"_ba << u"none"_s << u"none"_s;
        QTest::newRow("url not a text") << R"({"url":42})"_ba << u"none"_s << u"none"_s;
        QTest::newRow("empty url") << R"({"url":""})"_ba << u""_s << u"none"_s;
        QTest::newRow("unparseable url") << "{\"url\":\"http://exa mple.com/\"}"_ba << u"http://exa mple.com/"_s << u"none"_s;
    }
    void optionalLinks()
    {
        QFETCH(QByteArray, answer);
        QFETCH(QString, poll);
        QFETCH(QString, link);
        ApiHarness h;
        h.server.enqueue({ScriptedServer::Answer{201, answer}, ScriptedServer::Answer{200, answer}});
        QCOMPARE(run([](QuorvaneAPI api) -> QCoro::Task<QString> {
                     co_return optionalText(co_await api.createPoll(u"t"_s, u"intro"_s));
                 }(h.api())),
                 poll);
        QCOMPARE(run([](QuorvaneAPI api) -> QCoro::Task<QString> {
                     const std::optional<QUrl> url = co_await api.connectLink();
                     co_return url ? url->toString() : u"none"_s;
                 }(h.api())),
                 link);
    }

    // A GET answer that does not decode becomes a short `decoding` failure, after one try.
    void decodingFailures_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QString>("mentions");
        const QByteArray longDate = QByteArray(300, '9');
        QTest::newRow("not JSON") << "<html>"_ba << QString();
        QTest::newRow("missing list") << R"({"items":[]})"_ba << u"bookings"_s;
        QTest::newRow("date without zone")
            << QByteArray(bookingB1).replace("2026-03-10T14:00:00Z", "2026-03-10T14:00:00").prepend(R"({"bookings":[)").append("]}")
            << u"Bad date 2026-03-10T14:00:00"_s;
        QTest::newRow("long reason is cut") << QByteArray(bookingB1).replace("2026-03-10T14:00:00Z", longDate)
                                                   .prepend(R"({"bookings":[)").append("]}")
                                            << u"Bad date 999"_s;
    }
    void decodingFailures()
    {
        QFETCH(QByteArray, answer);
        QFETCH(QString, mentions);
        ApiHarness h;
        h.server.enqueue(ScriptedServer::Answer{200, answer});
        std::optional<APIError> caught;
        QCoro::waitFor([](QuorvaneAPI api, std::optional<APIError> &out) -> QCoro::Task<void> {
            try {
                co_await api.upcoming();
            } catch (const APIError &error) {
                out = error;
            }
        }(h.api(), caught));
        QVERIFY(caught);
        QCOMPARE(caught->kind(), APIError::Kind::decoding);
        QVERIFY(!caught->message().isEmpty());
        QVERIFY2(caught->message().size() <= 160, qPrintable(caught->message()));
        QVERIFY2(caught->message().contains(mentions), qPrintable(caught->message()));
        QCOMPARE(caught->errorDescription(), u"Unexpected response: "_s + caught->message());
        QCOMPARE(h.server.requests().size(), 1);
    }

    // The settings save reports an undecodable answer as the JSON layer's failure, not as an APIError.
    void saveSettingsPassesDecodeFailureOn()
    {
        ApiHarness h;
        h.server.enqueue(ScriptedServer::Answer{200, "<html>saved</html>"});
        const QString outcome = run([](QuorvaneAPI api) -> QCoro::Task<QString> {
            co_await api.saveSettings(sampleSettings());
            co_return u"saved"_s;
        }(h.api()));
        QVERIFY2(outcome.startsWith(u"json("_s), qPrintable(outcome));
        QCOMPARE(h.server.requests().size(), 1);
    }
};

QTEST_GUILESS_MAIN(TestApiOperations)
#include "tst_api_operations.moc"
