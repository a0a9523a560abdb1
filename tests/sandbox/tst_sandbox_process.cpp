// The sandbox as it runs for real: its world in a SQLite file that outlives the server, and the
// executable as a user starts it.
#include "SandboxHarness.h"

#include "JSON.h"

#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::sandbox;

class TestSandboxProcess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Changes and issued tokens outlive the server, kept only as digests; started again with
    // --demo and another seed, the file's world stands, not a new one.
    void stateSurvivesARestart()
    {
        QTemporaryDir dir;
        SandboxConfig config = SandboxHarness::config();
        config.database = dir.filePath(u"sandbox.sqlite"_s);
        const QStringList paths{u"/sync/settings"_s, u"/sync/bookings"_s, u"/sync/polls"_s};
        QByteArrayList before;
        QByteArray issued;
        {
            SandboxHarness first(config);
            QVERIFY(first.start());
            HostSettings s = JSON::decode<HostSettings>(first.get(u"/sync/settings"_s).body).value();
            s.minNoticeMinutes = 240;
            QCOMPARE(first.put(u"/sync/settings"_s, JSON::encode(s)).status, 200);
            const QString id = first.get(u"/sync/bookings"_s).json().value(u"bookings"_s)[0][u"id"_s].toString();
            QCOMPARE(first.post(u"/sync/cancel"_s, {{u"id"_s, id}}).status, 200);
            QCOMPARE(first.post(u"/sync/polls"_s, {{u"title"_s, u"Offsite"_s}, {u"type"_s, u"intro"_s}}).status, 200);
            issued = first.sandbox().devices().issueToken(u"laptop"_s).toUtf8();
            for (const QString &path : paths)
                before.append(first.get(path).body);
        }
        QFile file(config.database);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(!file.readAll().contains(issued));

        config.seed = 7;
        config.tokens.clear();
        SandboxHarness second(config);
        QVERIFY(second.start());
        for (qsizetype i = 0; i < paths.size(); ++i)
            QCOMPARE(second.get(paths[i], issued).body, before[i]);
    }

    // Started as a user does: the port it took alone on stdout, a log on stderr, and never a
    // token in either, not even one sent in a query.
    void theExecutableSaysItsPortAndNeverPrintsAToken()
    {
        const QByteArray token = "canary-token-5d1e0b";
        QProcess server;
        server.start(qEnvironmentVariable("QUORVANE_BINARY_DIR") + u"/sandbox/quorvane-sandbox"_s,
                     {u"--demo"_s, u"--port"_s, u"0"_s, u"--print-port"_s, u"--token"_s, QString::fromLatin1(token)});
        QVERIFY(server.waitForReadyRead(15000));
        const uint port = server.readLine().trimmed().toUInt();
        QVERIFY(port > 0 && port < 65536);

        QNetworkAccessManager network;
        QNetworkRequest request(
            QUrl(u"http://127.0.0.1:%1/sync/bookings?token=%2"_s.arg(port).arg(QLatin1StringView(token))));
        request.setRawHeader("Authorization", "Bearer " + token);
        std::unique_ptr<QNetworkReply> reply(network.get(request));
        QVERIFY(QSignalSpy(reply.get(), &QNetworkReply::finished).wait(10000));
        QCOMPARE(reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), 200);

        server.terminate();
        QVERIFY(server.waitForFinished(5000));
        const QByteArray out = server.readAllStandardOutput(), err = server.readAllStandardError();
        QVERIFY(err.contains("GET /sync/bookings 200"));
        QVERIFY2(!out.contains(token) && !err.contains(token), err.constData());
    }
};

QTEST_GUILESS_MAIN(TestSandboxProcess)
#include "tst_sandbox_process.moc"
