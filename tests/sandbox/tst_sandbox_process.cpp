// The executable as a user starts it: the port on stdout, a log on stderr, and never a token
// in either.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray canary = "canary-token-5d1e0b";

QString executable()
{
    return qEnvironmentVariable("QUORVANE_BINARY_DIR") + u"/sandbox/quorvane-sandbox"_s;
}

} // namespace

class TestSandboxProcess : public QObject
{
    Q_OBJECT

    QNetworkAccessManager m_network;
    quint16 m_port = 0;

    QByteArray call(const QByteArray &method, const QString &path, const QByteArray &body, const QByteArray &token,
                    int *status = nullptr)
    {
        QNetworkRequest request(QUrl(u"http://127.0.0.1:%1%2"_s.arg(m_port).arg(path)));
        if (!token.isEmpty())
            request.setRawHeader("Authorization", "Bearer " + token);
        request.setRawHeader("Content-Type", "application/json");
        QNetworkReply *reply = m_network.sendCustomRequest(request, method, body);
        QSignalSpy done(reply, &QNetworkReply::finished);
        if (!reply->isFinished())
            done.wait(10000);
        if (status)
            *status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        reply->deleteLater();
        return reply->readAll();
    }

private Q_SLOTS:
    void servesTheDemoAndNeverPrintsAToken()
    {
        QProcess server;
        server.start(executable(), {u"--demo"_s, u"--port"_s, u"0"_s, u"--print-port"_s, u"--seed"_s, u"3"_s,
                                    u"--token"_s, QString::fromLatin1(canary), u"--auto-approve"_s, u"0"_s});
        QVERIFY2(server.waitForStarted(5000), qPrintable(executable()));
        QVERIFY(server.waitForReadyRead(15000));
        bool ok = false;
        m_port = quint16(server.readLine().trimmed().toUInt(&ok));
        QVERIFY(ok && m_port > 0);

        int status = 0;
        const QByteArray bookings = call("GET", u"/sync/bookings?token="_s + QString::fromLatin1(canary), {}, canary, &status);
        QCOMPARE(status, 200);
        QVERIFY(QJsonDocument::fromJson(bookings).object().value(u"bookings"_s).toArray().size() >= 8);
        const QByteArray started = call("POST", u"/auth/device/start"_s, R"({"label":"ci"})", {});
        const QByteArray deviceCode = QJsonDocument::fromJson(started).object().value(u"device_code"_s).toString().toUtf8();
        const QByteArray granted = call("POST", u"/auth/device/poll"_s, R"({"device_code":")" + deviceCode + R"("})", {}, &status);
        QCOMPARE(status, 200);
        const QByteArray issued = QJsonDocument::fromJson(granted).object().value(u"access_token"_s).toString().toUtf8();
        QVERIFY(!issued.isEmpty());
        call("GET", u"/sync/me"_s, {}, issued, &status);
        QCOMPARE(status, 200);

        server.terminate();
        QVERIFY(server.waitForFinished(5000));
        const QByteArray out = server.readAllStandardOutput();
        const QByteArray err = server.readAllStandardError();
        QVERIFY(err.contains("GET /sync/bookings 200"));
        for (const QByteArray &secret : {canary, issued, deviceCode}) {
            QVERIFY2(!out.contains(secret), out.constData());
            QVERIFY2(!err.contains(secret), err.constData());
        }
    }
};

QTEST_GUILESS_MAIN(TestSandboxProcess)
#include "tst_sandbox_process.moc"
