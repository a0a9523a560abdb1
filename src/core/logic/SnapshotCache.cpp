#include "SnapshotCache.h"

#include "JSON.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(SnapshotCache)
};

constexpr QFile::Permissions ownerOnlyFile = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions ownerOnlyDirectory = ownerOnlyFile | QFile::ExeOwner;

bool fail(QString *error, const QString &message)
{
    if (error)
        *error = message;
    return false;
}

// The cache's own directory is created private from the start (no window in which it is
// readable); intermediate directories get the usual mode.
bool makeDirectory(const QString &path, QString *error)
{
    const QFileInfo info(path);
    if (info.isDir())
        return true;
    const QDir parent = info.dir();
    if (!QDir().mkpath(parent.absolutePath()) || !parent.mkdir(info.fileName(), ownerOnlyDirectory)) {
        if (QFileInfo(path).isDir()) // made by someone else meanwhile
            return true;
        return fail(error, Text::tr("Couldn't create the folder %1").arg(QDir::toNativeSeparators(path)));
    }
    return true;
}

} // namespace

SnapshotCache::SnapshotCache(QString path)
    : m_path(std::move(path))
{}

std::optional<Snapshot> SnapshotCache::load() const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    Result<Snapshot> decoded = JSON::decode<Snapshot>(file.readAll());
    if (!decoded)
        return std::nullopt;
    return std::move(decoded).value();
}

bool SnapshotCache::save(const Snapshot &snapshot, QString *error) const
{
    if (!makeDirectory(QFileInfo(m_path).absolutePath(), error))
        return false;
    const QByteArray bytes = JSON::encode(snapshot);

    // On any failure below, QSaveFile discards its temporary file and the old one stays.
    QSaveFile file(m_path);
    const bool written = file.open(QIODevice::WriteOnly)
                         && file.write(bytes) == bytes.size()
                         // Before the rename, so that the new file is never visible with a wider mode.
                         && file.setPermissions(ownerOnlyFile) && file.commit();
    if (!written)
        return fail(error, Text::tr("Couldn't save %1 (%2)").arg(QDir::toNativeSeparators(m_path), file.errorString()));
    return true;
}

void SnapshotCache::clear() const
{
    QFile::remove(m_path);
}

} // namespace quorvane
