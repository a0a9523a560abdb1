// State kept in a SQLite file outlives the server; a seed repeats the demo world.
#include "SandboxHarness.h"

#include "ISO.h"
#include "JSON.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::sandbox;

class TestSandboxPersistence : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stateSurvivesARestart()
    {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        SandboxConfig config = SandboxHarness::config();
        config.database = dir.filePath(u"sandbox.sqlite"_s);

        QByteArray account, settings, bookings, polls;
        QString issued;
        {
            SandboxHarness first(config);
            QVERIFY(first.start());
            HostSettings s = JSON::decode<HostSettings>(first.get(u"/sync/settings"_s).body).value();
            s.minNoticeMinutes = 240;
            QCOMPARE(first.put(u"/sync/settings"_s, JSON::encode(s)).status, 200);
            const QString id = first.get(u"/sync/bookings"_s).json().value(u"bookings"_s)[0][u"id"_s].toString();
            QCOMPARE(first.post(u"/sync/cancel"_s, {{u"id"_s, id}}).status, 200);
            QCOMPARE(first.post(u"/sync/polls"_s, {{u"title"_s, u"Offsite"_s}, {u"type"_s, u"intro"_s}}).status, 200);
            issued = first.sandbox().devices().issueToken(u"laptop"_s);
            account = first.get(u"/sync/me"_s).body;
            settings = first.get(u"/sync/settings"_s).body;
            bookings = first.get(u"/sync/bookings"_s).body;
            polls = first.get(u"/sync/polls"_s).body;
        }
        // Started again with --demo and another seed: the file's world stands, not a new one.
        config.seed = 7;
        config.tokens.clear();
        SandboxHarness second(config);
        QVERIFY(second.start());
        const QByteArray token = issued.toUtf8();
        QCOMPARE(second.get(u"/sync/settings"_s, token).body, settings);
        QCOMPARE(second.get(u"/sync/bookings"_s, token).body, bookings);
        QCOMPARE(second.get(u"/sync/polls"_s, token).body, polls);
        const Account before = JSON::decode<Account>(account).value();
        const Account after = JSON::decode<Account>(second.get(u"/sync/me"_s, token).body).value();
        QCOMPARE(after.id, before.id);
        QCOMPARE(after.email, before.email);
        // Tokens given at the first start are remembered too; strangers still are not.
        QCOMPARE(second.get(u"/sync/me"_s, SandboxHarness::token).status, 200);
        QCOMPARE(second.get(u"/sync/me"_s, "stranger").status, 401);
    }

    void tokensAreStoredOnlyAsDigests()
    {
        QTemporaryDir dir;
        SandboxConfig config = SandboxHarness::config(false);
        config.database = dir.filePath(u"sandbox.sqlite"_s);
        config.tokens = {u"canary-7f3a9c"_s};
        {
            SandboxHarness h(config);
            QVERIFY(h.start());
            QCOMPARE(h.get(u"/sync/me"_s, "canary-7f3a9c").status, 200);
        }
        QFile file(config.database);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(!file.readAll().contains("canary-7f3a9c"));
    }

    void aSeedRepeatsTheDemoWorld()
    {
        SandboxConfig other = SandboxHarness::config();
        other.seed = 43;
        SandboxHarness a, b, c(other);
        QVERIFY(a.start() && b.start() && c.start());
        for (const QString &path : {u"/sync/history?from="_s + ISO::string(a.now().addDays(-200)), u"/sync/bookings"_s}) {
            QCOMPARE(a.get(path).body, b.get(path).body);
            QVERIFY(a.get(path).body != c.get(path).body);
        }
    }
};

QTEST_GUILESS_MAIN(TestSandboxPersistence)
#include "tst_sandbox_persistence.moc"
