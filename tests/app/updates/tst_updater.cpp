// The updater against the sandbox's signed feed over loopback: what a package, a development
// build and a portable copy do with a newer release, a tampered download and a key that
// doesn't match; and a portable copy taking the new file at its next start.
#include "FixedClock.h"
#include "NetworkTransport.h"
#include "SandboxHarness.h"
#include "UpdateFeed.h"
#include "UrlOpener.h"
#include "updates/FeedUpdater.h"
#include "updates/StagedUpdate.h"

#include <QCoroTask>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;
using Install = FeedUpdater::Install;

Q_DECLARE_METATYPE(quorvane::FeedUpdater::Install)

namespace {

struct Rig {
    Rig() { QVERIFY(server.start()); }
    std::unique_ptr<FeedUpdater> updater(Install install, QByteArray key = sandbox::UpdateFeed::publicKey(),
                                         int build = 200)
    {
        FeedUpdater::Config config;
        config.publicKey = std::move(key);
        config.install = install;
        config.currentVersion = u"2.0"_s;
        config.currentBuild = build;
        config.systemVersion = u"12"_s;
        config.stagingDirectory = folder.filePath(u"updates"_s);
        const QUrl base(server.base());
        return std::make_unique<FeedUpdater>(
            config, std::make_shared<NetworkTransport>(network), [base] { return base; }, settings, clock, opener);
    }
    [[nodiscard]] bool staged() const { return StagedUpdate::isStaged(folder.filePath(u"updates"_s)); }

    sandbox::SandboxHarness server;
    QTemporaryDir folder;
    QSettings settings{folder.filePath(u"settings.ini"_s), QSettings::IniFormat};
    FixedClock clock{QDateTime(QDate(2026, 11, 25), QTime(9, 0), Qt::UTC)};
    QNetworkAccessManager network;
    UrlOpener opener;
};

} // namespace

class TestUpdater : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void outcomes_data()
    {
        QTest::addColumn<Install>("install");
        QTest::addColumn<int>("build");
        QTest::addColumn<bool>("wrongKey");
        QTest::addColumn<bool>("tampered");
        QTest::addColumn<QString>("status");
        QTest::addColumn<bool>("staged");
        QTest::newRow("package") << Install::package << 200 << false << false
                                 << u"Quorvane 2.1 is available. Your package manager delivers it with your other "
                                    "updates."_s
                                 << false;
        QTest::newRow("development") << Install::development << 200 << false << false << u"Quorvane 2.1 is available."_s
                                     << false;
        QTest::newRow("portable") << Install::portable << 200 << false << false
                                  << u"Quorvane 2.1 is downloaded and verified. It takes this version's place the "
                                     "next time Quorvane starts."_s
                                  << true;
        QTest::newRow("portable, tampered download")
            << Install::portable << 200 << false << true
            << u"The download of Quorvane 2.1 was refused: its signature doesn't match Quorvane's key."_s << false;
        QTest::newRow("portable, another key")
            << Install::portable << 200 << true << false
            << u"The download of Quorvane 2.1 was refused: its signature doesn't match Quorvane's key."_s << false;
        QTest::newRow("already the newest")
            << Install::portable << 210 << false << false << u"Quorvane is up to date."_s << false;
    }
    void outcomes()
    {
        QFETCH(Install, install);
        QFETCH(int, build);
        QFETCH(bool, wrongKey);
        QFETCH(bool, tampered);
        Rig rig;
        if (tampered) {
            sandbox::Fault fault;
            QByteArray body = sandbox::UpdateFeed::download();
            body[100] = '!';
            fault.body = body;
            rig.server.sandbox().faults().plant(QString::fromLatin1(sandbox::UpdateFeed::downloadPath), fault);
        }
        const std::unique_ptr<FeedUpdater> updater =
            rig.updater(install, wrongKey ? QByteArray(32, 'k') : sandbox::UpdateFeed::publicKey(), build);
        QVERIFY(updater->canCheck());
        QVERIFY(!updater->lastCheck().isValid());
        QCoro::waitFor(updater->checkNow());
        QTEST(updater->status(), "status");
        QTEST(rig.staged(), "staged");
        QCOMPARE(updater->failed(), tampered || wrongKey);
        QCOMPARE(updater->availableVersion(), build < 210 ? u"2.1"_s : QString());
        QCOMPARE(updater->lastCheck(), rig.clock.now());
        QVERIFY(updater->canCheck());
    }

    // A server that isn't there: the check fails with the words of the failure and no date.
    void unreachable()
    {
        Rig rig;
        rig.server.sandbox().faults().plant(u"appcast.xml"_s, {.status = 503, .count = 5});
        const std::unique_ptr<FeedUpdater> updater = rig.updater(Install::package);
        QCoro::waitFor(updater->checkNow());
        QVERIFY(updater->failed());
        QVERIFY2(updater->status().startsWith(u"Couldn't check for updates: "_s), qPrintable(updater->status()));
        QVERIFY(!updater->lastCheck().isValid());
        // Without a key there is nothing to check at all.
        QVERIFY(!rig.updater(Install::package, {})->canCheck());
    }

    // The staged file takes the executable's place at the next start; the old one stays until
    // the new one has started.
    void portableReplacement()
    {
        QTemporaryDir dir;
        const QString executable = dir.filePath(u"quorvane"_s);
        QFile old(executable);
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write("old");
        old.close();
        const QString staging = dir.filePath(u"staging"_s);
        QVERIFY(!StagedUpdate::apply(executable, staging)); // nothing waits
        QVERIFY(StagedUpdate::stage(staging, "new"));
        QVERIFY(StagedUpdate::apply(executable, staging));
        QFile now(executable);
        QVERIFY(now.open(QIODevice::ReadOnly));
        QCOMPARE(now.readAll(), QByteArray("new"));
        QVERIFY(now.permissions() & QFileDevice::ExeOwner);
        QVERIFY(QFile::exists(executable + u".previous"_s));
        QVERIFY(!StagedUpdate::isStaged(staging));
        StagedUpdate::confirmStarted(executable);
        QVERIFY(!QFile::exists(executable + u".previous"_s));
    }
};

QTEST_GUILESS_MAIN(TestUpdater)
#include "tst_updater.moc"
