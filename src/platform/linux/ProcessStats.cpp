#include "ProcessStats.h"

#include <QByteArray>
#include <QFile>
#include <QList>

#include <time.h>
#include <unistd.h>

namespace quorvane::ProcessStats {

namespace {

std::optional<QByteArray> procFile(pid_t pid, const char *name)
{
    const QByteArray who = pid == 0 ? QByteArray("self") : QByteArray::number(pid);
    QFile file(QString::fromLatin1("/proc/" + who + '/' + name));
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

std::optional<qint64> cpuMs(pid_t pid)
{
    // The command name in field 2 may hold spaces and parentheses; count from its last ')'.
    const std::optional<QByteArray> stat = procFile(pid, "stat");
    const qsizetype close = stat ? stat->lastIndexOf(')') : -1;
    if (close < 0)
        return std::nullopt;
    const QList<QByteArray> fields = stat->mid(close + 2).split(' ');
    // After the name: state is field 3, utime field 14 and stime field 15.
    bool userOk = false;
    bool systemOk = false;
    const qint64 ticks = fields.value(11).toLongLong(&userOk) + fields.value(12).toLongLong(&systemOk);
    const long perSecond = sysconf(_SC_CLK_TCK);
    if (!userOk || !systemOk || perSecond <= 0)
        return std::nullopt;
    return ticks * 1000 / perSecond;
}

qint64 ownCpuUs()
{
    timespec used{};
    if (::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used) != 0)
        return 0;
    return qint64(used.tv_sec) * 1'000'000 + used.tv_nsec / 1'000;
}

} // namespace quorvane::ProcessStats
