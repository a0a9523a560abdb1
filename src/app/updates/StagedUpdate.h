#pragma once

#include <QByteArray>
#include <QString>

// A portable copy's own replacement. A verified download waits in the staging folder; at the
// next start it takes the executable's place, and the old file stays beside it, as
// "<executable>.previous", until the new one has started once.
namespace quorvane::StagedUpdate {

// Writes the verified bytes as the one waiting update, executable by the owner alone; false
// with `error` set when it could not, leaving any earlier one as it was.
bool stage(const QString &directory, const QByteArray &bytes, QString *error = nullptr);
[[nodiscard]] bool isStaged(const QString &directory);

// Puts a waiting update in the executable's place, keeping the old file; true when it did, and
// the caller starts the new file instead of going on. Nothing waiting, or a failure on the
// way, leaves the executable as it was.
bool apply(const QString &executable, const QString &directory);

// The new file has started: the old one can go.
void confirmStarted(const QString &executable);

} // namespace quorvane::StagedUpdate
