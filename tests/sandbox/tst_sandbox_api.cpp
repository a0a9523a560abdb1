// The sync API over real loopback HTTP, answers decoded with the client's own records.
#include "SandboxHarness.h"

#include "GuestSimulator.h"
#include "ISO.h"
#include "JSON.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::sandbox;

namespace {

template<class T>
T decodeField(const QByteArray &body, const QString &key)
{
    const Result<QJsonValue> doc = JSON::parse(body);
    if (!doc || !doc->isObject())
        qFatal("not a JSON object: %s", body.constData());
    Result<T> value = fromJson<T>(doc->toObject().value(key));
    if (!value)
        qFatal("%s does not decode: %s", qPrintable(key), qPrintable(value.error().description()));
    return std::move(value).value();
}

template<class T>
T decodeWhole(const QByteArray &body)
{
    Result<T> value = JSON::decode<T>(body);
    if (!value)
        qFatal("does not decode: %s", qPrintable(value.error().description()));
    return std::move(value).value();
}

QString upcomingActiveId(SandboxHarness &h)
{
    for (const Booking &b : decodeField<QList<Booking>>(h.get(u"/sync/bookings"_s).body, u"bookings"_s)) {
        if (b.isActive() && b.start > h.now())
            return b.id;
    }
    qFatal("demo data has no upcoming active booking");
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
        QTest::addColumn<QByteArray>("bearer");
        const QList<QPair<QByteArray, QString>> operations = {
            {"GET", u"/sync/me"_s}, {"GET", u"/sync/settings"_s}, {"PUT", u"/sync/settings"_s},
            {"GET", u"/sync/bookings"_s}, {"GET", u"/sync/history?from=2025-01-01T00:00:00Z"_s},
            {"GET", u"/sync/changes?since=2025-01-01T00:00:00Z"_s}, {"GET", u"/sync/google"_s},
            {"GET", u"/sync/polls"_s}, {"GET", u"/sync/slots?type=intro&days=3&tz=UTC"_s},
            {"POST", u"/sync/cancel"_s}, {"POST", u"/sync/noshow"_s}, {"POST", u"/sync/polls"_s},
            {"POST", u"/sync/polls/delete"_s}, {"POST", u"/sync/connect-link"_s}, {"POST", u"/sync/disconnect"_s}};
        for (const auto &[method, path] : operations) {
            QTest::addRow("%s %s without token", method.constData(), qPrintable(path)) << method << path << QByteArray();
            QTest::addRow("%s %s, wrong token", method.constData(), qPrintable(path)) << method << path << QByteArray("nope");
        }
    }
    void everyOperationWantsAValidToken()
    {
        QFETCH(QByteArray, method);
        QFETCH(QString, path);
        QFETCH(QByteArray, bearer);
        const auto r = h->send(method, path, "{}", "application/json", bearer);
        QCOMPARE(r.status, 401);
        QVERIFY(!r.json().value(u"error"_s).toString().isEmpty());
    }

    void accountListsLinksOfActiveTypes()
    {
        const Account a = decodeWhole<Account>(h->get(u"/sync/me"_s).body);
        const HostSettings s = decodeWhole<HostSettings>(h->get(u"/sync/settings"_s).body);
        QCOMPARE(a.handle, s.handle);
        QCOMPARE(a.base, h->base());
        QVERIFY(a.google && a.google->connected);
        QStringList expected;
        for (const EventType &t : s.eventTypes) {
            if (t.isActive)
                expected.append(h->base() + u'/' + s.handle + u'/' + t.slug);
        }
        QStringList links;
        for (const Account::Link &l : a.links.value())
            links.append(l.url);
        QCOMPARE(links, expected);
        QCOMPARE(s.eventTypes.size(), 4);
        QCOMPARE(expected.size(), 3);
    }

