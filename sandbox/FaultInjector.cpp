#include "FaultInjector.h"

namespace quorvane::sandbox {

QString FaultInjector::key(const QString &path)
{
    QString k = path.section(u'?', 0, 0);
    while (k.startsWith(u'/'))
        k.remove(0, 1);
    return k;
}

void FaultInjector::plant(const QString &path, const Fault &fault)
{
    if (fault.count > 0)
        m_faults.insert(key(path), fault);
}

std::optional<Fault> FaultInjector::take(const QString &path)
{
    const auto it = m_faults.find(key(path));
    if (it == m_faults.end())
        return std::nullopt;
    const Fault fault = *it;
    if (--it->count <= 0)
        m_faults.erase(it);
    return fault;
}

} // namespace quorvane::sandbox
