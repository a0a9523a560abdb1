// The server over real loopback HTTP, where the client alone can't see it: authentication,
// signing a device in, planted faults, and the guest's booking page. What the client reads of
// each answer, and how it takes each fault, is checked through the client in tests/e2e.
#include "SandboxHarness.h"

#include "Html.h"
#include "ISO.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTcpSocket>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::sandbox;

namespace {

// "400 expired_token": the status and the error of an answer.
QString outcome(const SandboxHarness::Response &r)
{
    return u"%1 %2"_s.arg(r.status).arg(r.json().value(u"error"_s).toString());
}

const QString markup = u"<img src=x onerror=alert(1)>"_s;

// The guest's markup shows on the page as text, and nowhere as markup.
bool showsEscaped(const QByteArray &page)
{
    return page.contains("&lt;img src=x onerror=alert(1)&gt;") && !page.contains(markup.toUtf8());
}

// A host in New York, open every weekday 9-17, with a video type that asks a question and a
// phone type.
HostSettings pageSettings()
{
    HostSettings s;
    s.handle = u"sam"_s;
    s.timezone = u"America/New_York"_s;
    s.addMeet = true;
    for (const char *slug : {"video", "phone"}) {
        EventType t;
        t.id = t.slug = QString::fromLatin1(slug);
        t.title = u"Video <chat>"_s;
        t.location = t.slug == u"video" ? MeetingLocation::meet : MeetingLocation::phone;
        if (t.slug == u"video")
            t.questions = {u"What about?"_s};
        s.eventTypes.append(t);
    }
    for (int day = 2; day <= 6; ++day)
        s.availability.append({day, {{9 * 60, 17 * 60}}});
    return s;
}

QStringList offeredStarts(const QByteArray &page)
{
    QStringList out;
    static const QRegularExpression radio(u"name=\"start\" value=\"([^\"]+)\""_s);
    for (auto it = radio.globalMatch(QString::fromUtf8(page)); it.hasNext();)
        out.append(it.next().captured(1));
    return out;
}

// A guest whose name is markup.
QList<QPair<QString, QString>> guestForm(const QString &start)
{
    return {{u"start"_s, start},
            {u"name"_s, markup},
            {u"email"_s, u"kim@example.com"_s},
            {u"q0"_s, u"Plans & <ideas>"_s},
            {u"tz"_s, u"Europe/Berlin"_s}};
}

} // namespace

class TestSandboxApi : public QObject
{
    Q_OBJECT

    std::unique_ptr<SandboxHarness> h;

    // The device code and the user code.
    std::pair<QString, QString> startSignIn(const QString &label = u"laptop"_s)
    {
        const QJsonObject o = h->post(u"/auth/device/start"_s, {{u"label"_s, label}}, {}).json();
        return {o.value(u"device_code"_s).toString(), o.value(u"user_code"_s).toString()};
    }
    SandboxHarness::Response poll(const QString &deviceCode)
    {
        return h->post(u"/auth/device/poll"_s, {{u"device_code"_s, deviceCode}}, {});
    }

    void plant(const QJsonObject &fault) { QCOMPARE(h->post(u"/sandbox/faults"_s, fault, {}).status, 200); }

    // A request written by hand on a socket of its own, to see what a client library would hide.
    std::unique_ptr<QTcpSocket> rawGet(const QByteArray &path)
    {
        auto socket = std::make_unique<QTcpSocket>();
        socket->connectToHost(QHostAddress::LocalHost, h->sandbox().port());
        if (socket->waitForConnected(5000))
            socket->write("GET " + path + " HTTP/1.1\r\nHost: 127.0.0.1\r\nAuthorization: Bearer test-token\r\n\r\n");
        socket->waitForBytesWritten(5000);
        return socket;
    }

private Q_SLOTS:
    void init()
    {
        h = std::make_unique<SandboxHarness>();
        QVERIFY(h->start());
    }
    void cleanup() { h.reset(); }

