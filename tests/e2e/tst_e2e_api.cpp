// The client's API against the sandbox: every operation end to end, and the sandbox's
// planted failures arriving as the client's typed errors.
#include "SandboxHarness.h"
#include "NetworkTransport.h"
#include "QuorvaneAPI.h"
#include "support/ApiOutcome.h"

#include "ISO.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::sandbox;
using quorvane::test::run;

namespace {

// One operation by name, ending in "ok" or a short summary of what came back.
QCoro::Task<QString> operation(QuorvaneAPI api, QString name)
{
    if (name == u"me")
        co_return u"ok "_s + (co_await api.me()).handle.value_or(QString());
    if (name == u"polls")
        co_return u"ok %1"_s.arg((co_await api.polls()).size());
    if (name == u"slots")
        co_return u"ok "_s + (co_await api.slots(u"intro"_s, 3, u"UTC"_s)).mode;
    if (name == u"cancel") {
        co_await api.cancel(u"nope"_s);
        co_return u"ok"_s;
    }
    if (name == u"createPoll")
        co_return (co_await api.createPoll(u"Sync"_s, u"intro"_s)) ? u"ok url"_s : u"ok none"_s;
    co_return u"unknown operation"_s;
}

QString firstActiveUpcoming(const QList<Booking> &bookings, const Instant &now)
{
    for (const Booking &b : bookings) {
        if (b.isActive() && b.start > now)
            return b.id;
    }
    return {};
}

} // namespace

class TestE2EApi : public QObject
{
    Q_OBJECT

    std::unique_ptr<SandboxHarness> h;
    QNetworkAccessManager m_manager;
    std::shared_ptr<NetworkTransport> m_transport = std::make_shared<NetworkTransport>(m_manager);

    QuorvaneAPI api(const QString &token = QString::fromLatin1(SandboxHarness::token))
    {
        return QuorvaneAPI{QUrl(h->base()), [token] { return std::optional<QString>(token); }, m_transport};
    }

    template<class T>
    T await(QCoro::Task<T> task)
    {
        return QCoro::waitFor(std::move(task));
    }

private Q_SLOTS:
    void init()
    {
        h = std::make_unique<SandboxHarness>();
        QVERIFY(h->start());
    }
    void cleanup() { h.reset(); }

    void readsTheDemoAccount()
    {
        const Account me = await(api().me());
        QCOMPARE(me.handle, u"jordan"_s);
        QCOMPARE(me.links.value().size(), 3);
        QCOMPARE(await(api().settings()).eventTypes.size(), 4);
        const QList<Booking> upcoming = await(api().upcoming());
        QVERIFY(!upcoming.isEmpty());
        for (const Booking &b : upcoming)
            QVERIFY(b.end > h->now());
        QVERIFY(await(api().history(h->now().addDays(-180))).size() >= 150);
        QCOMPARE(await(api().google()).calendars.value().size(), 3);
        QCOMPARE(await(api().polls()).size(), 2);
        const SlotList slots = await(api().slots(u"consultation"_s, 7, u"Europe/Paris"_s));
        QCOMPARE(slots.link.value(), h->base() + u"/jordan/consultation"_s);
        QVERIFY(!slots.slots.isEmpty());
    }

    void savedSettingsComeBackAsStored()
    {
        HostSettings s = await(api().settings());
        s.horizonDays = 21;
        s.eventTypes.first().title = u"Hello <there>"_s;
        QCOMPARE(await(api().saveSettings(s)), s);
        QCOMPARE(await(api().settings()), s);
    }

    void commandsShowInTheChangeFeed()
    {
        const BookingChanges none = await(api().changes(h->now()));
        QVERIFY(none.changes.isEmpty());
        QCOMPARE(none.serverTime, std::optional<Instant>(h->now()));

        const QString id = firstActiveUpcoming(await(api().upcoming()), h->now());
        const QList<Booking> lastWeek = await(api().history(h->now().addDays(-4)));
        QVERIFY(!lastWeek.isEmpty());
        const QString past = lastWeek.last().id;
        h->advance(30);
        await(api().cancel(id));
        h->advance(30);
        await(api().setNoShow(past, true));
        const BookingChanges changes = await(api().changes(none.serverTime.value()));
        QCOMPARE(changes.changes.size(), 2);
        QCOMPARE(changes.changes.at(0).status, BookingStatus::cancelled);
        QCOMPARE(changes.changes.at(1).noShow, std::optional<bool>(true));
    }

