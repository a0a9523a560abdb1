// The offline cache reading whatever is in its file. Anything but a good snapshot gives no
// value; a good one saves and loads back as itself.

#include "FuzzInput.h"
#include "JSON.h"
#include "SnapshotCache.h"

#include <QFile>
#include <QTemporaryDir>

using namespace quorvane;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir folder;
    static const SnapshotCache cache(folder.filePath(QStringLiteral("data/snapshot.json")));
    static const SnapshotCache copy(folder.filePath(QStringLiteral("copy/snapshot.json")));

    const QByteArray input = fuzz::bytes(data, size);
    static bool folderMade = false;
    if (!folderMade)
        folderMade = cache.save(Snapshot{});
    QFile file(cache.path());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(input) != input.size())
        fuzz::fail("couldn't write the cache file");
    file.close();

    const std::optional<Snapshot> loaded = cache.load();
    if (!loaded)
        return 0;
    QString error;
    if (!copy.save(*loaded, &error))
        fuzz::fail("a loaded snapshot doesn't save", error.toUtf8());
    const std::optional<Snapshot> again = copy.load();
    if (!again || JSON::encode(*again) != JSON::encode(*loaded))
        fuzz::fail("a saved snapshot doesn't load back as itself", input);
    return 0;
}
