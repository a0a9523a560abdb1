#pragma once

#include <QHash>
#include <QtGlobal>

#include <optional>
#include <sys/types.h>

namespace quorvane::ProcessStats {

// What the kernel says of a running process (this one by default), from /proc; none where it
// can't be read (the process has gone, or /proc isn't there).

// Resident memory, in KiB.
[[nodiscard]] std::optional<qint64> residentKiB(pid_t pid = 0);
// Processor time each thread has used so far, in nanoseconds, by thread id: the scheduler's own
// count, exact where the process's user and system times go by the kernel's ticks (10 ms).
[[nodiscard]] std::optional<QHash<pid_t, qint64>> threadRunNs(pid_t pid = 0);
// Processor time this process has used so far, on all its threads, in microseconds: finer than
// cpuMs(), which counts in the kernel's ticks.
[[nodiscard]] qint64 ownCpuUs();

} // namespace quorvane::ProcessStats
