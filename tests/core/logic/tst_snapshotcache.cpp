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
using test::at;

namespace {

// A booking with fractions of seconds and a status word this client doesn't know.
const char *storedDocument = R"({
  "upcoming": [{"id": "b1", "type": "intro", "start": "2026-03-10T14:00:00.750Z",
                "end": "2026-03-10T14:30:00Z", "name": "Ann Lee", "email": "ann@example.com",
                "tz": "Europe/Berlin", "status": "tentative", "notes": "Hi", "noShow": false}],
  "history": [{"id": "b0", "type": "gone", "start": "2026-03-01T09:00:00+01:00",
               "end": "2026-03-01T09:30:00+01:00", "name": "Bo", "email": "bo@example.com",
               "tz": "UTC", "status": "cancelled"}],
  "polls": [],
  "savedAt": "2026-03-09T08:00:00.400Z"
})";

Snapshot storedSnapshot()
{
    return JSON::decode<Snapshot>(QByteArray(storedDocument)).value();
}

Snapshot snapshotWithBookings(int count)
{
    Snapshot snapshot = storedSnapshot();
    const Booking model = snapshot.upcoming.first();
    for (int i = 0; i < count; ++i) {
        Booking b = model;
        b.id = QStringLiteral("id-%1").arg(i);
        snapshot.upcoming.append(b);
    }
    return snapshot;
}

int mode(const QString &path)
{
    struct stat info {};
    if (::stat(QFile::encodeName(path).constData(), &info) != 0)
        return -1;
    return int(info.st_mode & 07777);
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A file-size limit makes the write fail halfway through for real, even for root.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        ::getrlimit(RLIMIT_FSIZE, &m_old);
        const rlimit limited{bytes, m_old.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limited);
        m_oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_oldHandler);
    }

private:
    rlimit m_old{};
    void (*m_oldHandler)(int) = nullptr;
};

} // namespace

class TestSnapshotCache : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roundTrip();
    void unreadableFiles_data();
    void unreadableFiles();
    void clear();
    void privateModes();
    void failedSaveKeepsOldFile_data();
    void failedSaveKeepsOldFile();
    void writeFailingMidway();
};

void TestSnapshotCache::roundTrip()
{
    QTemporaryDir tmp;
    const SnapshotCache cache(tmp.filePath(QStringLiteral("a/b/Quorvane/cache-v2.json")));
    QVERIFY(cache.save(storedSnapshot()));

    const std::optional<Snapshot> loaded = cache.load();
    QVERIFY(loaded.has_value());
    Booking expected = storedSnapshot().upcoming.first();
    expected.start = at("2026-03-10T14:00:00Z"); // fractions dropped, not rounded
    expected.status = BookingStatus::unknown;
    QCOMPARE(loaded->upcoming, QList<Booking>{expected});
    QCOMPARE(loaded->history, storedSnapshot().history);
    QCOMPARE(loaded->savedAt, at("2026-03-09T08:00:00Z"));
    QVERIFY(!loaded->account.has_value());
    QVERIFY(!read(cache.path()).contains("tentative"));
}

void TestSnapshotCache::unreadableFiles_data()
{
    QTest::addColumn<QByteArray>("contents"); // a null array: no file at all

    QTest::newRow("missing") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("not JSON") << QByteArray("cache, but not as we know it");
    QTest::newRow("truncated") << QByteArray(storedDocument).left(200);
    QTest::newRow("lacks savedAt") << QByteArray(R"({"upcoming": [], "history": [], "polls": []})");
    QTest::newRow("older format") << QByteArray(R"({"bookings": [], "savedAt": "2026-03-09T08:00:00Z"})");
    QTest::newRow("an array") << QByteArray("[]");
}

void TestSnapshotCache::unreadableFiles()
{
    QFETCH(QByteArray, contents);
    QTemporaryDir tmp;
    const QString path = tmp.filePath(QStringLiteral("cache-v2.json"));
    if (!contents.isNull())
        write(path, contents);
    QVERIFY(!SnapshotCache(path).load().has_value());
}

void TestSnapshotCache::clear()
{
    QTemporaryDir tmp;
    const SnapshotCache cache(tmp.filePath(QStringLiteral("cache-v2.json")));
    cache.clear(); // nothing there yet: no failure
    QVERIFY(cache.save(storedSnapshot()));
    cache.clear();
    QVERIFY(!QFile::exists(cache.path()));
    QVERIFY(!cache.load().has_value());
}

void TestSnapshotCache::privateModes()
{
    QTemporaryDir tmp;
    const QString directory = tmp.filePath(QStringLiteral("share/Quorvane"));
    const SnapshotCache fresh(directory + QStringLiteral("/cache-v2.json"));
    QVERIFY(fresh.save(storedSnapshot()));
    QCOMPARE(mode(directory), 0700);
    QCOMPARE(mode(fresh.path()), 0600);

    // A file left readable by others is narrowed on the next save; an existing folder is fine.
    const QString open = tmp.filePath(QStringLiteral("open"));
    QVERIFY(QDir().mkpath(open));
    const SnapshotCache existing(open + QStringLiteral("/cache-v2.json"));
    write(existing.path(), "{}");
    QVERIFY(QFile::setPermissions(existing.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther));
    QCOMPARE(mode(existing.path()), 0644);
    QVERIFY(existing.save(storedSnapshot()));
    QCOMPARE(mode(existing.path()), 0600);
}

void TestSnapshotCache::failedSaveKeepsOldFile_data()
{
    QTest::addColumn<QString>("blocked"); // relative to a folder holding a regular file "blocker"
    QTest::newRow("parent is a file") << QStringLiteral("blocker/cache-v2.json");
    QTest::newRow("grandparent is a file") << QStringLiteral("blocker/Quorvane/cache-v2.json");
    QTest::newRow("target is a folder") << QStringLiteral("folder");
}

void TestSnapshotCache::failedSaveKeepsOldFile()
{
    QFETCH(QString, blocked);
    QTemporaryDir tmp;
    write(tmp.filePath(QStringLiteral("blocker")), "old");
    QVERIFY(QDir(tmp.path()).mkpath(QStringLiteral("folder/inside")));

    QString error;
    QVERIFY(!SnapshotCache(tmp.filePath(blocked)).save(storedSnapshot(), &error));
    QVERIFY(!error.isEmpty());
    QCOMPARE(read(tmp.filePath(QStringLiteral("blocker"))), QByteArray("old"));
    QVERIFY(QFileInfo(tmp.filePath(QStringLiteral("folder/inside"))).isDir());
}

void TestSnapshotCache::writeFailingMidway()
{
    QTemporaryDir tmp;
    const SnapshotCache cache(tmp.filePath(QStringLiteral("cache-v2.json")));
    QVERIFY(cache.save(storedSnapshot()));
    const QByteArray before = read(cache.path());

    const Snapshot large = snapshotWithBookings(400);
    QVERIFY(JSON::encode(large).size() > 4 * before.size());
    QString error;
    {
        const FileSizeLimit limit(rlim_t(before.size()) * 2);
        QVERIFY(!cache.save(large, &error));
    }
    QVERIFY(!error.isEmpty());
    QCOMPARE(read(cache.path()), before);
    QCOMPARE(cache.load()->upcoming.size(), 1);
    // No half-written temporary file is left beside it.
    QCOMPARE(QDir(tmp.path()).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("cache-v2.json")});
}

QTEST_APPLESS_MAIN(TestSnapshotCache)
#include "tst_snapshotcache.moc"