    void upcomingAndHistorySplitAtNow()
    {
        const auto upcoming = decodeField<QList<Booking>>(h->get(u"/sync/bookings"_s).body, u"bookings"_s);
        const Instant from = h->now().addDays(-180);
        const auto history =
            decodeField<QList<Booking>>(h->get(u"/sync/history?from="_s + ISO::string(from)).body, u"bookings"_s);
        QVERIFY(upcoming.size() >= 8);
        QVERIFY(history.size() >= 150);
        for (const Booking &b : upcoming)
            QVERIFY(b.end > h->now());
        for (const Booking &b : history)
            QVERIFY(b.start >= from && b.end <= h->now());
        const auto count = [&](auto pred) { return std::count_if(history.cbegin(), history.cend(), pred); };
        QVERIFY(count([](const Booking &b) { return b.status == BookingStatus::cancelled; }) > 0);
        QVERIFY(count([](const Booking &b) { return b.noShow.value_or(false); }) > 0);
        QVERIFY(h->now().secsTo(upcoming.last().start) > 7 * 86400);
    }

    void datesReadWithOrWithoutFraction_data()
    {
        QTest::addColumn<QString>("from");
        QTest::newRow("fraction") << u"2025-01-01T00:00:00.000Z"_s;
        QTest::newRow("seconds") << u"2025-01-01T00:00:00Z"_s;
        QTest::newRow("offset") << u"2025-01-01T01:00:00+01:00"_s;
    }
    void datesReadWithOrWithoutFraction()
    {
        QFETCH(QString, from);
        const auto r = h->get(u"/sync/history?from="_s + QString::fromLatin1(QUrl::toPercentEncoding(from)));
        QCOMPARE(r.status, 200);
        const auto reference = h->get(u"/sync/history?from=2025-01-01T00:00:00Z"_s);
        QCOMPARE(r.body, reference.body);
    }

    void calendarPollsAndSlotsDecode()
    {
        const GoogleStatus g = decodeWhole<GoogleStatus>(h->get(u"/sync/google"_s).body);
        QCOMPARE(g.calendars.value().size(), 3);
        QCOMPARE(std::count_if(g.calendars->cbegin(), g.calendars->cend(), [](auto &c) { return !c.writable; }), 1);
        const auto polls = decodeField<QList<Poll>>(h->get(u"/sync/polls"_s).body, u"polls"_s);
        QCOMPARE(polls.size(), 2);
        for (const Poll &p : polls)
            QVERIFY(!p.voters.isEmpty() && !p.options.isEmpty());
        const SlotList slots = decodeWhole<SlotList>(h->get(u"/sync/slots?type=intro&days=5&tz=Europe/Paris"_s).body);
        QCOMPARE(slots.type, u"intro"_s);
        QCOMPARE(slots.link.value(), h->base() + u"/jordan/intro"_s);
        QVERIFY(!slots.slots.isEmpty());
        QVERIFY(slots.slots.first().start >= h->now().addSecs(3600));
    }

    void changesFeedSeesEveryChange()
    {
        const auto first = h->get(u"/sync/changes?since="_s + ISO::string(h->now()));
        const Instant serverTime = ISO::parse(first.json().value(u"serverTime"_s).toString()).value();
        QCOMPARE(serverTime, h->now());
        QVERIFY(decodeField<QList<Booking>>(first.body, u"changes"_s).isEmpty());

        h->advance(60);
        const QString cancelled = upcomingActiveId(*h);
        QCOMPARE(h->post(u"/sync/cancel"_s, {{u"id"_s, cancelled}}).status, 200);
        h->advance(60);
        const auto made = h->post(u"/sandbox/bookings"_s, {{u"type"_s, u"intro"_s}, {u"start"_s, u"2025-03-06T10:00:00Z"_s},
                                                          {u"name"_s, u"Ada Guest"_s}, {u"email"_s, u"ada@example.com"_s}});
        const QString booked = decodeWhole<Booking>(made.body).id;

        const auto changes = decodeField<QList<Booking>>(h->get(u"/sync/changes?since="_s + ISO::string(serverTime)).body,
                                                         u"changes"_s);
        QCOMPARE(changes.size(), 2);
        QCOMPARE(changes.at(0).id, cancelled);
        QCOMPARE(changes.at(0).status, BookingStatus::cancelled);
        QCOMPARE(changes.at(1).id, booked);
        const auto later = h->get(u"/sync/changes?since="_s + ISO::string(h->now().addSecs(1)));
        QVERIFY(decodeField<QList<Booking>>(later.body, u"changes"_s).isEmpty());
    }

