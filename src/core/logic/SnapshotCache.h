#pragma once

#include "Snapshot.h"

#include <QString>

#include <optional>

namespace quorvane {

// The last good snapshot on disk, so the app opens with data at once and works offline.
// The file is readable by its owner alone, in a directory only the owner can enter.
class SnapshotCache
{
public:
    explicit SnapshotCache(QString path);

    [[nodiscard]] const QString &path() const { return m_path; }

    // A missing, unreadable, corrupt or older-format file all give no value, silently.
    [[nodiscard]] std::optional<Snapshot> load() const;

    // Atomic: on any failure the previous file stays as it was, and `error` says why.
    bool save(const Snapshot &snapshot, QString *error = nullptr) const;

    // Failures (such as no file) are ignored.
    void clear() const;

private:
    QString m_path;
};

} // namespace quorvane
