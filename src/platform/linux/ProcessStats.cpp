#include "ProcessStats.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QList>

#include <time.h>
#include <unistd.h>

namespace quorvane::ProcessStats {

namespace {

QString procPath(pid_t pid, const QByteArray &name)
{
    const QByteArray who = pid == 0 ? QByteArray("self") : QByteArray::number(pid);
    return QString::fromLatin1("/proc/" + who + '/' + name);
}

std::optional<QByteArray> procFile(pid_t pid, const QByteArray &name)
{
    QFile file(procPath(pid, name));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

} // namespace

std::optional<qint64> residentKiB(pid_t pid)
{
    const std::optional<QByteArray> status = procFile(pid, "status");
    if (!status)
        return std::nullopt;
    for (const QByteArray &line : status->split('\n')) {
        if (!line.startsWith("VmRSS:"))
            continue;
        bool ok = false;
        const qint64 kib = line.mid(6).trimmed().split(' ').value(0).toLongLong(&ok);
        return ok ? std::optional(kib) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<QHash<pid_t, qint64>> threadRunNs(pid_t pid)
{
    const QStringList ids = QDir(procPath(pid, "task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    if (ids.isEmpty())
        return std::nullopt;
    QHash<pid_t, qint64> out;
    for (const QString &id : ids) {
        // "time on the processor, time waiting for it, slices", the first two in nanoseconds
        const std::optional<QByteArray> stat = procFile(pid, "task/" + id.toLatin1() + "/schedstat");
        bool ok = false;
        const qint64 runNs = stat ? stat->split(' ').value(0).toLongLong(&ok) : 0;
        if (ok) // a thread that ended meanwhile has no file left
            out.insert(pid_t(id.toInt()), runNs);
    }
    if (out.isEmpty())
        return std::nullopt; // a kernel without the scheduler's statistics
    return out;
}

qint64 ownCpuUs()
{
    timespec used{};
    if (::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used) != 0)
        return 0;
    return qint64(used.tv_sec) * 1'000'000 + used.tv_nsec / 1'000;
}

} // namespace quorvane::ProcessStats
