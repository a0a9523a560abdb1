// The app's saved data survive being killed at any moment: the model (in tests/e2e/CrashRig,
// the app's own model and writers at full speed) is killed with SIGKILL hundreds of times while
// guests keep booking; every restart finds the cache and the tracker whole, never older than
// the last start found them, and no booking is ever announced twice.
#include "Sandbox.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <csignal>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

const QString rig = qEnvironmentVariable("QUORVANE_BINARY_DIR") + u"/tests/e2e/crash-rig"_s;
constexpr int wantedKills = 300;
constexpr qint64 budgetMs = 45'000;
const QString token = u"kill-test-token"_s;

} // namespace

class TestE2EKill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void killedAnywhere()
    {
        QTemporaryDir dir;
        sandbox::SandboxConfig config;
        config.port = 0;
        config.demo = true;
        config.seed = 7;
        config.tokens = {token};
        config.testControls = false;
        config.logRequests = false;
        sandbox::Sandbox server(config, sandbox::systemClock());
        QString error;
        QVERIFY2(server.start(&error), qPrintable(error));

        // Guests book all along, and now and then one cancels.
        int guests = 0;
        QTimer bookings;
        connect(&bookings, &QTimer::timeout, this, [&] {
            sandbox::GuestBooking g;
            g.type = u"intro"_s;
            g.start = QDateTime::currentDateTimeUtc().addDays(4).addSecs(600 * guests);
            g.name = u"Guest %1"_s.arg(++guests);
            g.email = u"guest@example.com"_s;
            g.tz = u"UTC"_s;
            const Booking b = server.backend().book(g, false);
            if (guests % 5 == 0)
                server.backend().cancel(b.id);
        });
        bookings.start(150);

        const quint32 seed = QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        QProcess rigs; // forks each run of the model, so that a run starts with its libraries loaded
        rigs.start(rig, {server.baseUrl(), dir.filePath(u"data"_s), dir.filePath(u"settings.ini"_s)});
        rigs.write((token + u'\n').toUtf8());

        // What the runs said so far.
        QHash<QString, int> announced;
        QStringList starts; // "start cache … tracker …", one per run
        qint64 child = 0;
        int saves = 0, reaped = 0;
        const auto read = [&] {
            while (rigs.canReadLine()) {
                const QByteArray line = rigs.readLine().trimmed();
                if (line.startsWith("announce ") && ++announced[QString::fromUtf8(line.mid(9))] > 1)
                    qWarning("announced twice: %s", line.constData());
                if (line.startsWith("child "))
                    child = line.mid(6).toLongLong();
                if (line.startsWith("start "))
                    starts.append(QString::fromUtf8(line));
                saves += int(line == "saved");
                reaped += int(line == "reaped");
            }
        };
        const auto waitFor = [&](auto holds) { return QTest::qWaitFor([&] { return read(), holds(); }, 10'000); };

        QString lastCache = u"none"_s, lastTracker = u"none"_s;
        int kills = 0;
        QElapsedTimer clock;
        clock.start();
        while (kills < wantedKills && clock.elapsed() < budgetMs) {
            const int savesBefore = saves;
            rigs.write("run\n");
            QVERIFY(waitFor([&] { return starts.size() == kills + 1 && child > 0; }));
            const QStringList start = starts.last().split(u' ');
            QCOMPARE(start.size(), 5);
            const QString cache = start[2], tracker = start[4];
            QVERIFY2(cache != "torn"_L1 && tracker != "torn"_L1, qPrintable(starts.last()));
            // ISO instants in UTC compare as text; "none" only until the first file is written.
            QVERIFY2(lastCache == "none"_L1 || cache >= lastCache, qPrintable(cache + u" after "_s + lastCache));
            QVERIFY2(lastTracker == "none"_L1 || tracker >= lastTracker,
                     qPrintable(tracker + u" after "_s + lastTracker));
            lastCache = cache;
            lastTracker = tracker;

            // Once the model runs at full speed, at a random moment of its cycle.
            QVERIFY(waitFor([&] { return saves > savesBefore; }));
            QTest::qWait(int(random.bounded(0, 60)));
            QCOMPARE(::kill(pid_t(child), SIGKILL), 0);
            child = 0;
            ++kills;
            QVERIFY(waitFor([&] { return reaped == kills; }));
        }
        rigs.closeWriteChannel();
        QVERIFY(rigs.waitForFinished(10'000));
        read();
        QStringList twice;
        for (auto it = announced.cbegin(); it != announced.cend(); ++it) {
            if (it.value() > 1)
                twice.append(it.key());
        }
        QCOMPARE(twice, QStringList());
        qInfo("seed %u: %d kills in %lld ms, amid %d saves; %lld announcements, none twice", seed, kills,
              clock.elapsed(), saves, qlonglong(announced.size()));
        QVERIFY2(kills >= 50, "too slow to kill often enough");
        QVERIFY(!announced.isEmpty());
        QVERIFY(lastCache != "none"_L1 && lastTracker != "none"_L1);
    }
};

QTEST_GUILESS_MAIN(TestE2EKill)
#include "tst_e2e_kill.moc"
