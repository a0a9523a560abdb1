// Planted failures: what a test or a demo can make the next requests suffer.
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

private Q_SLOTS:
    void init()
    {
        h = std::make_unique<SandboxHarness>();
        QVERIFY(h->start());
    }
    void cleanup() { h.reset(); }

    void answersAsPlanted_data()
    {
        QTest::addColumn<QJsonObject>("fault");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::newRow("status alone") << QJsonObject{{u"status"_s, 503}} << 503 << QByteArray(R"({"error":"Injected failure"})");
        QTest::newRow("status and message")
            << QJsonObject{{u"status"_s, 404}, {u"body"_s, QJsonObject{{u"error"_s, u"Gone fishing"_s}}}} << 404
            << QByteArray(R"({"error":"Gone fishing"})");
        QTest::newRow("empty body") << QJsonObject{{u"status"_s, 500}, {u"body"_s, u""_s}} << 500 << QByteArray();
        QTest::newRow("garbage with 200") << QJsonObject{{u"body"_s, u"{not json"_s}} << 200 << QByteArray("{not json");
        QTest::newRow("rate limited") << QJsonObject{{u"status"_s, 429}} << 429 << QByteArray(R"({"error":"Injected failure"})");
    }
    void answersAsPlanted()
    {
        QFETCH(QJsonObject, fault);
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        fault.insert(u"path"_s, u"sync/me"_s);
        plant(fault);
        const auto r = h->get(u"/sync/me"_s);
        QCOMPARE(r.status, status);
        QCOMPARE(r.body, body);
        QCOMPARE(h->get(u"/sync/me"_s).status, 200);
    }

    void onlyThePlantedPathSuffers()
    {
        plant({{u"path"_s, u"/sync/polls"_s}, {u"status"_s, 500}});
        QCOMPARE(h->get(u"/sync/me"_s).status, 200);
        QCOMPARE(h->post(u"/sync/polls"_s, {{u"title"_s, u"T"_s}, {u"type"_s, u"intro"_s}}).status, 500);
        QCOMPARE(h->get(u"/sync/polls"_s).status, 200);
    }

    void countSpendsOnePerRequest()
    {
        plant({{u"path"_s, u"sync/bookings"_s}, {u"status"_s, 502}, {u"count"_s, 3}});
        for (int i = 0; i < 3; ++i)
            QCOMPARE(h->get(u"/sync/bookings"_s).status, 502);
        QCOMPARE(h->get(u"/sync/bookings"_s).status, 200);
    }

    void clearingRemovesEveryFault()
    {
        plant({{u"path"_s, u"sync/me"_s}, {u"status"_s, 500}, {u"count"_s, 9}});
        QCOMPARE(h->del(u"/sandbox/faults"_s).status, 200);
        QCOMPARE(h->get(u"/sync/me"_s).status, 200);
    }

    void dropClosesWithoutAByte()
    {
        plant({{u"path"_s, u"sync/me"_s}, {u"drop"_s, true}});
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, h->sandbox().port());
        QVERIFY(socket.waitForConnected(5000));
        socket.write("GET /sync/me HTTP/1.1\r\nHost: 127.0.0.1\r\nAuthorization: Bearer test-token\r\n\r\n");
        QSignalSpy closed(&socket, &QTcpSocket::disconnected);
        QVERIFY(closed.wait(5000));
        QCOMPARE(socket.readAll(), QByteArray());
        QCOMPARE(h->get(u"/sync/me"_s).status, 200);
    }

    void aDelayedAnswerComesAfterAQuickOne()
    {
        plant({{u"path"_s, u"sync/polls"_s}, {u"delayMs"_s, 400}});
        QNetworkAccessManager network;
        const auto request = [&](const QString &path) {
            QNetworkRequest r(QUrl(h->base() + path));
            r.setRawHeader("Authorization", "Bearer test-token");
            return network.get(r);
        };
        QNetworkReply *slow = request(u"/sync/polls"_s);
        QSignalSpy slowDone(slow, &QNetworkReply::finished);
        QTest::qWait(50); // let the slow request reach the server first
        QNetworkReply *quick = request(u"/sync/me"_s);
        QSignalSpy quickDone(quick, &QNetworkReply::finished);
        QVERIFY(quickDone.wait(5000));
        QCOMPARE(slowDone.size(), 0);
        QVERIFY(slowDone.wait(5000));
        QCOMPARE(slow->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), 200);
        QVERIFY(slow->readAll().startsWith(R"({"polls":)"));
        delete slow;
        delete quick;
    }

    void aDelayedAnswerToAClientThatLeftIsDropped()
    {
        plant({{u"path"_s, u"sync/me"_s}, {u"delayMs"_s, 200}, {u"status"_s, 503}});
        {
            QTcpSocket socket;
            socket.connectToHost(QHostAddress::LocalHost, h->sandbox().port());
            QVERIFY(socket.waitForConnected(5000));
            socket.write("GET /sync/me HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n");
            QVERIFY(socket.waitForBytesWritten(5000));
            QTest::qWait(50);
        }
        QTest::qWait(400); // the answer falls due after the socket is gone
        QCOMPARE(h->get(u"/sync/me"_s).status, 200);
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
