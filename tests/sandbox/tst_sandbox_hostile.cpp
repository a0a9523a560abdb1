// The sandbox executable against hostile clients: broken HTTP, oversized headers and paths that
// climb out of the page routes each get a 4xx, and the server keeps serving afterwards.
#include <QProcess>
#include <QTcpSocket>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr auto token = "hostile-test-token";

// Sends raw bytes and reads the status of the first answer; 0 when the connection closed, or
// stayed silent, without one.
int statusOf(quint16 port, const QByteArray &bytes, QByteArray *answer = nullptr)
{
    QTcpSocket socket;
    socket.connectToHost(u"127.0.0.1"_s, port);
    if (!socket.waitForConnected(5000))
        return 0;
    socket.write(bytes);
    QByteArray received;
    while (!received.contains("\r\n\r\n") && socket.waitForReadyRead(10000))
        received += socket.readAll();
    received += socket.readAll();
    if (answer)
        *answer = received;
    return received.startsWith("HTTP/1.1 ") ? received.mid(9, 3).toInt() : 0;
}

} // namespace

class TestSandboxHostile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_server.start(qEnvironmentVariable("QUORVANE_BINARY_DIR") + u"/sandbox/quorvane-sandbox"_s,
                       {u"--demo"_s, u"--port"_s, u"0"_s, u"--print-port"_s, u"--token"_s, QString::fromLatin1(token)});
        QVERIFY(m_server.waitForReadyRead(15000));
        m_port = quint16(m_server.readLine().trimmed().toUInt());
        QVERIFY(m_port > 0);
    }

    void cleanupTestCase()
    {
        m_server.terminate();
        m_server.waitForFinished(5000);
        // A line break in a path stays inside its own log line.
        const QByteArray log = m_server.readAllStandardError();
        QVERIFY(log.contains("GET /poll/x%0AGET /sync/me 200"));
        QVERIFY(!log.contains("\nGET /sync/me 200 0ms (forged)"));
    }

    void refused_data()
    {
        QTest::addColumn<QByteArray>("request");
        const QByteArray end = " HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n";
        QTest::newRow("binary garbage") << QByteArray("\x16\x03\x01\x02\x00\x01\x00\x01\xfc\x03\x03\r\n\r\n", 15);
        QTest::newRow("no version") << QByteArray("GET /app\r\n\r\n");
        QTest::newRow("space in the path") << QByteArray("GET /a b HTTP/1.1\r\nHost: x\r\n\r\n");
        QTest::newRow("header without colon") << QByteArray("GET /app HTTP/1.1\r\nHost x\r\n\r\n");
        QTest::newRow("bad chunk") << QByteArray(
            "POST /device HTTP/1.1\r\nHost: x\r\nTransfer-Encoding: chunked\r\n\r\n"
            "zz\r\nabc\r\n0\r\n\r\n");
        QTest::newRow("huge header") << "GET /app HTTP/1.1\r\nHost: x\r\nX-Filler: " + QByteArray(256 * 1024, 'a')
                                            + "\r\n\r\n";
        QTest::newRow("many headers") << "GET /app HTTP/1.1\r\nHost: x\r\n" + QByteArray("X-A: b\r\n").repeated(20000)
                                             + "\r\n";
        for (const char *path :
             {"/../../etc/passwd", "/jordan/../../../etc/passwd", "/%2e%2e/%2e%2e/etc/passwd",
              "/jordan/%2e%2e%2f%2e%2e%2fetc%2fpasswd", "/poll/..%2f..%2fetc%2fpasswd", "/connect/%00",
              "/jordan/intro/../../../../etc/shadow", "/poll/x%0AGET%20/sync/me%20200%200ms%20(forged)"})
            QTest::newRow(path) << "GET " + QByteArray(path) + end;
    }
    void refused()
    {
        QFETCH(QByteArray, request);
        QByteArray answer;
        const int status = statusOf(m_port, request, &answer);
        QVERIFY2(status >= 400 && status < 500, answer.left(200).constData());
        QVERIFY(!answer.contains("root:"));
        QCOMPARE(m_server.state(), QProcess::Running);
        QCOMPARE(statusOf(m_port, "GET /sync/me HTTP/1.1\r\nHost: x\r\nAuthorization: Bearer " + QByteArray(token)
                                      + "\r\n\r\n"),
                 200);
    }

private:
    QProcess m_server;
    quint16 m_port = 0;
};

QTEST_GUILESS_MAIN(TestSandboxHostile)
#include "tst_sandbox_hostile.moc"