    void noShowIsStoredAndAnnounced()
    {
        const auto history = decodeField<QList<Booking>>(
            h->get(u"/sync/history?from="_s + ISO::string(h->now().addDays(-3))).body, u"bookings"_s);
        QVERIFY(!history.isEmpty());
        const QString id = history.last().id;
        const Instant since = h->now();
        QCOMPARE(h->post(u"/sync/noshow"_s, {{u"id"_s, id}, {u"value"_s, true}}).status, 200);
        const auto changes = decodeField<QList<Booking>>(h->get(u"/sync/changes?since="_s + ISO::string(since)).body,
                                                         u"changes"_s);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes.first().noShow, std::optional<bool>(true));
    }

    void settingsAreStoredAsTheClientReadsThem()
    {
        HostSettings s = decodeWhole<HostSettings>(h->get(u"/sync/settings"_s).body);
        s.maxMeetingsPerDay = 3;
        s.eventTypes.removeLast();
        const auto saved = h->put(u"/sync/settings"_s, JSON::encode(s));
        QCOMPARE(saved.status, 200);
        QCOMPARE(decodeWhole<HostSettings>(saved.body), s);
        QCOMPARE(h->get(u"/sync/settings"_s).body, saved.body);

        // One bad field takes its default; the rest stands.
        QJsonObject doc = QJsonDocument::fromJson(saved.body).object();
        doc.insert(u"maxMeetingsPerDay"_s, u"7"_s);
        const HostSettings lenient = decodeWhole<HostSettings>(h->put(u"/sync/settings"_s, JSON::encode(QJsonValue(doc))).body);
        QCOMPARE(lenient.maxMeetingsPerDay, 5);
        QCOMPARE(lenient.eventTypes, s.eventTypes);
    }

    void badRequestsSayWhatIsWrong_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("status");
        QTest::newRow("settings not an object") << QByteArray("PUT") << u"/sync/settings"_s << QByteArray("[1,2]") << 400;
        QTest::newRow("settings not JSON") << QByteArray("PUT") << u"/sync/settings"_s << QByteArray("{owner") << 400;
        QTest::newRow("cancel with a number") << QByteArray("POST") << u"/sync/cancel"_s << QByteArray(R"({"id":7})") << 400;
        QTest::newRow("no-show as text") << QByteArray("POST") << u"/sync/noshow"_s
                                         << QByteArray(R"({"id":"x","value":"yes"})") << 400;
        QTest::newRow("poll without title") << QByteArray("POST") << u"/sync/polls"_s << QByteArray(R"({"type":"intro"})") << 400;
        QTest::newRow("history without from") << QByteArray("GET") << u"/sync/history"_s << QByteArray() << 400;
        QTest::newRow("changes since a word") << QByteArray("GET") << u"/sync/changes?since=yesterday"_s << QByteArray() << 400;
        QTest::newRow("date without zone") << QByteArray("GET") << u"/sync/changes?since=2025-03-01T10:00:00"_s << QByteArray() << 400;
        QTest::newRow("slots, days a word") << QByteArray("GET") << u"/sync/slots?type=intro&days=abc"_s << QByteArray() << 400;
        QTest::newRow("slots, unknown zone") << QByteArray("GET") << u"/sync/slots?type=intro&tz=Mars/Base"_s << QByteArray() << 400;
        QTest::newRow("cancel unknown id") << QByteArray("POST") << u"/sync/cancel"_s << QByteArray(R"({"id":"nope"})") << 404;
        QTest::newRow("no-show unknown id") << QByteArray("POST") << u"/sync/noshow"_s
                                            << QByteArray(R"({"id":"nope","value":true})") << 404;
        QTest::newRow("delete unknown poll") << QByteArray("POST") << u"/sync/polls/delete"_s << QByteArray(R"({"id":"nope"})") << 404;
        QTest::newRow("slots of unknown type") << QByteArray("GET") << u"/sync/slots?type=nope"_s << QByteArray() << 404;
        QTest::newRow("poll of unknown type") << QByteArray("POST") << u"/sync/polls"_s
                                              << QByteArray(R"({"title":"T","type":"nope"})") << 404;
        QTest::newRow("unknown operation") << QByteArray("GET") << u"/sync/nothing"_s << QByteArray() << 404;
        QTest::newRow("wrong method") << QByteArray("DELETE") << u"/sync/me"_s << QByteArray() << 405;
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

    void pollOffersFourBestTimesOnDifferentDays()
    {
        const auto created = h->post(u"/sync/polls"_s, {{u"title"_s, u"Kick-off"_s}, {u"type"_s, u"consultation"_s}});
        QCOMPARE(created.status, 200);
        const QString url = created.json().value(u"url"_s).toString();
        QVERIFY(url.startsWith(h->base() + u"/poll/"_s));
        const auto polls = decodeField<QList<Poll>>(h->get(u"/sync/polls"_s).body, u"polls"_s);
        const Poll &p = polls.last();
        QCOMPARE(h->base() + u"/poll/"_s + p.id, url);
        QCOMPARE(p.minutes, 60);
        QCOMPARE(p.options.size(), 4);
        QSet<QDate> days;
        for (qsizetype i = 0; i < p.options.size(); ++i) {
            QCOMPARE(p.options.at(i).votes, 0);
            days.insert(p.options.at(i).start.date());
            QVERIFY(i == 0 || p.options.at(i - 1).start < p.options.at(i).start);
        }
        QCOMPARE(days.size(), 4);

        QCOMPARE(h->post(u"/sync/polls/delete"_s, {{u"id"_s, p.id}}).status, 200);
        QCOMPARE(decodeField<QList<Poll>>(h->get(u"/sync/polls"_s).body, u"polls"_s).size(), 2);
        QCOMPARE(h->post(u"/sync/polls/delete"_s, {{u"id"_s, p.id}}).status, 404);
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
        const auto changes = decodeField<QList<Booking>>(sim.get(u"/sync/changes?since="_s + ISO::string(since)).body,
                                                         u"changes"_s);
        QVERIFY(made >= 25);
        QVERIFY(std::any_of(changes.cbegin(), changes.cend(), [](auto &b) { return b.status == BookingStatus::cancelled; }));
        QVERIFY(std::any_of(changes.cbegin(), changes.cend(), [](auto &b) { return b.status == BookingStatus::confirmed; }));
        // Guests book only what the page offers: no two active meetings overlap.
        QList<Booking> active = decodeField<QList<Booking>>(sim.get(u"/sync/bookings"_s).body, u"bookings"_s);
        active.removeIf([](const Booking &b) { return !b.isActive(); });
        for (qsizetype i = 1; i < active.size(); ++i)
            QVERIFY2(active.at(i - 1).end <= active.at(i).start, qPrintable(active.at(i).id));
    }

    void connectLinkConnectsTheCalendarOnce()
    {
        QCOMPARE(h->post(u"/sync/disconnect"_s, {}).status, 200);
        const GoogleStatus off = decodeWhole<GoogleStatus>(h->get(u"/sync/google"_s).body);
        QVERIFY(!off.connected && !off.calendars && !off.email);
        QVERIFY(!decodeWhole<Account>(h->get(u"/sync/me"_s).body).google->connected);

        const QString url = h->post(u"/sync/connect-link"_s, {}).json().value(u"url"_s).toString();
        QVERIFY(url.startsWith(h->base() + u"/connect/"_s));
        QVERIFY(!url.contains(QString::fromLatin1(SandboxHarness::token)));
        const QString path = url.mid(h->base().size());
        QCOMPARE(h->get(path, {}).status, 200);
        const GoogleStatus on = decodeWhole<GoogleStatus>(h->get(u"/sync/google"_s).body);
        QVERIFY(on.connected);
        QCOMPARE(on.calendars.value().size(), 3);
        QVERIFY(ISO::parse(on.connectedAt.value()).has_value());
        QCOMPARE(h->get(path, {}).status, 404);
    }
};

QTEST_GUILESS_MAIN(TestSandboxApi)
#include "tst_sandbox_api.moc"
