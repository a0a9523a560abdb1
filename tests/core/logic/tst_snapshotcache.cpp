// The offline copy on disk: private modes, what reads back, what doesn't, and saves that fail
// without harming the file that was there.
#include "JSON.h"
#include "SnapshotCache.h"
#include "TimeFixtures.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace quorvane;
using namespace Qt::StringLiterals;
using test::at;

namespace {

// A booking with fractions of seconds and a status word this client doesn't know.
const QByteArray stored = R"({"upcoming": [{"id": "b1", "type": "intro", "start": "2026-03-10T14:00:00.750Z",
  "end": "2026-03-10T14:30:00Z", "name": "Ann", "email": "ann@example.com", "tz": "UTC", "status": "tentative"}],
  "history": [], "polls": [], "savedAt": "2026-03-09T08:00:00.400Z"})";

Snapshot storedSnapshot()
{
    return JSON::decode<Snapshot>(stored).value();
}

int mode(const QString &path)
{
    struct stat info {};
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? int(info.st_mode & 07777) : -1;
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A file-size limit makes a write fail halfway through for real, even for root.
struct FileSizeLimit {
    explicit FileSizeLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &old);
        const rlimit limited{bytes, old.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &old); }
    rlimit old{};
};

} // namespace

class TestSnapshotCache : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roundTripWithPrivateModes()
    {
        QTemporaryDir tmp;
        const QString folder = tmp.filePath(u"share/Quorvane"_s);
        const SnapshotCache cache(folder + u"/cache-v2.json"_s);
        QVERIFY(cache.save(storedSnapshot()));
        QCOMPARE(mode(folder), 0700);
        QCOMPARE(mode(cache.path()), 0600);

        const std::optional<Snapshot> loaded = cache.load();
        QVERIFY(loaded.has_value());
        Booking expected = storedSnapshot().upcoming.first();
        expected.start = at("2026-03-10T14:00:00Z"); // fractions dropped, not rounded
        expected.status = BookingStatus::unknown;
        QCOMPARE(loaded->upcoming, QList<Booking>{expected});
        QCOMPARE(loaded->savedAt, at("2026-03-09T08:00:00Z"));

        cache.clear();
        QVERIFY(!QFile::exists(cache.path()));
        cache.clear(); // nothing there: no failure
    }

    // No file, a cut-off one and one of the older format all read as nothing.
    void unreadableFiles()
    {
        QTemporaryDir tmp;
        const SnapshotCache cache(tmp.filePath(u"cache-v2.json"_s));
        QVERIFY(!cache.load().has_value());
        for (const QByteArray &contents :
             {stored.left(120), R"({"bookings": [], "savedAt": "2026-03-09T08:00:00Z"})"_ba}) {
            write(cache.path(), contents);
            QVERIFY(!cache.load().has_value());
        }
    }

    void failedSaveKeepsWhatIsThere_data()
    {
        QTest::addColumn<QString>("target"); // beside a regular file "blocker" and a folder "folder"
        QTest::newRow("parent is a file") << u"blocker/cache-v2.json"_s;
        QTest::newRow("target is a folder") << u"folder"_s;
    }

    void failedSaveKeepsWhatIsThere()
    {
        QFETCH(QString, target);
        QTemporaryDir tmp;
        write(tmp.filePath(u"blocker"_s), "old");
        QVERIFY(QDir(tmp.path()).mkpath(u"folder/inside"_s));
        QString error;
        QVERIFY(!SnapshotCache(tmp.filePath(target)).save(storedSnapshot(), &error));
        QVERIFY(!error.isEmpty());
        QCOMPARE(read(tmp.filePath(u"blocker"_s)), QByteArray("old"));
        QVERIFY(QFileInfo(tmp.filePath(u"folder/inside"_s)).isDir());
    }

    void writeFailingMidwayKeepsOldFile()
    {
        QTemporaryDir tmp;
        const SnapshotCache cache(tmp.filePath(u"cache-v2.json"_s));
        QVERIFY(cache.save(storedSnapshot()));
        const QByteArray before = read(cache.path());
        Snapshot large = storedSnapshot();
        for (int i = 0; i < 400; ++i)
            large.history.append(large.upcoming.first());

        QString error;
        {
            const FileSizeLimit limit(rlim_t(before.size()) * 2);
            QVERIFY(!cache.save(large, &error));
        }
        QVERIFY(!error.isEmpty());
        QCOMPARE(read(cache.path()), before);
        // No half-written temporary file is left beside it.
        QCOMPARE(QDir(tmp.path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"cache-v2.json"_s});
    }
};

QTEST_APPLESS_MAIN(TestSnapshotCache)
#include "tst_snapshotcache.moc"
