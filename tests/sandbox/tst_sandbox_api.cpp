// The sync API over real loopback HTTP, where the client alone can't see it: authentication,
// refused requests, lenient settings, simulated guests. What the client reads of each operation
// is checked through the client itself, in tests/e2e.
#include "SandboxHarness.h"

#include "GuestSimulator.h"
#include "ISO.h"
#include "JSON.h"

#include <QJsonDocument>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::sandbox;

namespace {

// The answer, or the value under `key` in it, as the client's record.
template<class T>
T decoded(const QByteArray &body, const QString &key = {})
{
    const Result<QJsonValue> doc = JSON::parse(body);
    Result<T> value = doc ? fromJson<T>(key.isEmpty() ? *doc : doc->toObject().value(key)) : doc.error();
    if (!value)
        qFatal("%s does not decode: %s", body.left(200).constData(), qPrintable(value.error().description()));
    return std::move(value).value();
}

} // namespace

class TestSandboxApi : public QObject
{
    Q_OBJECT

    std::unique_ptr<SandboxHarness> h;

private Q_SLOTS:
    void init()
    {
        h = std::make_unique<SandboxHarness>();
        QVERIFY(h->start());
    }
    void cleanup() { h.reset(); }

    void everyOperationWantsAValidToken_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QString>("path");
        const QList<QPair<QByteArray, QString>> operations = {
            {"GET", u"/sync/me"_s}, {"GET", u"/sync/settings"_s}, {"PUT", u"/sync/settings"_s},
            {"GET", u"/sync/bookings"_s}, {"GET", u"/sync/history?from=2025-01-01T00:00:00Z"_s},
            {"GET", u"/sync/changes?since=2025-01-01T00:00:00Z"_s}, {"GET", u"/sync/google"_s},
            {"GET", u"/sync/polls"_s}, {"GET", u"/sync/slots?type=intro&days=3&tz=UTC"_s},
            {"POST", u"/sync/cancel"_s}, {"POST", u"/sync/noshow"_s}, {"POST", u"/sync/polls"_s},
            {"POST", u"/sync/polls/delete"_s}, {"POST", u"/sync/connect-link"_s}, {"POST", u"/sync/disconnect"_s}};
        for (const auto &[method, path] : operations)
            QTest::addRow("%s %s", method.constData(), qPrintable(path)) << method << path;
    }
    void everyOperationWantsAValidToken()
    {
        QFETCH(QByteArray, method);
        QFETCH(QString, path);
        for (const QByteArray &bearer : {QByteArray(), QByteArray("nope")}) {
            const auto r = h->send(method, path, "{}", "application/json", bearer);
            QCOMPARE(r.status, 401);
            QVERIFY(!r.json().value(u"error"_s).toString().isEmpty());
        }
    }

    // Stored as the client reads it: one bad field takes its default, the rest stands.
    void settingsAreStoredLeniently()
    {
        QJsonObject doc = h->get(u"/sync/settings"_s).json();
        doc.insert(u"maxMeetingsPerDay"_s, u"7"_s);
        doc.insert(u"horizonDays"_s, 21);
        const auto saved = h->put(u"/sync/settings"_s, QJsonDocument(doc).toJson());
        QCOMPARE(saved.status, 200);
        const HostSettings s = decoded<HostSettings>(saved.body);
        QCOMPARE((std::pair{s.maxMeetingsPerDay, s.horizonDays}), (std::pair{5, 21}));
        QCOMPARE(s.eventTypes.size(), 4);
        QCOMPARE(h->get(u"/sync/settings"_s).body, saved.body);
    }

    void badRequestsSayWhatIsWrong_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("status");
        const auto row = [](const char *name, const char *method, const char *path, const char *body, int status) {
            QTest::newRow(name) << QByteArray(method) << QString::fromLatin1(path) << QByteArray(body) << status;
        };
        row("settings not an object", "PUT", "/sync/settings", "[1,2]", 400);
        row("cancel with a number", "POST", "/sync/cancel", R"({"id":7})", 400);
        row("no-show as text", "POST", "/sync/noshow", R"({"id":"x","value":"yes"})", 400);
        row("poll with a blank title", "POST", "/sync/polls", R"({"title":" ","type":"intro"})", 400);
        row("history without from", "GET", "/sync/history", "", 400);
        row("slots, days a word", "GET", "/sync/slots?type=intro&days=abc", "", 400);
        row("slots, unknown zone", "GET", "/sync/slots?type=intro&tz=Mars/Base", "", 400);
        row("cancel unknown id", "POST", "/sync/cancel", R"({"id":"nope"})", 404);
        row("delete unknown poll", "POST", "/sync/polls/delete", R"({"id":"nope"})", 404);
        row("slots of unknown type", "GET", "/sync/slots?type=nope", "", 404);
        row("unknown operation", "GET", "/sync/nothing", "", 404);
        row("wrong method", "DELETE", "/sync/me", "", 405);
    }
    void badRequestsSayWhatIsWrong()
    {
        QFETCH(QByteArray, method);
        QFETCH(QString, path);
        QFETCH(QByteArray, body);
        QFETCH(int, status);
        const auto r = h->send(method, path, body, "application/json", SandboxHarness::token);
        QCOMPARE(r.status, status);
        QVERIFY2(!r.json().value(u"error"_s).toString().isEmpty(), r.body.constData());
    }

    void simulatedGuestsBookFreeTimesAndCancel()
    {
        SandboxConfig config = SandboxHarness::config();
        config.simulate = true;
        SandboxHarness sim(config);
        QVERIFY(sim.start());
        const Instant since = sim.now();
        int made = 0;
        for (int i = 0; i < 30; ++i) {
            sim.advance(600);
            made += sim.sandbox().simulator()->step() ? 1 : 0;
        }
        QVERIFY(made >= 25);
        const auto changes = decoded<QList<Booking>>(sim.get(u"/sync/changes?since="_s + ISO::string(since)).body,
                                                     u"changes"_s);
        for (const BookingStatus status : {BookingStatus::cancelled, BookingStatus::confirmed})
            QVERIFY(std::any_of(changes.cbegin(), changes.cend(), [&](auto &b) { return b.status == status; }));
        // Guests book only what the page offers: no two active meetings overlap.
        QList<Booking> active = decoded<QList<Booking>>(sim.get(u"/sync/bookings"_s).body, u"bookings"_s);
        active.removeIf([](const Booking &b) { return !b.isActive(); });
        for (qsizetype i = 1; i < active.size(); ++i)
            QVERIFY2(active.at(i - 1).end <= active.at(i).start, qPrintable(active.at(i).id));
    }
};

QTEST_GUILESS_MAIN(TestSandboxApi)
#include "tst_sandbox_api.moc"
