// Planted failures: what a test or a demo can make the next requests suffer. How the client
// takes each kind is checked in tests/e2e.
#include "SandboxHarness.h"

#include <QSignalSpy>
#include <QTcpSocket>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::sandbox;

class TestSandboxFaults : public QObject
{
    Q_OBJECT

    std::unique_ptr<SandboxHarness> h;

    void plant(const QJsonObject &fault)
    {
        QCOMPARE(h->post(u"/sandbox/faults"_s, fault, {}).status, 200);
    }

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

    // The planted status and body, once; then the real answer again.
    void answersAsPlanted()
    {
        plant({{u"path"_s, u"sync/me"_s}, {u"status"_s, 404}, {u"body"_s, QJsonObject{{u"error"_s, u"Gone fishing"_s}}}});
        const auto r = h->get(u"/sync/me"_s);
        QCOMPARE((std::pair{r.status, r.body}), (std::pair{404, R"({"error":"Gone fishing"})"_ba}));
        QCOMPARE(h->get(u"/sync/me"_s).status, 200);
        plant({{u"path"_s, u"sync/me"_s}, {u"body"_s, u"{not json"_s}}); // a bad body with a good status
        const auto garbage = h->get(u"/sync/me"_s);
        QCOMPARE((std::pair{garbage.status, garbage.body}), (std::pair{200, "{not json"_ba}));
    }

    // A fault hits its own path only, whatever the method, once per request up to its count.
    void faultsAreSpentAndCleared()
    {
        plant({{u"path"_s, u"/sync/polls"_s}, {u"status"_s, 500}});
        plant({{u"path"_s, u"sync/bookings"_s}, {u"status"_s, 502}, {u"count"_s, 2}});
        plant({{u"path"_s, u"sync/me"_s}, {u"status"_s, 500}, {u"count"_s, 9}});
        QCOMPARE(h->get(u"/sync/google"_s).status, 200);
        QCOMPARE(h->post(u"/sync/polls"_s, {{u"title"_s, u"T"_s}, {u"type"_s, u"intro"_s}}).status, 500);
        QCOMPARE(h->get(u"/sync/polls"_s).status, 200);
        QCOMPARE(h->get(u"/sync/bookings"_s).status, 502);
        QCOMPARE(h->get(u"/sync/bookings"_s).status, 502);
        QCOMPARE(h->get(u"/sync/bookings"_s).status, 200);
        QCOMPARE(h->get(u"/sync/me"_s).status, 500);
        QCOMPARE(h->del(u"/sandbox/faults"_s).status, 200);
        QCOMPARE(h->get(u"/sync/me"_s).status, 200);
    }

    void dropClosesWithoutAByte()
    {
        plant({{u"path"_s, u"sync/me"_s}, {u"drop"_s, true}});
        const auto socket = rawGet("/sync/me");
        QSignalSpy closed(socket.get(), &QTcpSocket::disconnected);
        QVERIFY(closed.wait(5000));
        QCOMPARE(socket->readAll(), QByteArray());
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
        QTest::qWait(400); // the answer falls due after the socket is gone
        QCOMPARE(h->get(u"/sync/me"_s).status, 200);

        plant({{u"path"_s, u"sync/polls"_s}, {u"delayMs"_s, 400}});
        const auto slow = rawGet("/sync/polls");
        QTest::qWait(50); // let the slow request reach the server first
        QCOMPARE(h->get(u"/sync/me"_s).status, 200);
        QCOMPARE(slow->bytesAvailable(), 0);
        QSignalSpy answered(slow.get(), &QTcpSocket::readyRead);
        QVERIFY(answered.wait(5000));
        QVERIFY(slow->readAll().startsWith("HTTP/1.1 200"));
    }

    void controlsNeedTheirFlag()
    {
        SandboxConfig config = SandboxHarness::config(false);
        config.testControls = false;
        SandboxHarness plain(config);
        QVERIFY(plain.start());
        QCOMPARE(plain.post(u"/sandbox/faults"_s, {{u"path"_s, u"sync/me"_s}, {u"status"_s, 500}}, {}).status, 404);
        QCOMPARE(plain.get(u"/sync/me"_s).status, 200);
    }
};

QTEST_GUILESS_MAIN(TestSandboxFaults)
#include "tst_sandbox_faults.moc"
