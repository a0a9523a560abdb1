// The client's API against the sandbox: every operation end to end, what the demo account
// holds, and the sandbox's planted failures arriving as the client's typed errors.
#include "NetworkTransport.h"
#include "QuorvaneAPI.h"
#include "SandboxHarness.h"
#include "support/ApiOutcome.h"

#include "ISO.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::sandbox;
using quorvane::test::run;

namespace {

// A read (me) or a write (cancel), ending in "ok" and the handle, or in the failure.
QCoro::Task<QString> operation(QuorvaneAPI api, bool write)
{
    if (write)
        co_await api.cancel(u"nope"_s);
    co_return u"ok "_s + (write ? QString() : (co_await api.me()).handle.value_or(QString()));
}

template <class T, class Predicate>
bool any(const QList<T> &items, Predicate predicate)
{
    return std::any_of(items.cbegin(), items.cend(), predicate);
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

    template <class T>
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

    // The account and its links, derived by the server from the settings; the demo's calendar,
    // polls and slots.
    void theDemoAccount()
    {
        const Account me = await(api().me());
        const HostSettings settings = await(api().settings());
        QCOMPARE((std::pair{me.handle, me.base}),
                 (std::pair{std::optional(settings.handle), std::optional(h->base())}));
        // One link per active type: the demo has four types, one of them inactive.
        QStringList links, expected;
        for (const Account::Link &l : me.links.value())
            links.append(l.url);
        for (const EventType &t : settings.eventTypes) {
            if (t.isActive)
                expected.append(h->base() + u'/' + settings.handle + u'/' + t.slug);
        }
        QCOMPARE((std::pair{links, settings.eventTypes.size()}), (std::pair{expected, qsizetype(4)}));
        QCOMPARE(links.size(), 3);

        const GoogleStatus google = await(api().google());
        QVERIFY(me.google && me.google->connected && google.connected);
        QCOMPARE(google.calendars.value().size(), 3);
        QVERIFY(any(*google.calendars, [](const CalendarItem &c) { return !c.writable; }));
        QVERIFY(!await(api().polls()).first().voters.isEmpty());
        const SlotList slots = await(api().slots(u"intro"_s, 5, u"Europe/Paris"_s));
        QCOMPARE(slots.link.value(), h->base() + u"/jordan/intro"_s);
        QVERIFY(!slots.slots.isEmpty() && slots.slots.first().start >= h->now().addSecs(3600)); // an hour's notice
    }

    void upcomingAndHistorySplitAtNow()
    {
        const Instant now = h->now(), from = now.addDays(-180);
        const QList<Booking> upcoming = await(api().upcoming());
        const QList<Booking> history = await(api().history(from));
        QVERIFY(upcoming.size() >= 8);
        QVERIFY(history.size() >= 150);
        for (const Booking &b : upcoming)
            QVERIFY(b.end > now);
        for (const Booking &b : history)
            QVERIFY(b.start >= from && b.end <= now);
        QVERIFY(any(history, [](const Booking &b) { return b.status == BookingStatus::cancelled; }));
        QVERIFY(any(history, [](const Booking &b) { return b.noShow.value_or(false); }));
        QVERIFY(now.secsTo(upcoming.last().start) > 7 * 86400);
    }

    void savedSettingsComeBackAsStored()
    {
        HostSettings s = await(api().settings());
        s.horizonDays = 21;
        s.eventTypes.removeLast();
        s.eventTypes.first().title = u"Hello <there>"_s;
        QCOMPARE(await(api().saveSettings(s)), s);
        QCOMPARE(await(api().settings()), s);
    }

    // Commands and guests' bookings all reach the change feed, in the order they happened.
    void everyChangeReachesTheFeed()
    {
        const BookingChanges none = await(api().changes(h->now()));
        QVERIFY(none.changes.isEmpty());
        QCOMPARE(none.serverTime, std::optional<Instant>(h->now()));

        const QList<Booking> upcoming = await(api().upcoming());
        const auto active = std::find_if(upcoming.cbegin(), upcoming.cend(),
                                         [&](const Booking &b) { return b.isActive() && b.start > h->now(); });
        QVERIFY(active != upcoming.cend());
        const QList<Booking> lastDays = await(api().history(h->now().addDays(-4)));
        QVERIFY(!lastDays.isEmpty());
        h->advance(30);
        await(api().cancel(active->id));
        h->advance(30);
        await(api().setNoShow(lastDays.last().id, true));
        h->advance(30);
        const auto guest = h->post(u"/sandbox/bookings"_s, {{u"type"_s, u"intro"_s},
                                                            {u"start"_s, u"2025-03-06T10:00:00Z"_s},
                                                            {u"name"_s, u"Ada Guest"_s},
                                                            {u"email"_s, u"ada@example.com"_s}});
        QCOMPARE(guest.status, 200);

        const QList<Booking> changes = await(api().changes(none.serverTime.value())).changes;
        QCOMPARE(changes.size(), 3);
        QCOMPARE((std::pair{changes.at(0).id, changes.at(0).status}),
                 (std::pair{active->id, BookingStatus::cancelled}));
        QCOMPARE((std::pair{changes.at(1).id, changes.at(1).noShow}),
                 (std::pair{lastDays.last().id, std::optional(true)}));
        QCOMPARE(changes.at(2).name, u"Ada Guest"_s);
        QVERIFY(await(api().changes(h->now().addSecs(1))).changes.isEmpty());
    }

    // A poll offers the type's four best times (their choice is the slot engine's), unvoted.
    void pollsAreMadeAndRemoved()
    {
        const std::optional<QString> url = await(api().createPoll(u"Kick-off"_s, u"consultation"_s));
        const QList<Poll> polls = await(api().polls());
        QCOMPARE(polls.size(), 3);
        const Poll p = polls.last();
        QCOMPARE(url, std::optional(h->base() + u"/poll/"_s + p.id));
        QCOMPARE((std::pair{p.minutes, p.options.size()}), (std::pair{60, qsizetype(4)}));
        QVERIFY(std::all_of(p.options.cbegin(), p.options.cend(), [](auto &o) { return o.votes == 0; }));

        await(api().deletePoll(p.id));
        QCOMPARE(await(api().polls()).size(), 2);
        QCOMPARE(h->post(u"/sync/polls/delete"_s, {{u"id"_s, p.id}}).status, 404);
    }

    // The link opens in a browser, without the token, and connects the calendar once.
    void theCalendarConnectsThroughTheBrowserLink()
    {
        await(api().disconnectGoogle());
        const GoogleStatus off = await(api().google());
        QVERIFY(!off.connected && !off.calendars && !off.email);

        const QString link = await(api().connectLink()).value().toString();
        QVERIFY(link.startsWith(h->base() + u"/connect/"_s));
        QVERIFY(!link.contains(QString::fromLatin1(SandboxHarness::token)));
        const QString path = link.mid(h->base().size());
        QCOMPARE(h->get(path, {}).status, 200);
        const GoogleStatus on = await(api().google());
        QVERIFY(on.connected);
        QCOMPARE(on.calendars.value().size(), 3);
        QVERIFY(ISO::parse(on.connectedAt.value()).has_value());
        QVERIFY(await(api().me()).google->connected);
        QCOMPARE(h->get(path, {}).status, 404);
    }

    // How the sandbox's failures reach the client; the client's own handling of each status is
    // tested against a scripted server in tests/core/api.
    void failuresArriveAsTypedErrors_data()
    {
        QTest::addColumn<QJsonObject>("fault"); // planted on sync/me
        QTest::addColumn<bool>("write");
        QTest::addColumn<QString>("token");
        QTest::addColumn<QString>("outcome");
        const QString token = QString::fromLatin1(SandboxHarness::token);
        QTest::newRow("5xx on both tries of a GET")
            << QJsonObject{{u"status"_s, 500}, {u"count"_s, 2}} << false << token << u"server(500, Injected failure)"_s;
        QTest::newRow("the connection drops")
            << QJsonObject{{u"drop"_s, true}, {u"count"_s, 20}} << false << token << u"offline"_s;
        QTest::newRow("an answer that doesn't decode")
            << QJsonObject{{u"body"_s, u"{\"id\":\"seven\"}"_s}} << false << token
            << u"decoding(id: Expected an integer but found a string instead.)"_s;
        QTest::newRow("the server's own 404")
            << QJsonObject{} << true << token << u"server(404, No booking with id \"nope\")"_s;
        QTest::newRow("a stranger's token") << QJsonObject{} << false << u"not-a-token"_s << u"unauthorized"_s;
    }
    void failuresArriveAsTypedErrors()
    {
        QFETCH(QJsonObject, fault);
        QFETCH(bool, write);
        QFETCH(QString, token);
        QFETCH(QString, outcome);
        if (!fault.isEmpty()) {
            fault.insert(u"path"_s, u"sync/me"_s);
            QCOMPARE(h->post(u"/sandbox/faults"_s, fault, {}).status, 200);
        }
        QCOMPARE(run(operation(api(token), write)), outcome);
    }
};

QTEST_GUILESS_MAIN(TestE2EApi)
#include "tst_e2e_api.moc"