    void pollsAreMadeAndRemoved()
    {
        const std::optional<QString> url = await(api().createPoll(u"Planning"_s, u"intro"_s));
        QVERIFY(url && url->startsWith(h->base() + u"/poll/"_s));
        const QList<Poll> polls = await(api().polls());
        QCOMPARE(polls.size(), 3);
        QCOMPARE(polls.last().options.size(), 4);
        await(api().deletePoll(polls.last().id));
        QCOMPARE(await(api().polls()).size(), 2);
    }

    void theCalendarConnectsThroughTheBrowserLink()
    {
        await(api().disconnectGoogle());
        QVERIFY(!await(api().google()).connected);
        const std::optional<QUrl> link = await(api().connectLink());
        QVERIFY(link && link->isValid());
        QNetworkReply *page = m_manager.get(QNetworkRequest(*link));
        QSignalSpy done(page, &QNetworkReply::finished);
        QVERIFY(done.wait(5000));
        QCOMPARE(page->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), 200);
        delete page;
        QVERIFY(await(api().google()).connected);
        QVERIFY(await(api().me()).google->connected);
    }

    void failuresArriveAsTypedErrors_data()
    {
        QTest::addColumn<QJsonObject>("fault");
        QTest::addColumn<QString>("op");
        QTest::addColumn<QString>("outcome");
        const auto fault = [](const QString &path, QJsonObject f) {
            f.insert(u"path"_s, path);
            return f;
        };
        QTest::newRow("5xx on both tries of a GET")
            << fault(u"sync/me"_s, {{u"status"_s, 500}, {u"count"_s, 2}}) << u"me"_s << u"server(500, Injected failure)"_s;
        QTest::newRow("5xx once: the retry succeeds") << fault(u"sync/me"_s, {{u"status"_s, 503}}) << u"me"_s << u"ok jordan"_s;
        QTest::newRow("rate limited twice") << fault(u"sync/polls"_s, {{u"status"_s, 429}, {u"count"_s, 2}}) << u"polls"_s
                                            << u"rateLimited"_s;
        QTest::newRow("404 without a message")
            << fault(u"sync/slots"_s, {{u"status"_s, 404}, {u"body"_s, u""_s}, {u"count"_s, 2}}) << u"slots"_s
            << u"server(404, )"_s;
        QTest::newRow("the connection drops")
            << fault(u"sync/me"_s, {{u"drop"_s, true}, {u"count"_s, 20}}) << u"me"_s << u"offline"_s;
        QTest::newRow("a slow answer still arrives") << fault(u"sync/polls"_s, {{u"delayMs"_s, 300}}) << u"polls"_s << u"ok 2"_s;
        QTest::newRow("a write is tried once")
            << fault(u"sync/polls"_s, {{u"status"_s, 502}, {u"count"_s, 1}}) << u"createPoll"_s
            << u"server(502, Injected failure)"_s;
        QTest::newRow("the server's own 404") << QJsonObject() << u"cancel"_s << u"server(404, No booking with id \"nope\")"_s;
    }
    void failuresArriveAsTypedErrors()
    {
        QFETCH(QJsonObject, fault);
        QFETCH(QString, op);
        QFETCH(QString, outcome);
        if (!fault.isEmpty())
            QCOMPARE(h->post(u"/sandbox/faults"_s, fault, {}).status, 200);
        QCOMPARE(run(operation(api(), op)), outcome);
    }

    void undecodableAnswersAreDecodingErrors()
    {
        QCOMPARE(h->post(u"/sandbox/faults"_s, {{u"path"_s, u"sync/me"_s}, {u"body"_s, u"{\"id\":\"seven\"}"_s}}, {}).status, 200);
        QVERIFY(run(operation(api(), u"me"_s)).startsWith(u"decoding("_s));
    }

    void aStrangersTokenIsUnauthorized()
    {
        QCOMPARE(run(operation(api(u"not-a-token"_s), u"me"_s)), u"unauthorized"_s);
    }
};

QTEST_GUILESS_MAIN(TestE2EApi)
#include "tst_e2e_api.moc"