    // Every sync operation wants a valid token, and says so.
    void everyOperationWantsAValidToken_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("bearer");
        for (const QString &operation :
             {u"GET /sync/me"_s, u"GET /sync/settings"_s, u"PUT /sync/settings"_s, u"GET /sync/bookings"_s,
              u"GET /sync/history?from=2025-01-01T00:00:00Z"_s, u"GET /sync/changes?since=2025-01-01T00:00:00Z"_s,
              u"GET /sync/google"_s, u"GET /sync/polls"_s, u"GET /sync/slots?type=intro&days=3&tz=UTC"_s,
              u"POST /sync/cancel"_s, u"POST /sync/noshow"_s, u"POST /sync/polls"_s, u"POST /sync/polls/delete"_s,
              u"POST /sync/connect-link"_s, u"POST /sync/disconnect"_s}) {
            const QStringList parts = operation.split(u' ');
            for (const QByteArray &bearer : {QByteArray(), QByteArray("nope")})
                QTest::addRow("%s, token '%s'", qPrintable(operation), bearer.constData())
                    << parts[0].toLatin1() << parts[1] << bearer;
        }
    }
    void everyOperationWantsAValidToken()
    {
        QFETCH(QByteArray, method);
        QFETCH(QString, path);
        QFETCH(QByteArray, bearer);
        const auto r = h->send(method, path, "{}", "application/json", bearer);
        QCOMPARE(r.status, 401);
        QVERIFY2(!r.json().value(u"error"_s).toString().isEmpty(), r.body.constData());
    }

    // 428 until approved in the browser, then 200 with a working token, once. A code lives ten
    // minutes: then it can be neither collected nor approved.
    void signInThroughTheBrowser()
    {
        const auto [device, user] = startSignIn(u"<b>Kim's</b> laptop"_s);
        QCOMPARE(poll(device).status, 428);
        const auto page = h->get(u"/device?code="_s + user, {});
        QVERIFY(page.body.contains(user.toUtf8()) && page.body.contains("&lt;b&gt;Kim&#39;s&lt;/b&gt; laptop"));
        QCOMPARE(h->postForm(u"/device"_s, {{u"code"_s, user}}).status, 200);
        const auto granted = poll(device);
        QCOMPARE(granted.status, 200);
        QCOMPARE(h->get(u"/sync/me"_s, granted.json().value(u"access_token"_s).toString().toUtf8()).status, 200);
        QCOMPARE(outcome(poll(device)), u"400 invalid_grant"_s);

        const auto [late, lateUser] = startSignIn();
        h->advance(599);
        QCOMPARE(outcome(poll(late)), u"428 authorization_pending"_s);
        h->advance(1);
        QCOMPARE(outcome(poll(late)), u"400 expired_token"_s);
        QCOMPARE(h->postForm(u"/device"_s, {{u"code"_s, lateUser}}).status, 404);
    }

    // A planted answer hits its own path only (a leading slash and a query aside), whatever the
    // method, once per request up to its count; clearing takes back the rest. (How the client
    // takes each kind of fault is checked in tests/e2e.)
    void plantedAnswers()
    {
        plant({{u"path"_s, u"/sync/polls?all=1"_s},
               {u"status"_s, 404},
               {u"count"_s, 2},
               {u"body"_s, QJsonObject{{u"error"_s, u"Gone fishing"_s}}}});
        QCOMPARE(h->get(u"/sync/google"_s).status, 200);
        QCOMPARE(h->post(u"/sync/polls"_s, {{u"title"_s, u"T"_s}, {u"type"_s, u"intro"_s}}).body,
                 R"({"error":"Gone fishing"})"_ba);
        QCOMPARE(outcome(h->get(u"/sync/polls"_s)), u"404 Gone fishing"_s);
        QCOMPARE(h->get(u"/sync/polls"_s).status, 200);
        // "sync/*" strikes every sync path but one that has a fault of its own.
        plant({{u"path"_s, u"sync/*"_s}, {u"status"_s, 503}, {u"count"_s, 9}});
        plant({{u"path"_s, u"sync/me"_s}, {u"bodyBytes"_s, 100'000}});
        const SandboxHarness::Response long_ = h->get(u"/sync/me"_s);
        QCOMPARE((std::pair{long_.status, long_.body.size()}), (std::pair{200, qsizetype(100'000)}));
        QCOMPARE(h->get(u"/sync/me"_s).status, 503);
        QCOMPARE(h->get(u"/sync/polls"_s).status, 503);
        QCOMPARE(h->send("DELETE", u"/sandbox/faults"_s, {}, {}, {}).status, 200);
        QCOMPARE(h->get(u"/sync/me"_s).status, 200);
    }

    // Delayed answers hold up neither other clients nor, once their own client left, the server.
    void delayedAnswers()
    {
        plant({{u"path"_s, u"sync/me"_s}, {u"delayMs"_s, 200}, {u"status"_s, 503}});
        {
            const auto leaving = rawGet("/sync/me");
            QTest::qWait(50);
        }
        QTest::qWait(400); // the answer falls due after its socket is gone
        plant({{u"path"_s, u"sync/polls"_s}, {u"delayMs"_s, 400}});
        const auto slow = rawGet("/sync/polls");
        QTest::qWait(50); // let the slow request reach the server first
        QCOMPARE(h->get(u"/sync/me"_s).status, 200);
        QCOMPARE(slow->bytesAvailable(), 0);
        QSignalSpy answered(slow.get(), &QTcpSocket::readyRead);
        QVERIFY(answered.wait(5000));
        QVERIFY(slow->readAll().startsWith("HTTP/1.1 200"));
    }

    void escapingCoversWhatBreaksMarkup()
    {
        QCOMPARE(Html::escape(u"<a title=\"x\" id='y'>&lt; Zoë O’Neil"_s),
                 u"&lt;a title=&quot;x&quot; id=&#39;y&#39;&gt;&amp;lt; Zoë O’Neil"_s);
    }

    // Booked as the guest filled it in, with a Meet link for a video type; then the time is gone
    // from the page, and taking it again is refused with the form kept. The host's dashboard
    // shows the guest's name as text, too.
    void aGuestBooksThroughTheForm()
    {
        h->sandbox().store().setSettings(pageSettings());
        const auto page = h->get(u"/sam/video"_s, {});
        QVERIFY(page.body.contains("Video &lt;chat&gt;"));
        const QStringList starts = offeredStarts(page.body);
        QVERIFY(!starts.isEmpty());
        const auto booked = h->postForm(u"/sam/video"_s, guestForm(starts.first()));
        QCOMPARE(booked.status, 200);
        QVERIFY(showsEscaped(booked.body) && booked.body.contains("Plans &amp; &lt;ideas&gt;"));

        const auto all = fromJson<QList<Booking>>(h->get(u"/sync/bookings"_s).json().value(u"bookings"_s)).value();
        const auto it = std::find_if(all.cbegin(), all.cend(), [](const Booking &b) { return b.name == markup; });
        QVERIFY(it != all.cend());
        const Booking &b = *it;
        QCOMPARE((std::tuple{b.start, b.start.secsTo(b.end), b.tz}),
                 (std::tuple{ISO::parse(starts.first()).value(), 1800, u"Europe/Berlin"_s}));
        QCOMPARE(b.answers.value(), (QList<Answer>{{u"What about?"_s, u"Plans & <ideas>"_s}}));
        QVERIFY(b.meet.value_or(QString()).startsWith(u"https://meet.google.com/"_s));

        QVERIFY(!offeredStarts(h->get(u"/sam/video"_s, {}).body).contains(starts.first()));
        const auto again = h->postForm(u"/sam/video"_s, guestForm(starts.first()));
        QCOMPARE(again.status, 409);
        QVERIFY(again.body.contains("no longer available") && showsEscaped(again.body));
        QVERIFY(showsEscaped(h->get(u"/app"_s, {}).body));
    }
};

QTEST_GUILESS_MAIN(TestSandboxApi)
#include "tst_sandbox_api.moc"
