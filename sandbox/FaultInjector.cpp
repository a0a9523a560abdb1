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

std::optional<QByteArray> Fault::answer() const
{
    if (body)
        return body;
    if (bodyBytes >= 2) // an array of spaces: valid JSON, of no use to anyone
        return '[' + QByteArray(bodyBytes - 2, ' ') + ']';
    return std::nullopt;
}

std::optional<Fault> FaultInjector::take(const QString &path)
{
    const QString k = key(path);
    auto it = m_faults.find(k);
    for (auto w = m_faults.begin(); it == m_faults.end() && w != m_faults.end(); ++w) {
        if (w.key().endsWith(u'*') && k.startsWith(QStringView(w.key()).chopped(1)))
            it = w;
    }
    if (it == m_faults.end())
        return std::nullopt;
    const Fault fault = *it;
    if (--it->count <= 0)
        m_faults.erase(it);
    return fault;
}

} // namespace quorvane::sandbox
